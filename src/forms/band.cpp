// SPDX-License-Identifier: MIT
#include "forms/band.h"

#include <algorithm>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/bar.h"
#include "forms/name_or_number.h"

namespace hx::forms {

using automation::Variant;

Tool* Band::own(std::string_view name) const {
    for (const auto& tool : tools_) {
        if (automation::equalIgnoreCase(tool->name(), name)) return tool.get();
    }
    return nullptr;
}

// A band that opens itself, directly or not, is searched once.
Tool* Band::find(std::string_view name, Path& visited) const {
    if (std::ranges::find(visited, this) != visited.end()) return nullptr;
    visited.push_back(this);
    if (Tool* tool = own(name)) return tool;
    for (const auto& tool : tools_) {
        if (tool->kind() != ToolKind::menu) continue;
        const Band* opened = bar_.findBand(tool->subBand());
        Tool* found = opened == nullptr ? nullptr : opened->find(name, visited);
        if (found != nullptr) return found;
    }
    return nullptr;
}

Tool* Band::find(std::string_view name) const {
    Path visited;
    return find(name, visited);
}

Tool& Band::tool(const Variant& nameOrNumber) const {
    return itemOf(name_, tools_, nameOrNumber, [this](std::string_view wanted) { return find(wanted); });
}

Tool& Band::add(std::string name, ToolKind kind) {
    auto tool = std::make_shared<Tool>(std::move(name), kind);
    Tool& added = *tool;
    insert(tools_.size(), std::move(tool));
    return added;
}

void Band::insert(std::size_t position, std::shared_ptr<Tool> tool) {
    if (position > tools_.size()) {
        automation::throwBadIndex(name_, Variant(static_cast<std::int32_t>(position)));
    }
    tools_.insert(tools_.begin() + static_cast<std::ptrdiff_t>(position), std::move(tool));
    toolsChanged.raise();
}

void Band::remove(std::string_view name) {
    const Tool* tool = own(name);
    if (tool == nullptr) automation::throwBadIndex(name_, Variant(name));
    const auto place = std::ranges::find(tools_, tool, [](const auto& owned) { return owned.get(); });
    const auto keep = *place;  // until everybody has heard of it
    tools_.erase(place);
    toolsChanged.raise();
}

namespace {

automation::ObjectRef toolOf(Band& band, const Variant& nameOrNumber) { return band.tool(nameOrNumber).share(); }
std::int32_t toolCountOf(Band& band) { return static_cast<std::int32_t>(band.tools().size()); }

}  // namespace

const automation::MemberTable& Band::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&Band::name>("Name", "The band's name"),
        automation::indexed<&toolOf>("Tools", "A tool by name, also of the bands that it opens, or by number from 0"),
        automation::property<&toolCountOf>("ToolCount", "The number of its own tools"),
        automation::property<&Band::height>("Height", "Its height as shown, in twips"),
    };
    static constexpr automation::MemberTable table{"Band", rows};
    return table;
}

}  // namespace hx::forms
