// SPDX-License-Identifier: MIT
#include "project/variable_entry.h"

#include <array>

#include "automation/text.h"
#include "project/schema.h"

namespace hx::project {

std::optional<VariableEntry> findVariable(Reader& reader, const std::string& name) {
    std::optional<VariableEntry> found;
    using namespace schema::variable;
    reader.read(schema::variableTable, std::array{schema::variable::name, type, comment}, [&](Row row) {
        if (found || !automation::equalIgnoreCase(row[0].text, name)) return;
        found = VariableEntry{std::string(row[0].text), std::string(row[1].text), std::string(row[2].text)};
    });
    return found;
}

}  // namespace hx::project
