// SPDX-License-Identifier: MIT
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <cstdint>
#include <functional>

#include "report/preview/pages.h"
#include "report/report.h"

namespace hx::report {

/// Pages from first to last, 0-based.
struct PageRange {
    int first = 0, last = 0;
};

/// A4, in twips.
[[nodiscard]] QSizeF usualPaper();

/// Hears how far a work is, of a total of 1 or more; gives it up by throwing automation::Cancelled.
using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

/// Lays out the pages that are left.
void layOutAll(Pages& pages, const Progress& progress);

/// Draws pages on a printer or into a PDF; `device` must be set up without margins. False when it takes no page.
[[nodiscard]] bool paintPages(const Pages& pages, PageRange range, QPagedPaintDevice& device, const Progress& progress);

// Each writes a file beside the place first and puts it there when it is whole: an older file stays as it is until
// then. The reason why not, empty when it is done.
[[nodiscard]] QString savePdf(const Report& report, const Pages& pages, PageRange range, const QString& path,
                              const Progress& progress);
[[nodiscard]] QString saveHtml(const Report& report, const QString& path, const Progress& progress);

}  // namespace hx::report
