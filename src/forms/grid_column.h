// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "automation/dispatch.h"
#include "forms/event.h"
#include "forms/picture.h"
#include "forms/value_items.h"

namespace hx::forms {

/// A column of a grid. Width in twips; order is its place in the display, from 0.
class Column : public automation::Dispatch {
  public:
    explicit Column(std::string dataField);
    [[nodiscard]] const std::string& dataField() const noexcept { return dataField_; }
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption);
    [[nodiscard]] double width() const noexcept { return width_; }
    void setWidth(double twips);  ///< below 0 throws errOverflow
    [[nodiscard]] bool visible() const noexcept { return visible_; }
    void setVisible(bool visible);
    [[nodiscard]] bool allowSizing() const noexcept { return allowSizing_; }
    void setAllowSizing(bool allow);
    [[nodiscard]] std::int16_t order() const noexcept { return order_; }
    void setOrder(std::int16_t order);  ///< below 0 throws errOverflow
    [[nodiscard]] bool button() const noexcept { return button_; }
    void setButton(bool button);
    [[nodiscard]] const Picture& buttonPicture() const noexcept { return buttonPicture_; }
    void setButtonPicture(const Picture& picture);
    [[nodiscard]] bool locked() const noexcept { return locked_; }  ///< cannot be edited
    void setLocked(bool locked);
    [[nodiscard]] ValueItems& valueItems() noexcept { return valueItems_; }
    [[nodiscard]] const ValueItems& valueItems() const noexcept { return valueItems_; }

    Event<std::string_view> changed;  ///< property name
    [[nodiscard]] const automation::MemberTable& members() const override;

    static constexpr double defaultWidth = 1200;

  private:
    template <class T>
    void assign(T& field, const T& value, std::string_view property);
    std::string dataField_, caption_;
    Picture buttonPicture_;
    ValueItems valueItems_;
    double width_ = defaultWidth;
    std::int16_t order_ = 0;
    bool visible_ = true, allowSizing_ = true, button_ = false, locked_ = false;
};

/// A part of the grid with its own horizontal scrolling; all parts show the same rows. Split 0 is the left one.
class Split : public automation::Dispatch {
  public:
    [[nodiscard]] double size() const noexcept { return size_; }  ///< width in twips; 0 shows nothing of it
    void setSize(double twips);                                   ///< below 0 throws errOverflow
    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    double size_ = 0;
};

}  // namespace hx::forms
