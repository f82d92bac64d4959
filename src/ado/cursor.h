// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "ado/row_keys.h"

namespace hx::ado {

/// Where a recordset stands in a list of keys. The list keeps it right while rows come and go.
struct Cursor {
    enum class Place {
        first,  ///< on the first row; which one that is has not been asked yet
        key,    ///< on the row `key`; its position has not been asked yet
        row,
        bof,
        eof
    };

    Place place = Place::first;
    std::size_t position = 0;  ///< of the row; of the row that followed it once it is deleted
    Key key = 0;               ///< of the row, also when it is deleted
    bool deleted = false;

    void set(Place where, std::size_t at = 0, Key row = 0) noexcept { *this = {where, at, row, false}; }
};

}  // namespace hx::ado
