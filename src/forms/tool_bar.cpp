// SPDX-License-Identifier: MIT
#include "forms/tool_bar.h"

#include <algorithm>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/name_or_number.h"

namespace hx::forms {

using automation::Variant;

void ToolButton::setToolTipText(const std::string& text) {
    if (toolTipText_ == text) return;
    toolTipText_ = text;
    changed.raise();
}

void ToolButton::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    changed.raise();
}

const automation::MemberTable& ToolButton::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&ToolButton::key>("Key", "The button's name"),
        property<&ToolButton::toolTipText, &ToolButton::setToolTipText>("ToolTipText",
                                                                        "Shown when the mouse rests on it"),
        property<&ToolButton::enabled, &ToolButton::setEnabled>("Enabled", "Whether it can be clicked"),
    };
    static constexpr automation::MemberTable table{"ToolButton", rows};
    return table;
}

ToolButton& ToolBar::addButton(std::string key, Picture picture) {
    buttons_.push_back(std::make_shared<ToolButton>(std::move(key), std::move(picture)));
    ToolButton& button = *buttons_.back();
    changed.raise("Buttons");
    return button;
}

ToolButton& ToolBar::button(const Variant& keyOrNumber) {
    const auto find = [this](std::string_view key) {
        const auto found = std::ranges::find_if(
            buttons_, [&](const auto& button) { return automation::equalIgnoreCase(button->key(), key); });
        return found == buttons_.end() ? nullptr : found->get();
    };
    return itemOf(name(), buttons_, keyOrNumber, find, 1);
}

void ToolBar::click(ToolButton& button) {
    if (button.enabled()) buttonClickEvent.raise(button);
}

namespace {

automation::ObjectRef buttonOf(ToolBar& bar, const Variant& keyOrNumber) { return bar.button(keyOrNumber).share(); }
std::int32_t buttonCountOf(ToolBar& bar) { return static_cast<std::int32_t>(bar.buttons().size()); }
void clickOn(ToolBar& bar, const Variant& keyOrNumber) { bar.click(bar.button(keyOrNumber)); }

}  // namespace

const automation::MemberTable& ToolBar::members() const {
    static constexpr automation::Member rows[] = {
        automation::indexed<&buttonOf>("Buttons", "A button by key, or by number from 1"),
        automation::property<&buttonCountOf>("ButtonCount", "The number of buttons"),
        automation::method<&clickOn>("Click", "Clicks a button, by key or number; nothing while it is disabled"),
    };
    static const automation::MemberTable table{"ToolBar", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
