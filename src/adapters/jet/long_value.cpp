// SPDX-License-Identifier: MIT
#include "adapters/jet/long_value.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

constexpr std::uint32_t inRow = 0x80000000, inOneRow = 0x40000000, lengthMask = 0x3FFFFFFF;
constexpr std::size_t placeAt = 4, nextSize = 4;
constexpr std::uint32_t mostInOneRow = 4076, mostInPart = mostInOneRow - nextSize;

struct Head {
    std::uint32_t length, form;
    Place place;
};

Head headOf(Bytes column) {
    if (column.size() < LongValues::headSize) return {0, inRow, {}};
    const std::uint32_t length = get32(column.data());
    return {length & lengthMask, length & ~lengthMask, Place::get(column.data() + placeAt)};
}

std::span<const Byte> rowAt(Pages& pages, Place place, PageRef& held) {
    held = pages.read(place.page);
    const DataPage page(held);
    require(page.owner() == DataPage::longValueOwner, place.page, sentence::otherOwner);
    return page.row(place.row);
}

}  // namespace

void LongValues::read(Pages& pages, Buffer& value, Bytes column, std::size_t most) {
    Head head = headOf(column);
    std::size_t left = std::min<std::size_t>(head.length, most);
    if (left == 0) return;
    if ((head.form & inRow) != 0) {
        return append(value, column.subspan(headSize, std::min(left, column.size() - headSize)));
    }
    require(left <= std::size_t{pages.count()} * pageSize, head.place.page, sentence::noRow);
    if (left > longestValue) throw automation::Error(ado::dbErrUnspecified, sentence::valueTooLong, {pages.path()});
    PageRef held;
    if (head.form == inOneRow) {
        const Bytes bytes = rowAt(pages, head.place, held);
        return append(value, bytes.first(std::min(left, bytes.size())));
    }
    while (left > 0 && head.place.page != 0) {
        const Bytes bytes = rowAt(pages, head.place, held);
        // A part without bytes could lead round for ever.
        require(bytes.size() > nextSize, head.place.page, sentence::noRow);
        const std::size_t taken = std::min(left, bytes.size() - nextSize);
        append(value, bytes.subspan(nextSize, taken));
        left -= taken;
        head.place = Place::get(bytes.data());
    }
}

void LongValues::write(Buffer& column, Bytes value) {
    if (value.size() > lengthMask || value.size() > longestValue) {
        throw automation::Error(ado::dbErrCannotConvert, sentence::valueTooLong, {pages_.path()});
    }
    const auto length = static_cast<std::uint32_t>(value.size());
    Byte head[headSize] = {};
    if (value.size() <= mostInRow) {
        put32(head, length | inRow);
        append(column, head);
        return append(column, value);
    }
    put32(head, value.size() <= mostInOneRow ? length | inOneRow : length);
    Place place;
    if (value.size() <= mostInOneRow) {
        const auto added = owner_.add(length);
        std::ranges::copy(value, added.page.row(added.row).begin());
        place = added.place();
    } else {
        // From the last part to the first, as each tells where the next is.
        const std::size_t parts = (value.size() + mostInPart - 1) / mostInPart;
        for (std::size_t part = parts; part-- > 0;) {
            const Bytes bytes =
                value.subspan(part * mostInPart, std::min<std::size_t>(mostInPart, value.size() - part * mostInPart));
            const auto added = owner_.add(static_cast<std::uint32_t>(bytes.size() + nextSize));
            const std::span<Byte> row = added.page.row(added.row);
            place.put(row.data());
            std::ranges::copy(bytes, row.begin() + nextSize);
            place = added.place();
        }
    }
    place.put(head + placeAt);
    append(column, head);
}

void LongValues::remove(Bytes column) {
    Head head = headOf(column);
    if ((head.form & inRow) != 0 || head.place.page == 0) return;
    if (head.form == inOneRow) return owner_.remove(head.place);
    for (std::size_t left = head.length; left > 0 && head.place.page != 0;) {
        PageRef held;
        const Bytes bytes = rowAt(pages_, head.place, held);
        require(bytes.size() > nextSize, head.place.page, sentence::noRow);
        left -= std::min(left, bytes.size() - nextSize);
        const Place next = Place::get(bytes.data());
        held = PageRef();
        owner_.remove(head.place);
        head.place = next;
    }
}

}  // namespace hx::jet
