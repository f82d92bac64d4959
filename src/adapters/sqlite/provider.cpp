// SPDX-License-Identifier: MIT
#include "adapters/sqlite/provider.h"

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/session.h"
#include "ado/connection_string.h"
#include "automation/text.h"

namespace hx::sqlite {

namespace {

bool isReadOnly(std::string_view connectionString) {
    const std::string mode = ado::connectionStringValue(connectionString, "Mode");
    if (mode.empty()) return false;
    for (const std::string& part : automation::split(mode, '|')) {
        const std::string_view word = automation::trim(part);
        if (automation::equalIgnoreCase(word, "Write") || automation::equalIgnoreCase(word, "ReadWrite")) return false;
    }
    return true;
}

}  // namespace

std::unique_ptr<ado::Session> Provider::connect(std::string_view connectionString) {
    const std::string path = ado::connectionStringValue(connectionString, "Data Source");
    return std::make_unique<Session>(path, isReadOnly(connectionString), options_());
}

bool Provider::copy(std::string_view connectionString, const std::string& file) {
    Session session(ado::connectionStringValue(connectionString, "Data Source"), true, options_());
    ProjectDraft draft(file);
    session.database().copyTo(draft.temporaryPath());
    draft.publish();
    return true;
}

}  // namespace hx::sqlite
