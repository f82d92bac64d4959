// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "automation/text.h"
#include "forms/record.h"
#include "host/system_services.h"

namespace hx::hosting {

/// Components by program identifier, ignoring case: those that have been put in, and no others.
class Components : public host::Components {
  public:
    static constexpr std::int32_t errClassNotRegistered = automation::hresult(0x80040154);

    using Factory = std::function<automation::ObjectRef()>;
    /// What a stand-in answers to a call of a member.
    using Answer = std::function<automation::Variant(std::string_view member, automation::Args arguments)>;

    explicit Components(forms::Record& record) : record_(record) {}
    void provide(const std::string& programId, Factory factory) { factories_[programId] = std::move(factory); }
    /// Puts in an object that has every member that is called; each call is recorded. Without an answer it gives an
    /// empty value.
    void standIn(const std::string& programId, Answer answer = {});
    void remove(const std::string& programId) { factories_.erase(programId); }
    void clear() { factories_.clear(); }
    [[nodiscard]] bool provides(std::string_view programId) const { return factories_.contains(programId); }

    /// errClassNotRegistered for an unknown one.
    [[nodiscard]] automation::ObjectRef create(std::string_view programId) override;

  private:
    forms::Record& record_;
    std::map<std::string, Factory, automation::IgnoringCase> factories_;
};

}  // namespace hx::hosting
