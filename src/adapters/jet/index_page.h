// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "adapters/jet/page_cache.h"

namespace hx::jet {

/// A page of an index. Its entries stand in order, all but the first without the beginning that all share. Behind the
/// key an entry has the row's place (highest byte first); on a page that leads to others, the page behind that whose
/// last entry it repeats.
class IndexPage {
  public:
    static constexpr std::uint32_t placeSize = 4, childSize = 4;
    /// So many bytes of entries a page takes.
    static constexpr std::uint32_t room = pageSize - 480;

    /// Throws Damaged when it is no page of that index. `table` is the page of the table's definition.
    IndexPage(PageRef page, std::uint32_t table);
    /// Makes a page of zeros one without entries.
    static void make(const PageRef& page, std::uint32_t table, bool isLeaf) noexcept;

    [[nodiscard]] bool isLeaf() const noexcept;
    [[nodiscard]] std::uint32_t previous() const noexcept { return get32(bytes() + 12); }
    [[nodiscard]] std::uint32_t next() const noexcept { return get32(bytes() + 16); }
    /// Of a page that leads to others: the one behind all entries, 0 for none.
    [[nodiscard]] std::uint32_t tail() const noexcept { return get32(bytes() + 20); }
    void setPrevious(std::uint32_t page) noexcept { put32(bytes() + 12, page); }
    void setNext(std::uint32_t page) noexcept { put32(bytes() + 16, page); }
    void setTail(std::uint32_t page) noexcept { put32(bytes() + 20, page); }

    [[nodiscard]] std::uint32_t entries() const noexcept { return static_cast<std::uint32_t>(ends().size()); }
    /// The whole entry in two parts: what is shared, and its own.
    struct Entry {
        Bytes shared, own;
        [[nodiscard]] std::size_t size() const noexcept { return shared.size() + own.size(); }
        void appendTo(Buffer& to) const {
            append(to, shared);
            append(to, own);
        }
    };
    [[nodiscard]] Entry entry(std::uint32_t number) const noexcept;
    [[nodiscard]] Place place(std::uint32_t number) const noexcept;
    [[nodiscard]] std::uint32_t child(std::uint32_t number) const noexcept;
    /// Key and place of the entry, without a child.
    void appendKey(Buffer& to, std::uint32_t number) const;

    /// The first entry whose key and place are not before this key and place.
    [[nodiscard]] std::uint32_t find(Bytes keyAndPlace) const noexcept;
    [[nodiscard]] bool equals(std::uint32_t number, Bytes keyAndPlace) const noexcept;
    /// The same of the key alone.
    [[nodiscard]] bool equalsKey(std::uint32_t number, Bytes key) const noexcept;

    /// Puts the entry before this one; false when it does not go in as the page is.
    [[nodiscard]] bool insert(std::uint32_t number, Bytes entry);
    void erase(std::uint32_t number);

    /// All entries, whole.
    [[nodiscard]] std::vector<Buffer> all() const;
    /// Puts these in their place, with the longest beginning that they share; false when they do not go in.
    [[nodiscard]] bool assign(std::span<const Buffer> entries);

    [[nodiscard]] const PageRef& page() const noexcept { return page_; }

  private:
    [[nodiscard]] Byte* bytes() const noexcept { return page_.data(); }
    [[nodiscard]] Byte* area() const noexcept { return bytes() + 480; }
    [[nodiscard]] std::uint32_t sharedSize() const noexcept { return get16(bytes() + 24); }
    [[nodiscard]] std::uint32_t tailSize() const noexcept { return isLeaf() ? placeSize : placeSize + childSize; }
    [[nodiscard]] std::vector<std::uint16_t>& ends() const noexcept { return page_.frame().ends; }
    [[nodiscard]] std::uint32_t start(std::uint32_t number) const noexcept {
        return number == 0 ? 0 : ends()[number - 1];
    }
    [[nodiscard]] std::uint32_t used() const noexcept { return ends().empty() ? 0 : ends().back(); }
    [[nodiscard]] int compare(std::uint32_t number, Bytes keyAndPlace) const noexcept;
    void readEnds();
    void writeEnds() noexcept;

    PageRef page_;
};

}  // namespace hx::jet
