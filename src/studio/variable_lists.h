// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <functional>
#include <memory>
#include <string>

#include "lists/variable_writer.h"
#include "lists/variables.h"
#include "studio/studio_host.h"
#include "studio/variables_model.h"

namespace hx::studio {

/// What an import has done.
struct ImportCounts {
    std::size_t added = 0, changed = 0, unchanged = 0;

    [[nodiscard]] QString text(const qt::Wording& wording) const;
};

/// Gives variables to a receiver.
using ReadList = std::function<void(lists::VariableReceiver& receiver, const lists::VariableLimits& limits)>;
using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

/// Brings variables into the variable list, in one transaction: all or none. `project` and `origin` are for messages.
/// What `reach` throws ends it.
ImportCounts importVariables(ado::Session& session, const std::string& project, const std::string& origin,
                             const ReadList& read, const Progress& reach = {});

/// Writes the variable list of a project as CSV, which spreadsheets know for UTF-8; gives how many variables there are.
std::size_t exportVariables(StudioHost& host, const std::string& project, const std::string& file);

/// These rows as a table, for a text and for a spreadsheet.
[[nodiscard]] std::unique_ptr<QMimeData> copyOf(const VariablesModel& model, const std::vector<int>& rows);

}  // namespace hx::studio
