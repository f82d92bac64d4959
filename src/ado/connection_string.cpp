// SPDX-License-Identifier: MIT
#include "ado/connection_string.h"

#include <optional>

#include "automation/text.h"

namespace hx::ado {

namespace {

// Takes one "name=value" off the front, up to the semicolon that no quotes enclose.
std::string_view takePart(std::string_view& rest) {
    bool quoted = false;
    std::size_t end = 0;
    while (end < rest.size() && (quoted || rest[end] != ';')) {
        // A quote has a meaning only where a value begins or ends: a file name may hold one.
        if (rest[end] == '"' && (quoted || (end > 0 && rest[end - 1] == '='))) quoted = !quoted;
        ++end;
    }
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(end < rest.size() ? end + 1 : end);
    return part;
}

std::string unquoted(std::string_view value) {
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"') value = value.substr(1, value.size() - 2);
    return std::string(value);
}

}  // namespace

std::string connectionStringValue(std::string_view connectionString, std::string_view name) {
    std::string value;
    while (!connectionString.empty()) {
        const std::string_view part = takePart(connectionString);
        const auto equals = part.find('=');
        if (equals == std::string_view::npos) continue;
        if (automation::equalIgnoreCase(automation::trim(part.substr(0, equals)), name)) {
            value = unquoted(part.substr(equals + 1));
        }
    }
    return value;
}

}  // namespace hx::ado
