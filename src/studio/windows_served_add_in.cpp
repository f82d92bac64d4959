// SPDX-License-Identifier: MIT
#include "studio/windows_served_add_in.h"

#include "adapters/com/cleared.h"
#include "adapters/com/text.h"

namespace hx::studio {

using com::Text;

namespace {

/// The texts of an event for one call.
struct Texts {
    explicit Texts(const host::NodeEvent& node) : owner(node.owner), key(node.key), caption(node.caption) {}
    Text owner, key, caption;
};

}  // namespace

void ServedAddIn::Initialize(const std::string& projectName, const std::string& second, host::ProjectExplorer* explorer,
                             const automation::ObjectRef& fourth) {
    letGoOfExplorer();
    if (explorer != nullptr) explorer_ = std::make_shared<addin::ExplorerObject>(*explorer);
    served_->Initialize(Text(projectName), Text(second), border_.give(automation::ObjectRef(explorer_)).get(),
                        border_.give(fourth).get());
}

void ServedAddIn::Terminate() {
    served_->Terminate();
    letGoOfExplorer();
}

void ServedAddIn::letGoOfExplorer() {
    if (explorer_) explorer_->detach();
    explorer_.reset();
}

void ServedAddIn::NodeClick(const host::NodeEvent& node) {
    const Texts texts(node);
    served_->NodeClick(texts.owner, texts.key, texts.caption);
}

void ServedAddIn::NodeDblClick(const host::NodeEvent& node) {
    const Texts texts(node);
    served_->NodeDblClick(texts.owner, texts.key, texts.caption);
}

void ServedAddIn::NodeExpand(const host::NodeEvent& node) {
    const Texts texts(node);
    served_->NodeExpand(texts.owner, texts.key, texts.caption);
}

void ServedAddIn::NodeMouseDown(const host::NodeEvent& node, const host::NodeMouse& mouse) {
    const Texts texts(node);
    served_->NodeMouseDown(texts.owner, texts.key, texts.caption, mouse.button, mouse.shift, mouse.x, mouse.y);
}

void ServedAddIn::NodeMouseMove(const host::NodeEvent& node, const host::NodeMouse& mouse) {
    const Texts texts(node);
    served_->NodeMouseMove(texts.owner, texts.key, texts.caption, mouse.button, mouse.shift, mouse.x, mouse.y);
}

void ServedAddIn::NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) {
    const Texts texts(node);
    served_->NodeMouseUp(texts.owner, texts.key, texts.caption, mouse.button, mouse.shift, mouse.x, mouse.y);
}

void ServedAddIn::NodeKeyDown(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shift) {
    const Texts texts(node);
    served_->NodeKeyDown(texts.owner, texts.key, texts.caption, keyCode, shift);
}

void ServedAddIn::NodeKeyPress(const host::NodeEvent& node, std::int32_t character) {
    const Texts texts(node);
    served_->NodeKeyPress(texts.owner, texts.key, texts.caption, character);
}

void ServedAddIn::NodeKeyUp(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shift) {
    const Texts texts(node);
    served_->NodeKeyUp(texts.owner, texts.key, texts.caption, keyCode, shift);
}

automation::Variant ServedAddIn::GetMessage(const std::string& sender, const std::string& message,
                                            const automation::Variant& parameter) {
    com::Cleared given, result;
    border_.give(parameter, given);
    served_->GetMessage(Text(sender), Text(message), given, &result);
    return border_.take(static_cast<const VARIANT&>(result));
}

}  // namespace hx::studio
