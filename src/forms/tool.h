// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "automation/dispatch.h"
#include "forms/event.h"
#include "forms/picture.h"

namespace hx::forms {

enum class ToolKind : std::int16_t { command = 0, menu = 1, separator = 2, title = 3 };

/// An entry of a band. Tools are shared: a copy in another band is a tool of its own.
class Tool : public automation::Dispatch {
  public:
    Tool(std::string name, ToolKind kind) : name_(std::move(name)), kind_(kind) {}
    [[nodiscard]] std::shared_ptr<Tool> copy() const;

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] ToolKind kind() const noexcept { return kind_; }
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption);
    /// The number of the caption's resource text; 0 for none.
    [[nodiscard]] std::int32_t resourceId() const noexcept { return resourceId_; }
    void setResourceId(std::int32_t id);
    [[nodiscard]] const std::string& category() const noexcept { return category_; }
    void setCategory(const std::string& category);
    [[nodiscard]] bool enabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool visible() const noexcept { return visible_; }
    void setVisible(bool visible);
    /// A key as "F9" or "Control+Delete"; empty for none. Bar::shortcutText gives it in the user's words.
    [[nodiscard]] const std::string& shortcut() const noexcept { return shortcut_; }
    void setShortcut(const std::string& shortcut);
    /// The band that a menu tool opens.
    [[nodiscard]] const std::string& subBand() const noexcept { return subBand_; }
    void setSubBand(const std::string& band);
    [[nodiscard]] const Picture& picture() const noexcept { return picture_; }
    void setPicture(const Picture& picture);

    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    template <class T>
    void assign(T& field, const T& value);
    std::string name_;
    ToolKind kind_;
    std::string caption_, category_, shortcut_, subBand_;
    Picture picture_;
    std::int32_t resourceId_ = 0;
    bool enabled_ = true, visible_ = true;
};

}  // namespace hx::forms
