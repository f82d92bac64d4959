// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/com/foreign_object.h"
#include "host/project_explorer.h"

namespace hx::com {

/// The project explorer that a host hands over, in whatever language it is written: an object with the members that
/// addin::ExplorerObject has. A host may leave out Activate and Services.
class Explorer : public ForeignObject, public host::ProjectExplorer {
  public:
    using ForeignObject::ForeignObject;

    [[nodiscard]] forms::WindowHandle hostWindow() const override;
    void takeClipboardImage(std::string_view key) override;
    void addNode(const host::NewNode& node) override;
    void removeNode(std::string_view key) override;
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const override;
    void setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) override;
    [[nodiscard]] host::NodeEvent selectedNode() const override;
    void activate() override;

    /// What the host lends; empty when it lends nothing.
    [[nodiscard]] automation::ObjectRef services();

  private:
    [[nodiscard]] automation::Variant property(std::string_view name) const;
    [[nodiscard]] automation::Variant ask(std::string_view name, automation::Args args) const;
};

}  // namespace hx::com
