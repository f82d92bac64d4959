// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace hx::forms {

/// A list with item data, shown as a drop-down list, or editable (`style` dropDownCombo). ListIndex -1 is none.
class ComboBox : public Control {
  public:
    enum class Style : std::int16_t { dropDownCombo = 0, dropDownList = 2 };
    explicit ComboBox(std::string name, Style style = Style::dropDownCombo) : Control(std::move(name)), style_(style) {}
    [[nodiscard]] Style style() const noexcept { return style_; }

    void clear();
    void addItem(const std::string& text);  ///< becomes the last entry; newIndex() is its number
    [[nodiscard]] std::int32_t newIndex() const noexcept { return newIndex_; }
    [[nodiscard]] std::int32_t listCount() const noexcept { return static_cast<std::int32_t>(items_.size()); }
    [[nodiscard]] const std::string& list(std::int32_t index) const;  ///< errBadIndex
    [[nodiscard]] std::int32_t itemData(std::int32_t index) const;    ///< errBadIndex
    void setItemData(std::int32_t index, std::int32_t data);          ///< errBadIndex
    [[nodiscard]] std::int32_t listIndex() const noexcept { return listIndex_; }
    /// Takes over the text and raises clickEvent; the same number again does nothing. errBadIndex outside.
    void setListIndex(std::int32_t index);
    /// The selected or typed text. Assigning to a drop-down list selects the entry of that text (errBadIndex without
    /// one).
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(const std::string& text);
    Event<> clickEvent, changeEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void requireIndex(std::int32_t index) const;
    void take(std::int32_t index, const std::string& text);
    [[nodiscard]] std::int32_t find(std::string_view text) const;
    struct Item {
        std::string text;
        std::int32_t data = 0;
    };
    Style style_;
    std::vector<Item> items_;
    std::string text_;
    std::int32_t listIndex_ = -1, newIndex_ = -1;
};

}  // namespace hx::forms
