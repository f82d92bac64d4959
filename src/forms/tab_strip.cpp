// SPDX-License-Identifier: MIT
#include "forms/tab_strip.h"

#include "automation/member_rows.h"

namespace hx::forms {

namespace {

constexpr double outOfSight = -75000;

}  // namespace

TabStrip::TabStrip(std::string name, std::size_t tabs) : Control(std::move(name)) {
    for (std::size_t i = 0; i < tabs; ++i) {
        auto page = std::make_shared<Frame>(this->name() + "Page" + std::to_string(i));
        page->setContainer(this);
        if (i > 0) page->setLeft(outOfSight);
        pages_.push_back(std::move(page));
    }
}

TabStrip::~TabStrip() {
    for (const auto& page : pages_) page->leaveForm();
}

Frame& TabStrip::requirePage(std::int16_t tab) const {
    if (tab < 0 || tab >= tabs()) automation::throwBadIndex(name(), automation::Variant(tab));
    return *pages_[static_cast<std::size_t>(tab)];
}

Frame& TabStrip::page(std::int16_t tab) const { return requirePage(tab); }
const std::string& TabStrip::tabCaption(std::int16_t tab) const { return requirePage(tab).caption(); }

void TabStrip::setTabCaption(std::int16_t tab, const std::string& caption) {
    Frame& page = requirePage(tab);
    if (page.caption() == caption) return;
    page.setCaption(caption);
    changed.raise("TabCaption");
}

void TabStrip::setTab(std::int16_t tab) {
    Frame& shown = requirePage(tab);
    if (current_ == tab) return;
    const auto keep = share();
    Frame& hidden = requirePage(current_);
    hidden.setLeft(hidden.left() + outOfSight);
    shown.setLeft(shown.left() - outOfSight);
    assign(current_, tab, "Tab");
    clickEvent.raise();
}

namespace {

automation::ObjectRef pageOf(TabStrip& strip, std::int16_t tab) { return strip.sharePart(strip.page(tab)); }

}  // namespace

const automation::MemberTable& TabStrip::members() const {
    using automation::indexed;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&TabStrip::tab, &TabStrip::setTab>("Tab", "The page that is shown, from 0"),
        property<&TabStrip::tabs>("Tabs", "The number of pages"),
        indexed<&TabStrip::tabCaption, &TabStrip::setTabCaption>("TabCaption", "The caption of a page, from 0"),
        indexed<&pageOf>("Pages", "A page as container of controls, from 0"),
    };
    static const automation::MemberTable table{"TabStrip", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
