// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "forms/picture.h"
#include "host/system_services.h"
#include "hosting/node_tree.h"

namespace hx::headless {

/// The studio's explorer without a display.
class ProjectExplorer : public host::ProjectExplorer {
  public:
    /// The clipboard is lent. Nodes belong to `project`.
    ProjectExplorer(forms::WindowHandle hostWindow, const host::Clipboard& clipboard, std::string project = {})
        : hostWindow_(hostWindow), clipboard_(clipboard), project_(std::move(project)) {}

    [[nodiscard]] forms::WindowHandle hostWindow() const override { return hostWindow_; }
    void takeClipboardImage(std::string_view key) override;
    void addNode(const host::NewNode& node) override;
    void removeNode(std::string_view key) override;
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const override {
        return tree_.childKeys(key, levels);
    }
    void setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) override;
    [[nodiscard]] host::NodeEvent selectedNode() const override;
    void activate() override { ++activations_; }

    [[nodiscard]] const hosting::NodeTree& tree() const noexcept { return tree_; }
    /// The pictures taken from the clipboard, in order.
    [[nodiscard]] const forms::ImageList& images() const noexcept { return images_; }
    [[nodiscard]] bool isExpanded(std::string_view key) const;  ///< errBadIndex when unknown
    [[nodiscard]] std::int32_t activations() const noexcept { return activations_; }

    /// What an event of the node carries; errBadIndex when unknown.
    [[nodiscard]] host::NodeEvent eventOf(std::string_view key) const;
    /// The user's choice; an empty key selects nothing. errBadIndex when unknown.
    void select(std::string_view key);
    void setProject(const std::string& name) { project_ = name; }

  private:
    [[nodiscard]] hosting::NodeTree::Id require(std::string_view key) const;
    forms::WindowHandle hostWindow_;
    const host::Clipboard& clipboard_;
    std::string project_, selected_;
    hosting::NodeTree tree_;
    forms::ImageList images_;
    std::map<std::string, bool, std::less<>> expanded_;
    std::int32_t activations_ = 0;
};

}  // namespace hx::headless
