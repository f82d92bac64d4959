#pragma once

#include <QCursor>
#include <QPoint>
#include <optional>

namespace hx::qt {

/// Where the next pop-up menu opens: at the mouse, or where the user asked for it by keyboard.
class PopUpPlace {
  public:
    [[nodiscard]] QPoint point() const { return keyboard_.value_or(QCursor::pos()); }

    /// The place is `point` while it lives.
    class AtKeyboard {
      public:
        AtKeyboard(PopUpPlace& place, const QPoint& point) : place_(place) { place_.keyboard_ = point; }
        ~AtKeyboard() { place_.keyboard_.reset(); }
        AtKeyboard(const AtKeyboard&) = delete;
        AtKeyboard& operator=(const AtKeyboard&) = delete;

      private:
        PopUpPlace& place_;
    };

  private:
    std::optional<QPoint> keyboard_;
};

}  // namespace hx::qt
