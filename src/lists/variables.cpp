// SPDX-License-Identifier: MIT
#include "lists/variables.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "adapters/sqlite/project_file.h"
#include "automation/error.h"
#include "automation/text.h"
#include "hosting/file_bytes.h"
#include "lists/plcopen_variables.h"
#include "lists/sentences.h"

namespace hx::lists {

bool isPlcopen(const std::string& path) {
    if (automation::equalIgnoreCase(std::string_view(path).substr(path.size() - std::min<std::size_t>(path.size(), 4)),
                                    ".xml")) {
        return true;
    }
    const std::filesystem::path place = hosting::fileSystemPath(path);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(place, ignored)) return false;
    std::ifstream file(place, std::ios::binary);
    constexpr std::string_view begins = "<?xml";
    // Also behind a byte order mark, and in UTF-16.
    std::string text;
    for (char c = 0; text.size() < begins.size() && file.get(c);) {
        if (c > ' ' && c < 0x7F) text += c;
    }
    return text == begins;
}

void readVariables(const std::string& path, const CsvChoice& choice, const VariableLimits& limits,
                   VariableReceiver& receiver) {
    if (sqlite::beginsLikeProject(path)) {
        throw automation::Error(automation::errFail, sentence::isProject, {path});
    }
    if (isPlcopen(path)) readPlcopenVariables(path, limits, receiver);
    else readCsvVariables(path, choice, receiver);
}

}  // namespace hx::lists
