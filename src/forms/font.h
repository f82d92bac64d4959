// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "automation/dispatch.h"
#include "forms/event.h"

namespace hx::forms {

/// A font as OLE's standard font object: size in points (fixed point, four decimals), weight 400 normal, 700 bold.
class Font : public automation::Dispatch {
  public:
    struct Values {
        std::string name = "Arial";
        double size = 8.25;
        std::int16_t charset = 0;
        std::int16_t weight = 400;
        bool italic = false;
        bool strikethrough = false;
        bool underline = false;
        friend bool operator==(const Values&, const Values&) = default;
    };

    [[nodiscard]] const Values& values() const noexcept { return values_; }
    void setValues(const Values& values);

    [[nodiscard]] const std::string& name() const noexcept { return values_.name; }
    void setName(const std::string& name);
    [[nodiscard]] double size() const noexcept { return values_.size; }
    /// Rounded to four decimals; a size that is not above 0 or above 2048 throws errOverflow.
    void setSize(double points);
    [[nodiscard]] std::int16_t charset() const noexcept { return values_.charset; }
    void setCharset(std::int16_t charset);
    [[nodiscard]] std::int16_t weight() const noexcept { return values_.weight; }
    void setWeight(std::int16_t weight);
    /// Weight above 550; setting it chooses 700 or 400.
    [[nodiscard]] bool bold() const noexcept { return values_.weight > 550; }
    void setBold(bool bold);
    [[nodiscard]] bool italic() const noexcept { return values_.italic; }
    void setItalic(bool italic);
    [[nodiscard]] bool strikethrough() const noexcept { return values_.strikethrough; }
    void setStrikethrough(bool strikethrough);
    [[nodiscard]] bool underline() const noexcept { return values_.underline; }
    void setUnderline(bool underline);

    /// Raised after any value has changed.
    Event<> changed;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    template <class T>
    void assign(T Values::*field, const T& value);
    Values values_;
};

}  // namespace hx::forms
