// SPDX-License-Identifier: MIT
#include "forms/pop_up_menu.h"

#include "automation/error.h"
#include "automation/text.h"

namespace hx::forms {

namespace {

using Path = std::vector<const Band*>;
using Tools = std::vector<Tool*>;

Tool* find(Bar& bar, const Tools& tools, std::string_view name, Path& open);

// Opens the band of a menu as the user does by pointing at it.
Tool* findBelow(Bar& bar, Tool& menu, std::string_view name, Path& open) {
    bar.menuOpening(menu);
    Band& band = bar.band(automation::Variant(menu.subBand()));
    for (const Band* opened : open) {
        if (opened == &band) return nullptr;
    }
    if (!bar.openBand(band)) return nullptr;
    open.push_back(&band);
    return find(bar, Bar::subMenuTools(band), name, open);
}

Tool* find(Bar& bar, const Tools& tools, std::string_view name, Path& open) {
    for (Tool* tool : tools) {
        const bool clickable = tool->kind() == ToolKind::command;
        if (clickable && automation::equalIgnoreCase(tool->name(), name)) return tool;
    }
    for (Tool* tool : tools) {
        if (tool->kind() != ToolKind::menu || !tool->enabled() || tool->subBand().empty()) continue;
        if (Tool* found = findBelow(bar, *tool, name, open)) return found;
    }
    return nullptr;
}

}  // namespace

std::vector<PopUp::Entry> entriesOf(const Bar& bar, const Band& band) {
    std::vector<PopUp::Entry> entries;
    for (const Tool* tool : bar.popUpTools(band)) {
        entries.push_back({tool->name(), tool->caption(), tool->enabled()});
    }
    return entries;
}

std::shared_ptr<Tool> shownTool(Bar& bar, const Band& band, std::string_view name) {
    Path open{&band};
    Tool* const tool = find(bar, bar.popUpTools(band), name, open);
    if (tool == nullptr) {
        throw automation::Error(automation::errBadIndex, "The menu of the band \"" + band.name() +
                                                             "\" does not show a tool \"" + std::string(name) + "\"");
    }
    return std::static_pointer_cast<Tool>(tool->share());
}

}  // namespace hx::forms
