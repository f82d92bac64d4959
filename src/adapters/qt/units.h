// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <cmath>

namespace hx::qt {

/// Converts between the twips of the models and the pixels of a display.
class Units {
  public:
    explicit Units(double twipsPerPixel = 15) noexcept : twipsPerPixel_(twipsPerPixel) {}
    /// Of a display with this many dots an inch.
    [[nodiscard]] static Units ofDpi(double dotsPerInch) noexcept { return Units(1440 / dotsPerInch); }
    [[nodiscard]] double twipsPerPixel() const noexcept { return twipsPerPixel_; }
    [[nodiscard]] int pixels(double twips) const noexcept {
        return static_cast<int>(std::lround(twips / twipsPerPixel_));
    }
    [[nodiscard]] double twips(double pixels) const noexcept { return pixels * twipsPerPixel_; }

  private:
    double twipsPerPixel_;
};

}  // namespace hx::qt
