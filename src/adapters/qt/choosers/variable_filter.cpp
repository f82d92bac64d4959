// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/variable_filter.h"

#include <algorithm>

#include "automation/text.h"

namespace hx::qt {

VariableFilter::VariableFilter(std::string_view text) {
    for (const std::string& word : automation::split(automation::foldCase(text), ' ')) {
        if (word.empty() || word == "-") continue;
        if (word.front() == '-') unwanted_.push_back(word.substr(1));
        else wanted_.push_back(word);
    }
}

bool VariableFilter::matches(std::string_view folded) const {
    const auto stands = [folded](const std::string& word) { return folded.find(word) != std::string_view::npos; };
    return std::ranges::all_of(wanted_, stands) && std::ranges::none_of(unwanted_, stands);
}

}  // namespace hx::qt
