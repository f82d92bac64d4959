// SPDX-License-Identifier: MIT
#include "adapters/qt/explorer/arrangement.h"

#include <algorithm>
#include <numeric>

#include "automation/text.h"
#include "project/name_order.h"

namespace hx::qt {

void Arrangement::want(std::string key, automation::WordFilter filter, bool byName) {
    key_ = std::move(key);
    filter_ = std::move(filter);
    byName_ = byName;
}

void Arrangement::arrange(Id parent, std::size_t children) {
    end();
    if (filter_.holdsForAll() && !byName_) return;
    parent_ = parent;
    if (byName_ && inOrder_.size() != children) order(children);
    std::string folded;
    for (std::size_t i = 0; i < children; ++i) {
        const Id id = byName_ ? inOrder_[i] : tree_.child(parent, i);
        folded.clear();
        if (!filter_.holdsForAll()) automation::appendFolded(folded, tree_.caption(id));
        if (filter_.matches(folded)) shown_.push_back(id);
    }
    number(0);
}

void Arrangement::order(std::size_t children) {
    std::vector<project::OrderedName> names;
    names.reserve(children);
    for (std::size_t i = 0; i < children; ++i) names.emplace_back(tree_.caption(tree_.child(parent_, i)));
    std::vector<std::size_t> numbers(children);
    std::iota(numbers.begin(), numbers.end(), std::size_t{0});
    std::ranges::stable_sort(numbers, [&](std::size_t a, std::size_t b) { return names[a] < names[b]; });
    inOrder_.clear();
    for (const std::size_t number : numbers) inOrder_.push_back(tree_.child(parent_, number));
}

void Arrangement::end() {
    parent_ = hosting::NodeTree::none;
    shown_.clear();
    rows_.clear();
}

std::optional<int> Arrangement::rowOf(Id id) const noexcept {
    if (id >= rows_.size() || rows_[id] == 0) return std::nullopt;
    return static_cast<int>(rows_[id]) - 1;
}

void Arrangement::append(Id id) {
    shown_.push_back(id);
    number(shown_.size() - 1);
}

std::vector<Arrangement::Id> Arrangement::take(std::size_t first, std::size_t count) {
    const auto begin = shown_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = begin + static_cast<std::ptrdiff_t>(count);
    std::vector<Id> taken(begin, end);
    for (const Id id : taken) rows_[id] = 0;
    shown_.erase(begin, end);
    number(first);
    return taken;
}

void Arrangement::number(std::size_t from) {
    for (std::size_t row = from; row < shown_.size(); ++row) {
        const Id id = shown_[row];
        if (id >= rows_.size()) rows_.resize(std::max<std::size_t>(id + 1, rows_.size() * 2));
        rows_[id] = static_cast<std::uint32_t>(row) + 1;
    }
}

}  // namespace hx::qt
