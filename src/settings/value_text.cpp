// SPDX-License-Identifier: MIT
#include "settings/value_text.h"

#include "automation/text.h"

namespace hx::settings {

using automation::Variant;

Variant TextToValue(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    if (text == "FALSE" || text == "False" || text == "false") return Variant(false);
    if (text == "TRUE" || text == "True" || text == "true") return Variant(true);
    const bool number = !text.empty() && text.front() >= '0' && text.front() <= '9';
    if (!number) return Variant(text);
    std::string digits = automation::replaceAll(text, ",", ".");
    std::erase_if(digits, [](char c) { return c == ' ' || c == '\t'; });
    return Variant(automation::leadingNumber(digits));
}

std::string ValueToText(const Variant& value, const automation::NumberFormat& format) {
    return automation::toText(value, format);
}

}  // namespace hx::settings
