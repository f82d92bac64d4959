#include "report/html_text.h"

#include <cstddef>

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

bool isControl(unsigned char c) { return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F; }

bool continues(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

// The length of the UTF-8 sequence at the front; 0 when it is none that HTML may hold.
std::size_t sequenceLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!continues(text, i)) return 0;
    }
    const auto second = static_cast<unsigned char>(text[1]);
    const bool tooShort = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool surrogate = lead == 0xED && second >= 0xA0;
    const bool tooLarge = lead == 0xF4 && second >= 0x90;
    const bool control = lead == 0xC2 && second < 0xA0;
    return tooShort || surrogate || tooLarge || control ? 0 : length;
}

}  // namespace

std::string escapeHtml(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto c = static_cast<unsigned char>(text[0]);
        std::size_t taken = 1;
        if (c >= 0x80) {
            taken = sequenceLength(text);
            result += taken == 0 ? replacement : text.substr(0, taken);
            if (taken == 0) taken = 1;
        } else if (const auto entity = entityOf(text[0]); !entity.empty()) {
            result += entity;
        } else if (isControl(c)) {
            result += replacement;
        } else {
            result += text[0];
        }
        text.remove_prefix(taken);
    }
    return result;
}

}  // namespace hx::report
