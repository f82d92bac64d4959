// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace hx::qt {

/// An entry of a table of contents or of an index.
struct HelpEntry {
    QString title;
    QString path;  ///< as written, of a topic; empty for a heading
    std::vector<HelpEntry> children;
};

/// Reads the HTML of a .hhc or .hhk file. What it does not understand it leaves out.
[[nodiscard]] std::vector<HelpEntry> readSiteMap(const QString& html);

}  // namespace hx::qt
