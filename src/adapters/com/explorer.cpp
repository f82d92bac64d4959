// SPDX-License-Identifier: MIT
#include "adapters/com/explorer.h"

#include <array>

#include "automation/convert.h"
#include "hosting/lent_services.h"

namespace hx::com {

using automation::toInt32;
using automation::toText;
using automation::Variant;

// What the object gives may change with every call, but not the object.
Variant Explorer::property(std::string_view name) const { return const_cast<Explorer*>(this)->read(name); }
Variant Explorer::ask(std::string_view name, automation::Args args) const {
    return const_cast<Explorer*>(this)->get(name, args);
}

forms::WindowHandle Explorer::hostWindow() const { return toInt32(property("HostWindow")); }

void Explorer::takeClipboardImage(std::string_view key) { get("TakeClipboardImage", std::array{Variant(key)}); }

void Explorer::addNode(const host::NewNode& node) {
    const auto& [first, second, third] = node.options;
    get("AddNode", std::array<Variant, 9>{node.parent, node.caption, node.key, node.tag, node.image, first, second,
                                          third, node.number});
}

void Explorer::removeNode(std::string_view key) { get("RemoveNode", std::array{Variant(key)}); }

std::vector<std::string> Explorer::childKeys(std::string_view key, std::int32_t levels) const {
    const std::int32_t count = toInt32(ask("ChildCount", std::array<Variant, 2>{key, levels}));
    std::vector<std::string> keys;
    for (std::int32_t i = 0; i < count; ++i) {
        keys.push_back(toText(ask("ChildKey", std::array<Variant, 3>{key, levels, i})));
    }
    return keys;
}

void Explorer::setNodeProperty(std::string_view key, std::int32_t property, const Variant& value) {
    get("SetNodeProperty", std::array<Variant, 3>{key, property, value});
}

host::NodeEvent Explorer::selectedNode() const {
    return {toText(property("SelectedOwner")), toText(property("SelectedKey")), toText(property("SelectedCaption"))};
}

void Explorer::activate() { (void)hosting::readIfThere(*this, "Activate"); }

automation::ObjectRef Explorer::services() { return hosting::objectIfThere(*this, "Services"); }

}  // namespace hx::com
