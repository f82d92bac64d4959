// SPDX-License-Identifier: MIT
#include "project/name_set.h"

#include "automation/text.h"

namespace hx::project {

std::size_t NameSet::add(std::string_view name) {
    const std::uint32_t hash = fold(name);
    const auto next = static_cast<automation::KeyIndex::Id>(ends_.size());
    const auto known = index_.insert(hash, next, [&](auto number) { return isFolded(number); });
    if (known != automation::KeyIndex::none) return known;
    texts_ += folded_;
    ends_.push_back(texts_.size());
    return next;
}

bool NameSet::contains(std::string_view name) {
    return index_.find(fold(name), [&](auto number) { return isFolded(number); }) != automation::KeyIndex::none;
}

std::uint32_t NameSet::fold(std::string_view name) {
    folded_.clear();
    automation::appendFolded(folded_, name);
    return automation::KeyIndex::hashOf(folded_);
}

bool NameSet::isFolded(std::size_t number) const {
    const std::size_t start = number == 0 ? 0 : ends_[number - 1];
    return std::string_view(texts_).substr(start, ends_[number] - start) == folded_;
}

}  // namespace hx::project
