// SPDX-License-Identifier: MIT
#pragma once

// Before all that names the add-in's members.
#include "adapters/com/extensibility_interface.h"
// They follow it.
#include "adapters/com/border.h"
#include "addin/explorer_object.h"
#include "host/extensibility.h"

namespace hx::studio {

/// An add-in that is a COM server, called by the slots of its interface; it calls the explorer by name. What the
/// interface does not have, the add-in itself is asked.
class ServedAddIn : public host::CHX4Extensibility {
  public:
    /// `direct` is the same add-in without COM. The border is lent.
    ServedAddIn(com::Pointer<::CHX4Extensibility> served, automation::ObjectRef direct, com::Border& border)
        : direct_(std::move(direct)), served_(std::move(served)), border_(border) {}

    void Initialize(const std::string& projectName, const std::string& second, host::ProjectExplorer* explorer,
                    const automation::ObjectRef& fourth) override;
    void StartupComplete() override { served_->StartupComplete(); }
    void Terminate() override;
    void Deactivate() override { served_->Deactivate(); }
    void NodeClick(const host::NodeEvent& node) override;
    void NodeDblClick(const host::NodeEvent& node) override;
    void NodeExpand(const host::NodeEvent& node) override;
    void NodeMouseDown(const host::NodeEvent& node, const host::NodeMouse& mouse) override;
    void NodeMouseMove(const host::NodeEvent& node, const host::NodeMouse& mouse) override;
    void NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) override;
    void NodeKeyDown(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shift) override;
    void NodeKeyPress(const host::NodeEvent& node, std::int32_t character) override;
    void NodeKeyUp(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shift) override;
    automation::Variant GetMessage(const std::string& sender, const std::string& message,
                                   const automation::Variant& parameter) override;

    [[nodiscard]] const automation::MemberTable& members() const override { return direct_->members(); }
    automation::Variant get(std::string_view name, automation::Args args) override { return direct_->get(name, args); }
    void set(std::string_view name, const automation::Variant& value, automation::Args index) override {
        direct_->set(name, value, index);
    }

  private:
    void letGoOfExplorer();

    std::shared_ptr<addin::ExplorerObject> explorer_;  ///< what it has been given, until it is told to end
    automation::ObjectRef direct_;
    com::Pointer<::CHX4Extensibility> served_;
    com::Border& border_;
};

}  // namespace hx::studio
