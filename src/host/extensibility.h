// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "automation/dispatch.h"
#include "host/project_explorer.h"

namespace hx::host {

/// The mouse with a node event: button, shift state, position in the explorer in twips.
struct NodeMouse {
    std::int16_t button = 0;
    std::int16_t shift = 0;
    double x = 0;
    double y = 0;
};

/// What the studio calls on an add-in, in the order of the interface's slots. No member throws: an add-in reports its
/// errors itself. All calls come on the user interface's thread. A studio tells NodeClick whenever another node is
/// highlighted, before any key or button-up of it: what an add-in shows is what the user sees chosen.
class CHX4Extensibility : public automation::Dispatch {
  public:
    virtual void Initialize(const std::string& projectName, const std::string& second, ProjectExplorer* explorer,
                            const automation::ObjectRef& fourth) = 0;
    virtual void StartupComplete() = 0;
    virtual void Terminate() = 0;
    virtual void Deactivate() = 0;
    virtual void NodeClick(const NodeEvent& node) = 0;
    virtual void NodeDblClick(const NodeEvent& node) = 0;
    virtual void NodeExpand(const NodeEvent& node) = 0;
    virtual void NodeMouseDown(const NodeEvent& node, const NodeMouse& mouse) = 0;
    virtual void NodeMouseMove(const NodeEvent& node, const NodeMouse& mouse) = 0;
    virtual void NodeMouseUp(const NodeEvent& node, const NodeMouse& mouse) = 0;
    virtual void NodeKeyDown(const NodeEvent& node, std::int16_t keyCode, std::int16_t shift) = 0;
    virtual void NodeKeyPress(const NodeEvent& node, std::int32_t character) = 0;
    virtual void NodeKeyUp(const NodeEvent& node, std::int16_t keyCode, std::int16_t shift) = 0;
    virtual automation::Variant GetMessage(const std::string& sender, const std::string& message,
                                           const automation::Variant& parameter) = 0;
};

}  // namespace hx::host
