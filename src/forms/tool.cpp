// SPDX-License-Identifier: MIT
#include "forms/tool.h"

#include "automation/member_rows.h"

namespace hx::forms {

template <class T>
void Tool::assign(T& field, const T& value) {
    if (field == value) return;
    field = value;
    changed.raise();
}

std::shared_ptr<Tool> Tool::copy() const {
    auto tool = std::make_shared<Tool>(name_, kind_);
    tool->caption_ = caption_;
    tool->category_ = category_;
    tool->shortcut_ = shortcut_;
    tool->subBand_ = subBand_;
    tool->picture_ = picture_;
    tool->resourceId_ = resourceId_;
    tool->enabled_ = enabled_;
    tool->visible_ = visible_;
    return tool;
}

void Tool::setCaption(const std::string& caption) { assign(caption_, caption); }
void Tool::setResourceId(std::int32_t id) { assign(resourceId_, id); }
void Tool::setCategory(const std::string& category) { assign(category_, category); }
void Tool::setEnabled(bool enabled) { assign(enabled_, enabled); }
void Tool::setVisible(bool visible) { assign(visible_, visible); }
void Tool::setShortcut(const std::string& shortcut) { assign(shortcut_, shortcut); }
void Tool::setSubBand(const std::string& band) { assign(subBand_, band); }
void Tool::setPicture(const Picture& picture) { assign(picture_, picture); }

const automation::MemberTable& Tool::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Tool::name>("Name", "The tool's name"),
        property<&Tool::kind>("Kind", "0 command, 1 menu, 2 separator, 3 title"),
        property<&Tool::caption, &Tool::setCaption>("Caption", "Its text; \"&\" marks the key of access"),
        property<&Tool::resourceId, &Tool::setResourceId>("ResourceID", "The number of the caption's text; 0 for none"),
        property<&Tool::category, &Tool::setCategory>("Category", "Decides on its shortcut key"),
        property<&Tool::enabled, &Tool::setEnabled>("Enabled", "Whether it can be chosen"),
        property<&Tool::visible, &Tool::setVisible>("Visible", "Whether it is shown"),
        property<&Tool::shortcut, &Tool::setShortcut>("Shortcut", "A key as \"F9\" or \"Control+Delete\""),
        property<&Tool::subBand, &Tool::setSubBand>("SubBand", "The band that a menu opens"),
    };
    static constexpr automation::MemberTable table{"Tool", rows};
    return table;
}

}  // namespace hx::forms
