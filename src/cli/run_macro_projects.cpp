#include <limits>

#include "cli/run_macro_arguments.h"
#include "cli/run_macro_globals.h"

namespace hx::cli {

namespace {

using lua::Engine;
using lua::Fields;
using lua::List;
using lua::Value;
using lua::Values;
using Arguments = MacroArguments;

constexpr std::int32_t allLevels = std::numeric_limits<std::int32_t>::max();

Value nodes(MacroStudio& studio) {
    const headless::ProjectExplorer& explorer = studio.host().explorer;
    const host::NodeTree& tree = explorer.tree();
    List list;
    for (const std::string& key : explorer.childKeys("", allLevels)) {
        const auto id = tree.find(key);
        list.emplace_back(Fields{{"key", key},
                                 {"parent", tree.key(tree.parent(id))},
                                 {"caption", tree.caption(id)},
                                 {"image", tree.image(id)},
                                 {"tag", tree.tag(id)}});
    }
    return list;
}

Value selected(MacroStudio& studio) {
    const std::string key = studio.host().explorer.selectedNode().key;
    return key.empty() ? Value() : Value(key);
}

void defineProject(Engine& engine, MacroStudio& studio) {
    engine.define("studio", "NewProject", [&studio](Values given) {
        studio.newProject(Arguments(given).text(0));
        return Value();
    });
    engine.define("studio", "OpenProject", [&studio](Values given) {
        studio.openProject(Arguments(given).text(0));
        return Value();
    });
    engine.define("studio", "CloseProject", [&studio](Values) {
        studio.closeProject();
        return Value();
    });
}

void defineExplorer(Engine& engine, MacroStudio& studio) {
    engine.define("studio", "Nodes", [&studio](Values) { return nodes(studio); });
    engine.define("studio", "Selected", [&studio](Values) { return selected(studio); });
    engine.define("studio", "Select", [&studio](Values given) {
        studio.host().explorer.select(Arguments(given).text(0));
        return Value();
    });
}

/// What an event of a node does with the add-in.
using Event = void (*)(addin::Connect&, const host::NodeEvent&, const Arguments&);

// "Click", and by the name of the interface "NodeClick". Mouse and keys act on the node that they select.
void defineEvent(Engine& engine, MacroStudio& studio, const std::string& name, bool selects, Event event) {
    const auto run = [&studio, selects, event](Values given) {
        const Arguments arguments(given);
        addin::Connect& addIn = studio.requireAddIn();
        const std::string key = arguments.text(0);
        const host::NodeEvent node = studio.host().explorer.eventOf(key);
        if (selects) studio.host().explorer.select(key);
        event(addIn, node, arguments);
        return Value();
    };
    engine.define("studio", name, run);
    engine.define("studio", "Node" + name, run);
}

host::NodeMouse mouseOf(const Arguments& given) {
    return {given.number(1), given.number(2), given.real(3), given.real(4)};
}

void defineEvents(Engine& engine, MacroStudio& studio) {
    const auto add = [&](const char* name, bool selects, Event event) {
        defineEvent(engine, studio, name, selects, event);
    };
    add("Click", true, [](auto& addIn, const auto& node, const auto&) { addIn.NodeClick(node); });
    add("DblClick", true, [](auto& addIn, const auto& node, const auto&) { addIn.NodeDblClick(node); });
    add("Expand", false, [](auto& addIn, const auto& node, const auto&) { addIn.NodeExpand(node); });
    add("MouseDown", true,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseDown(node, mouseOf(given)); });
    add("MouseMove", false,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseMove(node, mouseOf(given)); });
    add("MouseUp", true,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseUp(node, mouseOf(given)); });
    add("KeyDown", true, [](auto& addIn, const auto& node, const auto& given) {
        addIn.NodeKeyDown(node, given.number(1), given.number(2));
    });
    add("KeyPress", true,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeKeyPress(node, given.number(1)); });
    add("KeyUp", true, [](auto& addIn, const auto& node, const auto& given) {
        addIn.NodeKeyUp(node, given.number(1), given.number(2));
    });
}

void defineOtherMembers(Engine& engine, MacroStudio& studio) {
    engine.define("studio", "StartupComplete", [&studio](Values) {
        studio.requireAddIn().StartupComplete();
        return Value();
    });
    engine.define("studio", "Deactivate", [&studio](Values) {
        studio.requireAddIn().Deactivate();
        return Value();
    });
    engine.define("studio", "GetMessage", [&studio](Values given) {
        const Arguments arguments(given);
        return Value(studio.requireAddIn().GetMessage(arguments.text(0), arguments.text(1), arguments[2].toVariant()));
    });
}

}  // namespace

void defineProjects(Engine& engine, MacroStudio& studio) {
    defineProject(engine, studio);
    defineExplorer(engine, studio);
    defineEvents(engine, studio);
    defineOtherMembers(engine, studio);
    engine.defineGlobal("addin", [&studio] { return automation::Variant(automation::ObjectRef(studio.addIn())); });
    engine.defineGlobal("editor",
                        [&studio] { return automation::Variant(automation::ObjectRef(studio.editorWindow())); });
}

}  // namespace hx::cli
