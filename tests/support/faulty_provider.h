// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ado/provider.h"

namespace hx::support {

/// Decides which operations of a FaultyProvider fail. Operations are counted from 1 since the last arm().
class FaultPlan {
  public:
    enum class Kind { any, connect, open, keys, read, insert, update, remove, begin, commit, rollback };

    /// The n-th operation of the kind fails with this error, and no other. The operation then has had no effect.
    void arm(int nth, Kind kind = Kind::any,
             automation::Error error = {ado::dbErrUnspecified, "The disk cannot be written."});
    /// The same for the n-th operation and all after it.
    void armFrom(int nth, Kind kind = Kind::any,
                 automation::Error error = {ado::dbErrUnspecified, "The disk cannot be read."});
    void disarm() { nth_ = 0; }
    /// Called in place of failing, when it is set.
    std::function<void()> instead;
    /// How many operations of the armed kind there were.
    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] bool fired() const { return fired_; }

    /// Throws when it is this operation's turn.
    void pass(Kind kind);

  private:
    int nth_ = 0;
    int count_ = 0;
    bool fired_ = false;
    bool lasting_ = false;
    Kind kind_ = Kind::any;
    automation::Error error_{ado::dbErrUnspecified, ""};
};

/// Passes everything on to another provider, but for the operations that the plan lets fail.
class FaultyProvider : public ado::Provider {
  public:
    FaultyProvider(ado::Provider& inner, FaultPlan& plan) : inner_(inner), plan_(plan) {}
    [[nodiscard]] std::unique_ptr<ado::Session> connect(std::string_view connectionString) override;

  private:
    ado::Provider& inner_;
    FaultPlan& plan_;
};

}  // namespace hx::support
