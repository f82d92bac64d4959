// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "report/preview/face.h"

namespace hx::report {

enum class Tone { ink, muted, accent, warning };

/// A text in a row. Lengths are twips, from the left edge of the text area.
struct Cell {
    double x = 0, width = 0;
    QStringList lines;
    const Face* face = nullptr;
    Tone tone = Tone::ink;
    bool right = false;                   ///< ends at x + width
    double y = 0;                         ///< below the top of the row
    std::optional<std::size_t> target{};  ///< the recipe that it leads to
    std::optional<std::size_t> pageOf{};  ///< shows the page of this recipe in place of the first line's "%1"
};

struct CheckMark {
    double x = 0;
    bool on = false;
};

/// A line of the report as it stands on paper, or several that stay together.
struct Row {
    double before = 0;  ///< room above it, not at the top of a page
    double height = 0;
    bool keepsNext = false;  ///< no page ends behind it
    bool filled = false, ruled = false, dotted = false;
    std::vector<Cell> cells{};
    std::vector<QLineF> lines{};
    std::vector<CheckMark> checks{};
};

}  // namespace hx::report
