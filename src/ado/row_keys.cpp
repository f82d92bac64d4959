// SPDX-License-Identifier: MIT
#include "ado/row_keys.h"

#include <algorithm>
#include <vector>

#include "ado/key_marks.h"

namespace hx::ado {

void RowKeys::appendWide(Key key) {
    if (wide_.empty()) {
        wide_.assign(narrow_.begin(), narrow_.end());
        std::deque<std::int32_t>().swap(narrow_);
    }
    ascending_ = ascending_ && (wide_.empty() || key > last_);
    last_ = key;
    wide_.push_back(key);
}

void RowKeys::erase(std::size_t position) {
    const auto offset = static_cast<std::ptrdiff_t>(position);
    if (wide_.empty()) {
        narrow_.erase(narrow_.begin() + offset);
    } else {
        wide_.erase(wide_.begin() + offset);
    }
    if (!empty()) last_ = (*this)[size() - 1];
}

void RowKeys::erase(const KeyMarks& keys) {
    std::erase_if(narrow_, [&](Key key) { return keys.contains(key); });
    std::erase_if(wide_, [&](Key key) { return keys.contains(key); });
    if (!empty()) last_ = (*this)[size() - 1];
}

namespace {

// Keys of neighbouring rows: each stands once, so a bit a key puts them into order.
template <class Keys>
void sortDense(Keys& keys, std::int64_t least, std::size_t range) {
    std::vector<bool> there(range);
    for (const auto key : keys) there[static_cast<std::size_t>(key - least)] = true;
    auto at = keys.begin();
    for (std::size_t i = 0; i < range; ++i) {
        if (there[i]) *at++ = static_cast<typename Keys::value_type>(least + static_cast<std::int64_t>(i));
    }
}

template <class Keys>
void sortAscending(Keys& keys) {
    constexpr std::uint64_t sparse = 16;
    const auto [least, most] = std::minmax_element(keys.begin(), keys.end());
    const std::uint64_t span = static_cast<std::uint64_t>(*most) - static_cast<std::uint64_t>(*least);
    if (span / sparse < keys.size()) return sortDense(keys, *least, static_cast<std::size_t>(span) + 1);
    // A vector sorts about twice as fast.
    std::vector<typename Keys::value_type> sorted(keys.begin(), keys.end());
    std::sort(sorted.begin(), sorted.end());
    std::copy(sorted.begin(), sorted.end(), keys.begin());
}

template <class Keys>
void sortKeys(Keys& keys, bool ascending, bool descending) {
    if (!ascending && keys.size() > 1) sortAscending(keys);
    if (descending) std::reverse(keys.begin(), keys.end());
}

}  // namespace

void RowKeys::sort(bool descending) {
    sortKeys(narrow_, ascending_, descending);
    sortKeys(wide_, ascending_, descending);
    ascending_ = !descending || size() < 2;
    if (!empty()) last_ = (*this)[size() - 1];
}

std::size_t RowKeys::lowerBound(Key key) const {
    // Without gaps between the keys it stands as far behind the first as it is greater.
    if (!empty() && key >= (*this)[0]) {
        const auto guess = static_cast<std::uint64_t>(key) - static_cast<std::uint64_t>((*this)[0]);
        if (guess < size() && (*this)[guess] == key) return guess;
    }
    const auto below = [&](const auto& keys) {
        return static_cast<std::size_t>(std::lower_bound(keys.begin(), keys.end(), key) - keys.begin());
    };
    return wide_.empty() ? below(narrow_) : below(wide_);
}

std::optional<std::size_t> RowKeys::find(Key key, std::size_t hint) const {
    if (ascending_) {
        const std::size_t position = lowerBound(key);
        if (position < size() && (*this)[position] == key) return position;
        return std::nullopt;
    }
    std::size_t up = std::min(hint, size());
    std::size_t down = up;
    while (up < size() || down > 0) {
        if (up < size() && (*this)[up] == key) return up;
        if (down > 0 && (*this)[down - 1] == key) return down - 1;
        if (up < size()) ++up;
        if (down > 0) --down;
    }
    return std::nullopt;
}

}  // namespace hx::ado
