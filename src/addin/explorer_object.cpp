// SPDX-License-Identifier: MIT
#include "addin/explorer_object.h"

#include "automation/member_rows.h"

namespace hx::addin {

namespace {

forms::WindowHandle hostWindow(ExplorerObject& object) { return object.explorer().hostWindow(); }

std::string selectedOwner(ExplorerObject& object) { return object.explorer().selectedNode().owner; }
std::string selectedKey(ExplorerObject& object) { return object.explorer().selectedNode().key; }
std::string selectedCaption(ExplorerObject& object) { return object.explorer().selectedNode().caption; }

void takeClipboardImage(ExplorerObject& object, const std::string& key) { object.explorer().takeClipboardImage(key); }

void addNode(ExplorerObject& object, const std::string& parent, const std::string& caption, const std::string& key,
             const std::string& tag, const std::string& image, bool first, bool second, bool third,
             std::int32_t number) {
    object.nodesChange();
    object.explorer().addNode({.parent = parent,
                               .caption = caption,
                               .key = key,
                               .tag = tag,
                               .image = image,
                               .options = {first, second, third},
                               .number = number});
}

std::int32_t childCount(ExplorerObject& object, const std::string& key, std::int32_t levels) {
    return static_cast<std::int32_t>(object.explorer().childKeys(key, levels).size());
}

void removeNode(ExplorerObject& object, const std::string& key) {
    object.nodesChange();
    object.explorer().removeNode(key);
}

void setNodeProperty(ExplorerObject& object, const std::string& key, std::int32_t property,
                     const automation::Variant& value) {
    object.explorer().setNodeProperty(key, property, value);
}

void activate(ExplorerObject& object) { object.explorer().activate(); }

}  // namespace

host::ProjectExplorer& ExplorerObject::explorer() const {
    constexpr automation::Sentence released{"The project explorer has been released.",
                                            "Der Projektexplorer ist freigegeben."};
    if (explorer_ == nullptr) throw automation::Error(automation::errFail, released);
    return *explorer_;
}

std::string ExplorerObject::childKey(const std::string& key, std::int32_t levels, std::int32_t number) {
    const host::ProjectExplorer& shown = explorer();
    const bool goesOn = number > 0 && number == next_ && key == listed_ && levels == levels_;
    if (!goesOn) keys_ = shown.childKeys(key, levels);
    listed_ = key;
    levels_ = levels;
    next_ = 0;
    if (static_cast<std::size_t>(number) >= keys_.size()) {  // a negative one is beyond all
        automation::throwBadIndex("ChildKey", automation::Variant(number));
    }
    next_ = number + 1;
    return keys_[static_cast<std::size_t>(number)];
}

const automation::MemberTable& ExplorerObject::members() const {
    using automation::indexed;
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&hostWindow>("HostWindow", "Handle of the studio window that receives editor windows"),
        property<&selectedOwner>("SelectedOwner", "Project of the selected node, empty when none is"),
        property<&selectedKey>("SelectedKey", "Key of the selected node, empty when none is"),
        property<&selectedCaption>("SelectedCaption", "Caption of the selected node, empty when none is"),
        indexed<&childCount>("ChildCount", "How many nodes lie below a node: key, levels"),
        indexed<&ExplorerObject::childKey>("ChildKey", "Key of a node below a node: key, levels, number from 0"),
        method<&takeClipboardImage>("TakeClipboardImage", "Takes the picture on the clipboard as a node image: key"),
        method<&addNode>("AddNode", "Adds a node: parent key, caption, key, tag, image key, three options, number"),
        method<&removeNode>("RemoveNode", "Removes a node and all below it"),
        method<&setNodeProperty>("SetNodeProperty", "Sets a numbered property of a node: key, number, value"),
        method<&activate>("Activate", "Gives the explorer the keyboard"),
    };
    static constexpr automation::MemberTable table{"ProjectExplorer", rows};
    return table;
}

}  // namespace hx::addin
