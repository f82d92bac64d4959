// SPDX-License-Identifier: MIT
#include "addin/connect.h"
#include "automation/member_rows.h"

namespace hx::addin {

namespace {

using automation::ObjectRef;

// An explorer that is handed over by name is one of the studio's objects, or what another add-in's Explorer gave.
host::ProjectExplorer* explorerOf(const automation::Variant& value) {
    if (value.isEmpty() || value.isNull()) return nullptr;
    const ObjectRef& object = value.asObject();
    if (!object) return nullptr;
    if (const auto* wrapped = dynamic_cast<ExplorerObject*>(object.get())) return &wrapped->explorer();
    if (auto* explorer = dynamic_cast<host::ProjectExplorer*>(object.get())) return explorer;
    throw automation::Error(automation::errTypeMismatch, "Type mismatch: a project explorer expected");
}

// The fourth object is ignored, whatever it is: a macro passes nil.
void initialize(Connect& connect, const std::string& projectName, const std::string& second,
                const automation::Variant& explorer, const automation::Variant&) {
    connect.Initialize(projectName, second, explorerOf(explorer), nullptr);
}

using NodeMember = void (Connect::*)(const host::NodeEvent&);
using MouseMember = void (Connect::*)(const host::NodeEvent&, const host::NodeMouse&);
using KeyMember = void (Connect::*)(const host::NodeEvent&, std::int16_t, std::int16_t);

template <NodeMember Event>
void onNode(Connect& connect, const std::string& owner, const std::string& key, const std::string& third) {
    (connect.*Event)({owner, key, third});
}

template <MouseMember Event>
void onMouse(Connect& connect, const std::string& owner, const std::string& key, const std::string& third,
             std::int16_t button, std::int16_t shift, double x, double y) {
    (connect.*Event)({owner, key, third}, {button, shift, x, y});
}

template <KeyMember Event>
void onKey(Connect& connect, const std::string& owner, const std::string& key, const std::string& third,
           std::int16_t code, std::int16_t shift) {
    (connect.*Event)({owner, key, third}, code, shift);
}

void selectNode(Connect& connect, const std::string& key) { connect.SelectNode(key); }

void nodeKeyPress(Connect& connect, const std::string& owner, const std::string& key, const std::string& third,
                  std::int32_t character) {
    connect.NodeKeyPress({owner, key, third}, character);
}

}  // namespace

const automation::MemberTable& Connect::members() const {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        method<&initialize>("Initialize", "Project name, unused text, explorer, unused object"),
        method<&Connect::StartupComplete>("StartupComplete", "The studio has started"),
        method<&Connect::Terminate>("Terminate", "The project closes: removes the nodes, closes the editor"),
        method<&Connect::Deactivate>("Deactivate", "Does nothing"),
        method<&onNode<&Connect::NodeClick>>("NodeClick", "Opens the editor and shows the node: owner, key, text"),
        method<&onNode<&Connect::NodeDblClick>>("NodeDblClick", "Brings the editor to the front: owner, key, text"),
        method<&onNode<&Connect::NodeExpand>>("NodeExpand", "Opens the editor: owner, key, text"),
        method<&onMouse<&Connect::NodeMouseDown>>("NodeMouseDown", "Owner, key, text, button, shift, x, y"),
        method<&onMouse<&Connect::NodeMouseMove>>("NodeMouseMove", "Owner, key, text, button, shift, x, y"),
        method<&onMouse<&Connect::NodeMouseUp>>("NodeMouseUp", "Owner, key, text, button, shift, x, y"),
        method<&onKey<&Connect::NodeKeyDown>>("NodeKeyDown", "Owner, key, text, key code, shift"),
        method<&nodeKeyPress>("NodeKeyPress", "Owner, key, text, character"),
        method<&onKey<&Connect::NodeKeyUp>>("NodeKeyUp", "Owner, key, text, key code, shift"),
        method<&Connect::GetMessage>("GetMessage", "Sender, message, parameter; always empty"),
        method<&Connect::OpenEditor>("OpenEditor", "Opens the editor, unless it is open"),
        method<&Connect::RefreshView>("RefreshView", "Closes and reopens the editor with its connection and nodes"),
        method<&selectNode>("SelectNode", "Makes the editor show the node of a key"),
        method<&Connect::ShowSelectedNode>("ShowSelectedNode", "Shows the explorer's node and the editor in front"),
        property<&Connect::LanguageChanged>("LanguageChanged", "Whether the language has been read"),
        property<&Connect::ProjectPath>("ProjectPath", "The project's database file"),
        property<&Connect::ProjectName>("ProjectName", "The project's name"),
        property<&Connect::Text1, &Connect::setText1>("Text1", "A text for the studio's use"),
        property<&Connect::Text2, &Connect::setText2>("Text2", "A text for the studio's use"),
        property<&Connect::Text3, &Connect::setText3>("Text3", "A text for the studio's use"),
        property<&Connect::Explorer>("Explorer", "The project explorer, empty while there is none"),
        property<&Connect::HostValue>("HostValue", "The studio window that receives editor windows"),
    };
    static constexpr automation::MemberTable table{"Connect", rows};
    return table;
}

}  // namespace hx::addin
