// SPDX-License-Identifier: MIT
#include "adapters/jet/page_owner.h"

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"

namespace hx::jet {

namespace {

// A page with less room than this is not worth looking at.
constexpr std::uint32_t littleRoom = 128;

}  // namespace

void PageOwner::requireOwn(const DataPage& page) const {
    require(page.owner() == mark_, page.page().number(), sentence::otherOwner);
}

DataPage PageOwner::read(std::uint32_t page) const {
    DataPage data(pages_->read(page));
    requireOwn(data);
    return data;
}

DataPage PageOwner::write(std::uint32_t page) {
    (void)read(page);
    return DataPage(pages_->write(page));
}

PageOwner::Added PageOwner::add(std::uint32_t size, std::uint16_t flags) {
    auto found = pageWithRoom(size);
    DataPage page = found ? *std::move(found) : newPage();
    const std::uint32_t row = page.add(size, flags);
    return {std::move(page), row};
}

// The page that took the last row, else one that is known to have room. A page where the row has none is forgotten when
// hardly any row would have.
std::optional<DataPage> PageOwner::pageWithRoom(std::uint32_t size) {
    if (!free_) return std::nullopt;
    if (generation_ == pages_->generation() && last_ != 0) {
        if (const DataPage page = read(last_); page.fits(size)) return write(last_);
    }
    UsageMap free(*pages_, *free_);
    constexpr int mostTried = 8;
    std::uint32_t at = pages_->count();
    for (int tried = 0; tried < mostTried && (at = free.previous(at)) != 0; ++tried) {
        const DataPage page = read(at);
        if (page.fits(size)) {
            last_ = at;
            generation_ = pages_->generation();
            return write(at);
        }
        if (page.freeSpace() < littleRoom || page.rows() >= DataPage::mostRows) free.remove(at);
    }
    return std::nullopt;
}

DataPage PageOwner::newPage() {
    const PageRef page = space_->allocate();
    DataPage::make(page, mark_);
    if (own_) UsageMap(*pages_, *own_).add(page.number());
    if (free_) UsageMap(*pages_, *free_).add(page.number());
    last_ = page.number();
    generation_ = pages_->generation();
    return DataPage(page);
}

void PageOwner::noteRoom(std::uint32_t page) {
    if (!free_) return;
    UsageMap free(*pages_, *free_);
    if (!free.contains(page)) free.add(page);
}

void PageOwner::remove(Place place) {
    DataPage page = write(place.page);
    page.remove(place.row);
    noteRoom(place.page);
}

}  // namespace hx::jet
