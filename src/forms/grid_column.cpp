// SPDX-License-Identifier: MIT
#include "forms/grid_column.h"

#include "automation/member_rows.h"
#include "forms/known_value.h"

namespace hx::forms {

Column::Column(std::string dataField) : dataField_(std::move(dataField)), caption_(dataField_) {
    valueItems_.changed.connect([this] { changed.raise("ValueItems"); });
}

template <class T>
void Column::assign(T& field, const T& value, std::string_view property) {
    if (field == value) return;
    field = value;
    changed.raise(property);
}

void Column::setCaption(const std::string& caption) { assign(caption_, caption, "Caption"); }
void Column::setWidth(double twips) { assign(width_, requireLength(twips), "Width"); }
void Column::setVisible(bool visible) { assign(visible_, visible, "Visible"); }
void Column::setAllowSizing(bool allow) { assign(allowSizing_, allow, "AllowSizing"); }
void Column::setButton(bool button) { assign(button_, button, "Button"); }
void Column::setButtonPicture(const Picture& picture) { assign(buttonPicture_, picture, "ButtonPicture"); }
void Column::setLocked(bool locked) { assign(locked_, locked, "Locked"); }

void Column::setOrder(std::int16_t order) {
    if (order < 0) throw automation::Error(automation::errOverflow, "Overflow: the order of a column");
    assign(order_, order, "Order");
}

const automation::MemberTable& Column::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Column::dataField>("DataField", "The field of the recordset that it shows"),
        property<&Column::caption, &Column::setCaption>("Caption", "The text in its header"),
        property<&Column::width, &Column::setWidth>("Width", "Width in twips"),
        property<&Column::visible, &Column::setVisible>("Visible", "Whether it is shown"),
        property<&Column::allowSizing, &Column::setAllowSizing>("AllowSizing", "Whether the user may change its width"),
        property<&Column::order, &Column::setOrder>("Order", "Its place in the display, from 0"),
        property<&Column::button, &Column::setButton>("Button", "Whether its current cell has a button"),
        property<&Column::locked, &Column::setLocked>("Locked", "Whether it cannot be edited"),
    };
    static constexpr automation::MemberTable table{"Column", rows};
    return table;
}

void Split::setSize(double twips) {
    if (size_ == requireLength(twips)) return;
    size_ = twips;
    changed.raise();
}

const automation::MemberTable& Split::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&Split::size, &Split::setSize>("Size", "Width in twips; 0 shows nothing of it"),
    };
    static constexpr automation::MemberTable table{"Split", rows};
    return table;
}

}  // namespace hx::forms
