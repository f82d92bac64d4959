// SPDX-License-Identifier: MIT
#include "forms/font.h"

#include <cmath>

#include "automation/member_rows.h"

namespace hx::forms {

namespace {

constexpr double fixedPoint = 10000;  // a size has four decimals
constexpr double largestSize = 2048;
constexpr std::int16_t normalWeight = 400, boldWeight = 700;

double checkedSize(double points) {
    const double size = std::round(points * fixedPoint) / fixedPoint;
    if (size > 0 && size <= largestSize) return size;
    throw automation::Error(automation::errOverflow, "Overflow: the size of a font");
}

}  // namespace

template <class T>
void Font::assign(T Values::*field, const T& value) {
    if (values_.*field == value) return;
    values_.*field = value;
    changed.raise();
}

void Font::setValues(const Values& values) {
    Values checked = values;
    checked.size = checkedSize(values.size);
    if (values_ == checked) return;
    values_ = checked;
    changed.raise();
}

void Font::setName(const std::string& name) { assign(&Values::name, name); }
void Font::setSize(double points) { assign(&Values::size, checkedSize(points)); }
void Font::setCharset(std::int16_t charset) { assign(&Values::charset, charset); }
void Font::setWeight(std::int16_t weight) { assign(&Values::weight, weight); }
void Font::setItalic(bool italic) { assign(&Values::italic, italic); }
void Font::setStrikethrough(bool strikethrough) { assign(&Values::strikethrough, strikethrough); }
void Font::setUnderline(bool underline) { assign(&Values::underline, underline); }

void Font::setBold(bool bold) {
    if (bold != this->bold()) setWeight(bold ? boldWeight : normalWeight);
}

const automation::MemberTable& Font::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Font::name, &Font::setName>("Name", "The font's family"),
        property<&Font::size, &Font::setSize>("Size", "Points, with four decimals"),
        property<&Font::charset, &Font::setCharset>("Charset", "The number of its character set"),
        property<&Font::weight, &Font::setWeight>("Weight", "400 normal, 700 bold"),
        property<&Font::bold, &Font::setBold>("Bold", "A weight above 550"),
        property<&Font::italic, &Font::setItalic>("Italic", "Slanted letters"),
        property<&Font::strikethrough, &Font::setStrikethrough>("Strikethrough", "A line through the letters"),
        property<&Font::underline, &Font::setUnderline>("Underline", "A line under the letters"),
    };
    static constexpr automation::MemberTable table{"Font", rows};
    return table;
}

}  // namespace hx::forms
