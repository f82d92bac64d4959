// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <memory>

namespace hx::studio {

/// Puts back what was on the clipboard when it ends.
class ClipboardKeeper {
  public:
    ClipboardKeeper();
    ~ClipboardKeeper();
    ClipboardKeeper(const ClipboardKeeper&) = delete;
    ClipboardKeeper& operator=(const ClipboardKeeper&) = delete;

  private:
    std::unique_ptr<QMimeData> kept_;
};

}  // namespace hx::studio
