// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "history/history.h"

namespace hx::history {

/// Passes everything on to another provider and records what is changed: each transaction, and each change outside of
/// one, becomes a step of the project's history.
class RecordingProvider : public ado::Provider {
  public:
    /// The history of a file, which its sessions keep; null when none is kept of it. The file is as the connection
    /// string names it.
    using HistoryOf = std::function<std::shared_ptr<History>(const std::string& path)>;

    /// The provider is lent.
    RecordingProvider(ado::Provider& provider, HistoryOf historyOf)
        : provider_(provider), historyOf_(std::move(historyOf)) {}

    [[nodiscard]] std::unique_ptr<ado::Session> connect(std::string_view connectionString) override;
    [[nodiscard]] bool copy(std::string_view connectionString, const std::string& file) override {
        return provider_.copy(connectionString, file);
    }

  private:
    ado::Provider& provider_;
    HistoryOf historyOf_;
};

}  // namespace hx::history
