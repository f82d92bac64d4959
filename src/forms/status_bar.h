// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace hx::forms {

/// One field of a status bar.
class Panel : public automation::Dispatch {
  public:
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(const std::string& text);
    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::string text_;
};

/// A status line with a fixed number of panels, counted from 1.
class StatusBar : public Control {
  public:
    StatusBar(std::string name, std::size_t panels);
    [[nodiscard]] Panel& panel(std::int32_t number);  ///< errBadIndex
    [[nodiscard]] std::int32_t panelCount() const noexcept { return static_cast<std::int32_t>(panels_.size()); }
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<std::shared_ptr<Panel>> panels_;
};

}  // namespace hx::forms
