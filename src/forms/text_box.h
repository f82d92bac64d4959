// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "forms/control.h"

namespace hx::forms {

/// Background colours a field can ask for: the system's own.
enum class SystemColor : std::int32_t { window = 5, buttonFace = 15 };

/// A field of text. Positions count characters. setText raises changeEvent, also when typed by the user.
class TextBox : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(const std::string& text);
    [[nodiscard]] std::int32_t selStart() const noexcept { return selStart_; }
    void setSelStart(std::int32_t position);
    [[nodiscard]] std::int32_t selLength() const noexcept { return selLength_; }
    void setSelLength(std::int32_t length);
    [[nodiscard]] bool locked() const noexcept { return locked_; }
    void setLocked(bool locked) { assign(locked_, locked, "Locked"); }
    [[nodiscard]] bool multiLine() const noexcept { return multiLine_; }
    void setMultiLine(bool multiLine) { assign(multiLine_, multiLine, "MultiLine"); }
    [[nodiscard]] SystemColor backColor() const noexcept { return backColor_; }
    void setBackColor(SystemColor color);  ///< another number throws errOverflow
    /// The caret as the view has it; raises nothing. Reported before the text that it belongs to.
    void caretReported(std::int32_t start, std::int32_t length) noexcept;
    Event<> changeEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::string text_;
    std::int32_t selStart_ = 0, selLength_ = 0;
    bool locked_ = false, multiLine_ = false;
    SystemColor backColor_ = SystemColor::window;
};

}  // namespace hx::forms
