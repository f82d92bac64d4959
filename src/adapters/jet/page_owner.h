// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "adapters/jet/data_page.h"
#include "adapters/jet/space.h"

namespace hx::jet {

/// The data pages of a table or of a column's long values: where a row finds room.
class PageOwner {
  public:
    /// `mark` is what stands in the pages for their owner. Without maps each row gets a new page.
    PageOwner(Pages& pages, Space& space, std::uint32_t mark, std::optional<Place> own, std::optional<Place> free)
        : pages_(&pages), space_(&space), mark_(mark), own_(own), free_(free) {}

    /// Stores a row of that size, whose bytes are anything, and says where.
    struct Added {
        DataPage page;
        std::uint32_t row;
        [[nodiscard]] Place place() const { return {page.page().number(), static_cast<std::uint8_t>(row)}; }
    };
    [[nodiscard]] Added add(std::uint32_t size, std::uint16_t flags = 0);
    /// There is room on the page again.
    void noteRoom(std::uint32_t page);
    void remove(Place place);
    /// The page to be changed. Throws Damaged when it is not the owner's.
    [[nodiscard]] DataPage write(std::uint32_t page);
    [[nodiscard]] DataPage read(std::uint32_t page) const;

  private:
    [[nodiscard]] std::optional<DataPage> pageWithRoom(std::uint32_t size);
    [[nodiscard]] DataPage newPage();
    void requireOwn(const DataPage& page) const;

    Pages* pages_;
    Space* space_;
    std::uint32_t mark_;
    std::optional<Place> own_, free_;
    std::uint32_t last_ = 0;  // where the last row went
    std::uint64_t generation_ = 0;
};

}  // namespace hx::jet
