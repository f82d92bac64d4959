// SPDX-License-Identifier: MIT
#include "automation/sentence.h"

namespace hx::automation {

// In one pass: a name that looks like a place holder stays as it is.
std::string say(Language language, const Sentence& sentence, std::initializer_list<std::string_view> names) {
    const std::string_view text = language == Language::german ? sentence.german : sentence.english;
    std::string said;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : names.size();
        if (number < names.size()) {
            said += names.begin()[number];
            ++i;
        } else {
            said += text[i];
        }
    }
    return said;
}

}  // namespace hx::automation
