// SPDX-License-Identifier: MIT
#include "automation/word_filter.h"

#include <algorithm>

#include "automation/text.h"

namespace hx::automation {

WordFilter::WordFilter(std::string_view text) {
    for (const std::string& word : split(foldCase(text), ' ')) {
        if (word.empty() || word == "-") continue;
        if (word.front() == '-') unwanted_.push_back(word.substr(1));
        else wanted_.push_back(word);
    }
}

bool WordFilter::matches(std::string_view folded) const {
    const auto stands = [folded](const std::string& word) { return folded.find(word) != std::string_view::npos; };
    return std::ranges::all_of(wanted_, stands) && std::ranges::none_of(unwanted_, stands);
}

}  // namespace hx::automation
