// SPDX-License-Identifier: MIT
#include "forms/status_bar.h"

#include "automation/member_rows.h"

namespace hx::forms {

void Panel::setText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    changed.raise();
}

const automation::MemberTable& Panel::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&Panel::text, &Panel::setText>("Text", "What the panel shows"),
    };
    static constexpr automation::MemberTable table{"Panel", rows};
    return table;
}

StatusBar::StatusBar(std::string name, std::size_t panels) : Control(std::move(name)) {
    for (std::size_t i = 0; i < panels; ++i) panels_.push_back(std::make_shared<Panel>());
}

Panel& StatusBar::panel(std::int32_t number) {
    if (number < 1 || number > panelCount()) automation::throwBadIndex(name(), automation::Variant(number));
    return *panels_[static_cast<std::size_t>(number - 1)];
}

namespace {

automation::ObjectRef panelOf(StatusBar& bar, std::int32_t number) { return bar.panel(number).share(); }

}  // namespace

const automation::MemberTable& StatusBar::members() const {
    static constexpr automation::Member rows[] = {
        automation::indexed<&panelOf>("Panels", "A panel by its number from 1"),
        automation::property<&StatusBar::panelCount>("PanelCount", "The number of panels"),
    };
    static const automation::MemberTable table{"StatusBar", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
