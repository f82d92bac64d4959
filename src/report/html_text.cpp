// SPDX-License-Identifier: MIT
#include "report/html_text.h"

#include <algorithm>
#include <cstddef>

#include "automation/utf8.h"

namespace hx::report {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

std::string_view entityOf(char c) {
    switch (c) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        case '\'': return "&#39;";
        default: return {};
    }
}

// What HTML may not hold.
bool isControl(char32_t c) { return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || (c >= 0x7F && c < 0xA0); }

}  // namespace

std::string escapeHtml(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const automation::Utf8Character c = automation::decodeUtf8(text, at);
        const std::size_t taken = isControl(c.point) ? 1 : std::max<std::size_t>(c.length, 1);
        if (c.length == 0 || isControl(c.point)) result += replacement;
        else if (const auto entity = entityOf(text[at]); !entity.empty()) result += entity;
        else result += text.substr(at, taken);
        at += taken;
    }
    return result;
}

}  // namespace hx::report
