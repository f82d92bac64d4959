// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/picture.h"

namespace hx::forms {

/// A button of a tool bar: a picture, a tool tip, a separator before it.
class ToolButton : public automation::Dispatch {
  public:
    ToolButton(std::string key, Picture picture) : key_(std::move(key)), picture_(std::move(picture)) {}
    [[nodiscard]] const std::string& key() const noexcept { return key_; }
    [[nodiscard]] const Picture& picture() const noexcept { return picture_; }
    [[nodiscard]] const std::string& toolTipText() const noexcept { return toolTipText_; }
    void setToolTipText(const std::string& text);
    [[nodiscard]] bool enabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled);
    bool separatorBefore = false;
    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::string key_;
    Picture picture_;
    std::string toolTipText_;
    bool enabled_ = true;
};

/// A row of buttons.
class ToolBar : public Control {
  public:
    using Control::Control;
    ToolButton& addButton(std::string key, Picture picture);
    [[nodiscard]] ToolButton& button(const automation::Variant& keyOrNumber);  ///< number from 1; errBadIndex
    [[nodiscard]] const std::vector<std::shared_ptr<ToolButton>>& buttons() const noexcept { return buttons_; }
    /// The user's click; nothing while the button is disabled.
    void click(ToolButton& button);
    Event<ToolButton&> buttonClickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<std::shared_ptr<ToolButton>> buttons_;
};

}  // namespace hx::forms
