// SPDX-License-Identifier: MIT
#include "forms/bar.h"

#include <algorithm>
#include <array>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/name_or_number.h"

namespace hx::forms {

using automation::Variant;

namespace {

bool isSeparator(const Tool* tool) { return tool->kind() == ToolKind::separator; }

void appendVisible(std::vector<Tool*>& shown, const Band& band) {
    for (const auto& tool : band.tools()) {
        if (tool->visible()) shown.push_back(tool.get());
    }
}

// What stands in the main band besides its menus, unless the band has a tool of that name itself.
void appendClosing(std::vector<Tool*>& shown, const Band& main, const Band& band) {
    for (const auto& tool : main.tools()) {
        const bool closes = tool->kind() == ToolKind::command || isSeparator(tool.get());
        const bool twice = std::ranges::any_of(
            band.tools(), [&](const auto& own) { return automation::equalIgnoreCase(own->name(), tool->name()); });
        if (tool->visible() && closes && !twice) shown.push_back(tool.get());
    }
}

// Separators stand between tools, one at a time.
std::vector<Tool*> tidied(const std::vector<Tool*>& tools) {
    std::vector<Tool*> result;
    for (Tool* tool : tools) {
        if (!isSeparator(tool) || (!result.empty() && !isSeparator(result.back()))) result.push_back(tool);
    }
    if (!result.empty() && isSeparator(result.back())) result.pop_back();
    return result;
}

// The bar's names of the modifier keys in a shortcut, and the entries that hold the user's.
struct Modifier {
    std::string_view name;
    std::int32_t entry;
};
constexpr std::array<Modifier, 3> modifiers{{{"Alt+", 42}, {"Control+", 43}, {"Shift+", 44}}};

}  // namespace

Band& Bar::addBand(std::string name) {
    bands_.push_back(std::make_shared<Band>(*this, std::move(name)));
    Band& band = *bands_.back();
    changed.raise("Bands");
    return band;
}

Band* Bar::findBand(std::string_view name) const {
    for (const auto& band : bands_) {
        if (automation::equalIgnoreCase(band->name(), name)) return band.get();
    }
    return nullptr;
}

Band& Bar::band(const Variant& nameOrNumber) const {
    return itemOf(name(), bands_, nameOrNumber, [this](std::string_view wanted) { return findBand(wanted); });
}

std::vector<Tool*> Bar::menuTools() const {
    std::vector<Tool*> menus;
    for (const auto& tool : mainBand().tools()) {
        if (tool->kind() == ToolKind::menu && tool->visible()) menus.push_back(tool.get());
    }
    return menus;
}

std::vector<Tool*> Bar::popUpTools(const Band& band) const {
    std::vector<Tool*> shown;
    appendVisible(shown, band);
    const Band* main = findBand(mainBand_);
    if (main != nullptr && main != &band) appendClosing(shown, *main, band);
    return tidied(shown);
}

std::vector<Tool*> Bar::subMenuTools(const Band& band) {
    std::vector<Tool*> shown;
    appendVisible(shown, band);
    return tidied(shown);
}

bool Bar::openBand(Band& band) {
    bool cancel = false;
    bandOpenEvent.raise(band, cancel);
    return !cancel;
}

// The tool that the menu bar shows goes before a template of the same name in another band.
void Bar::click(const std::string& toolName) {
    const Band* main = findBand(mainBand_);
    Tool* tool = main == nullptr ? nullptr : main->find(toolName);
    for (auto band = bands_.begin(); tool == nullptr && band != bands_.end(); ++band) tool = (*band)->own(toolName);
    if (tool == nullptr) automation::throwBadIndex(name(), Variant(toolName));
    const auto keep = tool->share();
    click(*tool);
}

std::string Bar::localisation(std::int32_t entry) const {
    for (const auto& [number, text] : localisation_) {
        if (number == entry) return text;
    }
    return {};
}

void Bar::setLocalisation(std::int32_t entry, const std::string& text) {
    const auto known = std::ranges::find(localisation_, entry, [](const auto& pair) { return pair.first; });
    if (known == localisation_.end()) localisation_.emplace_back(entry, text);
    else known->second = text;
}

std::string Bar::shortcutText(const Tool& tool) const {
    std::string text;
    std::string_view rest = tool.shortcut();
    for (bool found = true; found;) {
        found = false;
        for (const Modifier& modifier : modifiers) {
            if (!rest.starts_with(modifier.name)) continue;
            const std::string local = localisation(modifier.entry);
            text += local.empty() ? std::string(modifier.name) : local;
            rest.remove_prefix(modifier.name.size());
            found = true;
        }
    }
    return text + std::string(rest);
}

void Bar::clientAreaReported(double width, double height) {
    clientAreaWidth_ = width;
    clientAreaHeight_ = height;
    resizeEvent.raise();
}

namespace {

automation::ObjectRef bandOf(Bar& bar, const Variant& nameOrNumber) { return bar.sharePart(bar.band(nameOrNumber)); }
automation::ObjectRef mainBandOf(Bar& bar) { return bar.sharePart(bar.mainBand()); }
std::int32_t bandCountOf(Bar& bar) { return static_cast<std::int32_t>(bar.bands().size()); }
void clickTool(Bar& bar, const std::string& tool) { bar.click(tool); }

}  // namespace

const automation::MemberTable& Bar::members() const {
    using automation::indexed;
    using automation::property;
    static constexpr automation::Member rows[] = {
        indexed<&bandOf>("Bands", "A band by name, or by number from 0"),
        property<&bandCountOf>("BandCount", "The number of bands"),
        property<&mainBandOf>("MainBand", "The band shown as menu bar"),
        indexed<&Bar::localisation, &Bar::setLocalisation>("Localisation",
                                                           "Names of keys: 42 Alt, 43 Control, 44 Shift"),
        property<&Bar::clientAreaWidth>("ClientAreaWidth", "Width that the bands leave free, in twips"),
        property<&Bar::clientAreaHeight>("ClientAreaHeight", "Height that the bands leave free, in twips"),
        automation::method<&clickTool>("Click", "Clicks a tool by name, as the user does, also a disabled one"),
    };
    static const automation::MemberTable table{"Bar", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
