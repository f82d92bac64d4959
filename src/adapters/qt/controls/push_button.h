// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <algorithm>

namespace hx::qt {

/// A push button that can be small: square, as far as its text lets it, and as high as the field before it.
class PushButton : public QPushButton {
  public:
    using QPushButton::QPushButton;
    void makeSmall(int height) {
        if (smallHeight_ == height) return;
        smallHeight_ = height;
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        updateGeometry();
    }
    [[nodiscard]] QSize sizeHint() const override {
        if (smallHeight_ == 0) return QPushButton::sizeHint();
        const int text = fontMetrics().horizontalAdvance(this->text()) + fontMetrics().height() / 2;
        return {std::max(smallHeight_, text), smallHeight_};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    int smallHeight_ = 0;
};

}  // namespace hx::qt
