// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "automation/variant.h"
#include "forms/screen.h"

namespace hx::host {

/// A node to be added to the explorer. `options` and `number` are kept by the explorer for the studio.
struct NewNode {
    std::string_view parent{};  ///< key of the parent; empty for a top node
    std::string_view caption{};
    std::string_view key{};  ///< unique in the explorer
    std::string_view tag{};
    std::string_view image{};  ///< key of a node image
    std::array<bool, 3> options{};
    std::int32_t number = 0;
};

/// What identifies a node in an event of the explorer.
struct NodeEvent {
    std::string owner;  ///< the project
    std::string key;
    std::string caption;
};

/// Numbers of node properties for setNodeProperty.
namespace node_property {
inline constexpr std::int32_t caption = 1;    ///< string
inline constexpr std::int32_t expanded = 10;  ///< boolean: false collapses the node
}  // namespace node_property

/// The studio's project explorer, as an add-in sees it. Errors are automation::Error.
class ProjectExplorer {
  public:
    virtual ~ProjectExplorer() = default;
    /// The studio window that receives editor windows.
    [[nodiscard]] virtual forms::WindowHandle hostWindow() const = 0;
    /// Takes the picture on the clipboard as the node image of this key; errFail without a picture there.
    virtual void takeClipboardImage(std::string_view key) = 0;
    /// errBadIndex when the parent is unknown or the key exists.
    virtual void addNode(const NewNode& node) = 0;
    /// With all nodes below it; errBadIndex when unknown.
    virtual void removeNode(std::string_view key) = 0;
    /// Keys of the nodes below, down to `levels` levels, in tree order. Empty for an unknown key.
    [[nodiscard]] virtual std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const = 0;
    /// errBadIndex when the key or the number is unknown.
    virtual void setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) = 0;
    /// All empty when nothing is selected.
    [[nodiscard]] virtual NodeEvent selectedNode() const = 0;
    /// Gives the explorer the keyboard.
    virtual void activate() = 0;
};

}  // namespace hx::host
