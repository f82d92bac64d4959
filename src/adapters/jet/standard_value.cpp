// SPDX-License-Identifier: MIT
#include "adapters/jet/standard_value.h"

#include "automation/convert.h"
#include "automation/error.h"
#include "automation/text.h"

namespace hx::jet {

using automation::equalIgnoreCase;
using automation::Variant;

Variant standardValueOf(const Column& column) {
    std::string_view text = automation::trim(column.standard);
    if (text.starts_with('=')) text = automation::trim(text.substr(1));
    if (text.empty()) return automation::Null{};
    const char quote = text.front();
    if (quote == '"' || quote == '\'') {
        if (text.size() < 2 || text.back() != quote) return automation::Null{};
        return automation::replaceAll(text.substr(1, text.size() - 2), std::string(2, quote), std::string(1, quote));
    }
    for (const std::string_view yes : {"True", "Yes", "On"}) {
        if (equalIgnoreCase(text, yes)) return true;
    }
    for (const std::string_view no : {"False", "No", "Off"}) {
        if (equalIgnoreCase(text, no)) return false;
    }
    try {
        return automation::wholeNumber(text);
    } catch (const automation::Error&) {
        return column.isText() && text.find_first_of("()[]") == std::string_view::npos ? Variant(std::string(text))
                                                                                       : Variant(automation::Null{});
    }
}

}  // namespace hx::jet
