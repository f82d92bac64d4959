// SPDX-License-Identifier: MIT
#include <array>
#include <filesystem>
#include <memory>

#include "automation/restore.h"
#include "automation/text.h"
#include "host/project_file.h"
#include "hosting/file_bytes.h"
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
automation::Restore<bool> change(bool& changing) {
    if (changing) throw automation::Error(automation::errFail, "A project is being opened or closed");
    return {changing, true};
}

// A name that is its extension alone would make a hidden file.
void requireName(const std::string& path) {
    const std::string name = hosting::fileSystemPath(path).filename().string();
    if (!name.empty() && !automation::equalIgnoreCase(name, host::projectExtension)) return;
    throw automation::Error(automation::errFail, "The path '" + path + "' names no file");
}

void defineProject(Engine& engine, Studio& studio, const lua::MacroFiles& files) {
    const auto busy = std::make_shared<bool>(false);
    engine.define("studio", "NewProject", [&studio, &files, busy](Values given) {
        const auto changing = change(*busy);
        const std::string name = Arguments(given).text(0);
        requireName(name);
        const std::string path = studio.pathOf(name);
        (void)files.toRead(path);
        studio.newProject(path);
        return Value();
    });
    engine.define("studio", "OpenProject", [&studio, &files, busy](Values given) {
        const auto changing = change(*busy);
        const std::string file = studio.fileOf(Arguments(given).text(0));
        (void)files.toRead(file);
        studio.openProject(file);
        return Value();
    });
    engine.define("studio", "CloseProject", [&studio, busy](Values) {
        const auto changing = change(*busy);
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

/// What the user does to a node before an event of it; `reached`: clicks it, unless he did so last.
enum class Before { nothing, clicked, reached, expanded };

/// The user's hand on the explorer.
class Hand {
  public:
    explicit Hand(Studio& studio) : studio_(studio) {}
    void prepare(host::CHX4Extensibility& addIn, const host::NodeEvent& node, Before before) {
        if (before == Before::expanded) studio_.showExpanded(node.key);
        const bool there = clicked_ == node.key && studio_.selected() == node.key;
        if (before == Before::clicked || (before == Before::reached && !there)) click(addIn, node);
    }

  private:
    void click(host::CHX4Extensibility& addIn, const host::NodeEvent& node) {
        studio_.select(node.key);
        clicked_ = node.key;
        addIn.NodeClick(node);
    }
    Studio& studio_;
    std::string clicked_;
};

/// An event by its name, "KeyDown", and by that of the interface, "NodeKeyDown".
struct EventRow {
    const char* name;
    Before before;
    Event event;
};

void defineEvent(Engine& engine, Studio& studio, const std::shared_ptr<Hand>& hand, const EventRow& row) {
    const auto run = [&studio, hand, row](Values given) {
        const Arguments arguments(given);
        const auto addIn = studio.requireAddIn();
        const host::NodeEvent node = studio.eventOf(arguments.text(0));
        hand->prepare(*addIn, node, row.before);
        if (row.event != nullptr) row.event(*addIn, node, arguments);
        return Value();
    };
    const std::string name = row.name;
    engine.define("studio", name, run);
    engine.define("studio", "Node" + name, run);
}

host::NodeMouse mouseOf(const Arguments& given) {
    return {given.number(1), given.number(2), given.real(3), given.real(4)};
}

constexpr auto eventRows = std::to_array<EventRow>({
    {"Click", Before::clicked, nullptr},
    {"DblClick", Before::reached, [](auto& addIn, const auto& node, const auto&) { addIn.NodeDblClick(node); }},
    {"Expand", Before::expanded, [](auto& addIn, const auto& node, const auto&) { addIn.NodeExpand(node); }},
    {"MouseDown", Before::reached,
     [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseDown(node, mouseOf(given)); }},
    {"MouseMove", Before::nothing,
     [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseMove(node, mouseOf(given)); }},
    {"MouseUp", Before::reached,
     [](auto& addIn, const auto& node, const auto& given) { addIn.NodeMouseUp(node, mouseOf(given)); }},
    {"KeyDown", Before::reached,
     [](auto& addIn, const auto& node, const auto& given) {
         addIn.NodeKeyDown(node, given.number(1), given.number(2));
     }},
    {"KeyPress", Before::reached,
     [](auto& addIn, const auto& node, const auto& given) { addIn.NodeKeyPress(node, given.number(1)); }},
    {"KeyUp", Before::reached,
     [](auto& addIn, const auto& node, const auto& given) { addIn.NodeKeyUp(node, given.number(1), given.number(2)); }},
});

void defineEvents(Engine& engine, Studio& studio) {
    const auto hand = std::make_shared<Hand>(studio);
    for (const EventRow& row : eventRows) defineEvent(engine, studio, hand, row);
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

void defineGlobals(Engine& engine, Studio& studio, const lua::MacroFiles& files) {
    defineProjects(engine, studio, files);
    defineAnswers(engine, studio);
    defineRecords(engine, studio);
    defineData(engine, studio);
}

void defineProjects(Engine& engine, Studio& studio, const lua::MacroFiles& files) {
    defineProject(engine, studio, files);
    defineExplorer(engine, studio);
    defineEvents(engine, studio);
    defineOtherMembers(engine, studio);
    engine.defineGlobal("addin", [&studio] { return automation::Variant(automation::ObjectRef(studio.addIn())); });
    engine.defineGlobal("editor", [&studio] { return automation::Variant(studio.editorWindow()); });
}

}  // namespace hx::macros
