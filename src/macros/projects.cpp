#include <filesystem>
#include <memory>

#include "automation/text.h"
#include "macros/arguments.h"
#include "macros/globals.h"

namespace hx::macros {

namespace {

using lua::Engine;
using lua::Fields;
using lua::List;
using lua::Value;
using lua::Values;

Value nodes(Studio& studio) {
    List list;
    for (const Node& node : studio.nodes()) {
        list.emplace_back(Fields{{"key", node.key},
                                 {"parent", node.parent},
                                 {"caption", node.caption},
                                 {"image", node.image},
                                 {"tag", node.tag}});
    }
    return list;
}

Value selected(Studio& studio) {
    const std::string key = studio.selected();
    return key.empty() ? Value() : Value(key);
}

// A project that is being opened or closed can ask the user; what answers him must not put another in its place.
class Changing {
  public:
    explicit Changing(bool& changing) : changing_(changing) {
        if (changing_) throw automation::Error(automation::errFail, "A project is being opened or closed");
        changing_ = true;
    }
    ~Changing() { changing_ = false; }
    Changing(const Changing&) = delete;
    Changing& operator=(const Changing&) = delete;

  private:
    bool& changing_;
};

// A name that is its extension alone would make a hidden file.
void requireName(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename().string();
    if (!name.empty() && !automation::equalIgnoreCase(name, ".hxs")) return;
    throw automation::Error(automation::errFail, "The path '" + path + "' names no file");
}

void defineProject(Engine& engine, Studio& studio) {
    const auto busy = std::make_shared<bool>(false);
    engine.define("studio", "NewProject", [&studio, busy](Values given) {
        const Changing changing(*busy);
        const std::string path = Arguments(given).text(0);
        requireName(path);
        studio.newProject(path);
        return Value();
    });
    engine.define("studio", "OpenProject", [&studio, busy](Values given) {
        const Changing changing(*busy);
        studio.openProject(Arguments(given).text(0));
        return Value();
    });
    engine.define("studio", "CloseProject", [&studio, busy](Values) {
        const Changing changing(*busy);
        studio.closeProject();
        return Value();
    });
}

void defineExplorer(Engine& engine, Studio& studio) {
    engine.define("studio", "Nodes", [&studio](Values) { return nodes(studio); });
    engine.define("studio", "Selected", [&studio](Values) { return selected(studio); });
    engine.define("studio", "Select", [&studio](Values given) {
        studio.select(Arguments(given).text(0));
        return Value();
    });
}

/// What an event of a node does with the add-in.
using Event = void (*)(host::CHX4Extensibility&, const host::NodeEvent&, const Arguments&);

/// What the user does to a node with an event of it.
enum class Shown { asItIs, selected, expanded };

void show(Studio& studio, const std::string& key, Shown shown) {
    if (shown == Shown::selected) studio.select(key);
    if (shown == Shown::expanded) studio.showExpanded(key);
}

// "Click", and by the name of the interface "NodeClick". Mouse and keys act on the node that they select.
void defineEvent(Engine& engine, Studio& studio, const std::string& name, Shown shown, Event event) {
    const auto run = [&studio, shown, event](Values given) {
        const Arguments arguments(given);
        const auto addIn = studio.requireAddIn();
        const std::string key = arguments.text(0);
        const host::NodeEvent node = studio.eventOf(key);
        show(studio, key, shown);
        event(*addIn, node, arguments);
        return Value();
    };
    engine.define("studio", name, run);
    engine.define("studio", "Node" + name, run);
}

host::NodeMouse mouseOf(const Arguments& given) {
    return {given.number(1), given.number(2), given.real(3), given.real(4)};
}

void defineEvents(Engine& engine, Studio& studio) {
    const auto add = [&](const char* name, Shown shown, Event event) {
        defineEvent(engine, studio, name, shown, event);
    };
    add("Click", Shown::selected, [](auto& addIn, const auto& node, const auto&) { addIn.NodeClick(node); });
    add("DblClick", Shown::selected, [](auto& addIn, const auto& node, const auto&) { addIn.NodeDblClick(node); });
    add("Expand", Shown::expanded, [](auto& addIn, const auto& node, const auto&) { addIn.NodeExpand(node); });
    add("MouseDown", Shown::selected,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseDown(node, mouseOf(given)); });
    add("MouseMove", Shown::asItIs,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseMove(node, mouseOf(given)); });
    add("MouseUp", Shown::selected,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseUp(node, mouseOf(given)); });
    add("KeyDown", Shown::selected, [](auto& addIn, const auto& node, const auto& given) {
        addIn.NodeKeyDown(node, given.number(1), given.number(2));
    });
    add("KeyPress", Shown::selected,
        [](auto& addIn, const auto& node, const auto& given) { addIn.NodeKeyPress(node, given.number(1)); });
    add("KeyUp", Shown::selected, [](auto& addIn, const auto& node, const auto& given) {
        addIn.NodeKeyUp(node, given.number(1), given.number(2));
    });
}

void defineOtherMembers(Engine& engine, Studio& studio) {
    engine.define("studio", "StartupComplete", [&studio](Values) {
        studio.requireAddIn()->StartupComplete();
        return Value();
    });
    engine.define("studio", "Deactivate", [&studio](Values) {
        studio.requireAddIn()->Deactivate();
        return Value();
    });
    engine.define("studio", "GetMessage", [&studio](Values given) {
        const Arguments arguments(given);
        return Value(studio.requireAddIn()->GetMessage(arguments.text(0), arguments.text(1), arguments[2].toVariant()));
    });
}

}  // namespace

void defineGlobals(Engine& engine, Studio& studio) {
    defineProjects(engine, studio);
    defineAnswers(engine, studio);
    defineRecords(engine, studio);
    defineData(engine, studio);
}

void defineProjects(Engine& engine, Studio& studio) {
    defineProject(engine, studio);
    defineExplorer(engine, studio);
    defineEvents(engine, studio);
    defineOtherMembers(engine, studio);
    engine.defineGlobal("addin", [&studio] { return automation::Variant(automation::ObjectRef(studio.addIn())); });
    engine.defineGlobal("editor", [&studio] { return automation::Variant(studio.editorWindow()); });
}

}  // namespace hx::macros
