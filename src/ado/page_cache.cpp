// SPDX-License-Identifier: MIT
#include "ado/page_cache.h"

#include <algorithm>
#include <utility>

namespace hx::ado {

Page::Page(std::size_t first, std::size_t count, std::size_t columns, ColumnMask mask)
    : first_(first), mask_(mask), present_(count) {
    for (std::size_t column = 0; column < columns; ++column) {
        if (holds(columnBit(column))) kept_.push_back(column);
    }
    width_ = kept_.size();
    values_.resize(count * width_);
}

void Page::row(std::size_t index, std::span<automation::Variant> values) {
    present_[index] = 1;
    std::size_t at = index * width_;
    for (const std::size_t column : kept_) values_[at++] = std::move(values[column]);
}

void Page::erased(std::size_t position) {
    if (position < first_) {
        --first_;
    } else if (covers(position)) {
        const auto index = static_cast<std::ptrdiff_t>(position - first_);
        const auto width = static_cast<std::ptrdiff_t>(width_);
        present_.erase(present_.begin() + index);
        values_.erase(values_.begin() + index * width, values_.begin() + (index + 1) * width);
    }
}

const Page* PageCache::search(std::size_t position, ColumnMask columns) {
    const auto found = std::find_if(pages_.begin(), pages_.end(),
                                    [&](const Page& page) { return page.covers(position) && page.holds(columns); });
    if (found == pages_.end()) return nullptr;
    std::rotate(found, found + 1, pages_.end());
    last_ = pages_.size() - 1;
    return &pages_.back();
}

const Page& PageCache::add(Page page, std::size_t position) {
    forget(position);
    if (pages_.size() >= maxPages) pages_.erase(pages_.begin());
    pages_.push_back(std::move(page));
    last_ = pages_.size() - 1;
    return pages_.back();
}

void PageCache::erased(std::size_t position) {
    for (Page& page : pages_) page.erased(position);
    std::erase_if(pages_, [](const Page& page) { return page.empty(); });
}

void PageCache::forget(std::size_t position) {
    std::erase_if(pages_, [&](const Page& page) { return page.covers(position); });
}

}  // namespace hx::ado
