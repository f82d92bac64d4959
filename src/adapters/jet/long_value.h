// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/page_owner.h"
#include "adapters/jet/row.h"

namespace hx::jet {

/// Long texts and bytes. A row holds their length and, behind it, themselves when they are short; else where they
/// stand: in one row of a page of long values, or in several, each of which tells the next.
class LongValues {
  public:
    LongValues(Pages& pages, Space& space, const Column& column)
        : pages_(pages), owner_(pages, space, DataPage::longValueOwner, column.ownPages, column.freePages) {}

    static constexpr std::size_t headSize = 12;
    /// So long a value stands in the row itself.
    static constexpr std::size_t mostInRow = 64;

    /// Reads the value that a row's column stands for; at most so many bytes of it.
    static void read(Pages& pages, Buffer& value, Bytes column, std::size_t most);
    /// Stores a value and gives what the row's column holds.
    void write(Buffer& column, Bytes value);
    /// Takes away what a row's column stands for.
    void remove(Bytes column);

  private:
    Pages& pages_;
    PageOwner owner_;
};

/// How many bytes a value has at most that is read.
inline constexpr std::size_t longestValue = 64 << 20;

}  // namespace hx::jet
