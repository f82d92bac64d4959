#include "addin/explorer_object.h"

#include "automation/member_rows.h"

namespace hx::addin {

namespace {

forms::WindowHandle hostWindow(ExplorerObject& object) { return object.explorer().hostWindow(); }

std::string selectedKey(ExplorerObject& object) { return object.explorer().selectedNode().key; }

void addNode(ExplorerObject& object, const std::string& parent, const std::string& caption, const std::string& key,
             const std::string& tag, const std::string& image) {
    host::NewNode node;
    node.parent = parent;
    node.caption = caption;
    node.key = key;
    node.tag = tag;
    node.image = image;
    object.explorer().addNode(node);
}

void removeNode(ExplorerObject& object, const std::string& key) { object.explorer().removeNode(key); }

void setNodeProperty(ExplorerObject& object, const std::string& key, std::int32_t property,
                     const automation::Variant& value) {
    object.explorer().setNodeProperty(key, property, value);
}

void activate(ExplorerObject& object) { object.explorer().activate(); }

}  // namespace

host::ProjectExplorer& ExplorerObject::explorer() const {
    if (explorer_ == nullptr) throw automation::Error(automation::errFail, "The project explorer has been released.");
    return *explorer_;
}

const automation::MemberTable& ExplorerObject::members() const {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&hostWindow>("HostWindow", "Handle of the studio window that receives editor windows"),
        property<&selectedKey>("SelectedKey", "Key of the selected node, empty when none is"),
        method<&addNode>("AddNode", "Adds a node: parent key, caption, key, tag, image key"),
        method<&removeNode>("RemoveNode", "Removes a node and all below it"),
        method<&setNodeProperty>("SetNodeProperty", "Sets a numbered property of a node: key, number, value"),
        method<&activate>("Activate", "Gives the explorer the keyboard"),
    };
    static constexpr automation::MemberTable table{"ProjectExplorer", rows};
    return table;
}

}  // namespace hx::addin
