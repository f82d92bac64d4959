#include "adapters/headless/pop_up_menu.h"

#include "automation/error.h"
#include "automation/text.h"

namespace hx::headless {

namespace {

using Path = std::vector<const forms::Band*>;

forms::Tool* find(forms::Bar& bar, const forms::Band& band, std::string_view name, Path& open);

// Opens the band of a menu as the user does by pointing at it.
forms::Tool* findBelow(forms::Bar& bar, forms::Tool& menu, std::string_view name, Path& open) {
    bar.menuOpening(menu);
    forms::Band& band = bar.band(automation::Variant(menu.subBand()));
    for (const forms::Band* opened : open) {
        if (opened == &band) return nullptr;
    }
    return bar.openBand(band) ? find(bar, band, name, open) : nullptr;
}

forms::Tool* find(forms::Bar& bar, const forms::Band& band, std::string_view name, Path& open) {
    open.push_back(&band);
    const auto tools = bar.popUpTools(band);
    for (forms::Tool* tool : tools) {
        const bool clickable = tool->kind() == forms::ToolKind::command;
        if (clickable && automation::equalIgnoreCase(tool->name(), name)) return tool;
    }
    for (forms::Tool* tool : tools) {
        if (tool->kind() != forms::ToolKind::menu || !tool->enabled() || tool->subBand().empty()) continue;
        if (forms::Tool* found = findBelow(bar, *tool, name, open)) return found;
    }
    return nullptr;
}

}  // namespace

std::vector<PopUp::Entry> entriesOf(const forms::Bar& bar, const forms::Band& band) {
    std::vector<PopUp::Entry> entries;
    for (const forms::Tool* tool : bar.popUpTools(band)) {
        entries.push_back({tool->name(), tool->caption(), tool->enabled()});
    }
    return entries;
}

std::shared_ptr<forms::Tool> shownTool(forms::Bar& bar, const forms::Band& band, std::string_view name) {
    Path open;
    forms::Tool* const tool = find(bar, band, name, open);
    if (tool == nullptr) {
        throw automation::Error(automation::errBadIndex, "The menu of the band \"" + band.name() +
                                                             "\" does not show a tool \"" + std::string(name) + "\"");
    }
    return std::static_pointer_cast<forms::Tool>(tool->share());
}

}  // namespace hx::headless
