// SPDX-License-Identifier: MIT
#include "project/pasted_variables.h"

#include <unordered_set>

#include "automation/text.h"

namespace hx::project {

std::vector<PastedVariable> pastedVariables(std::string_view text, std::span<const std::string> present) {
    std::unordered_set<std::string> known;
    for (const std::string& name : present) known.insert(automation::foldCase(name));
    std::vector<PastedVariable> pasted;
    for (const std::string& line : automation::split(text, '\n')) {
        const std::string_view name = automation::trim(std::string_view(line).substr(0, line.find_first_of("\t\r;")));
        if (name.empty()) continue;
        const bool isNew = known.insert(automation::foldCase(name)).second;
        pasted.push_back({std::string(name), !isNew});
    }
    return pasted;
}

}  // namespace hx::project
