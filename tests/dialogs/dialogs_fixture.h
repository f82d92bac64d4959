// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "forms/captioned.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "resources/help.h"
#include "resources/resource_table.h"
#include "support/memory_provider.h"

namespace hx::dialogs {

constexpr std::int32_t german = 1031, english = 1033;

/// A headless host, the texts in German and the online help.
class DialogsTest : public ::testing::Test {
  protected:
    DialogsTest() {
        speak(german);
        host.registry.writeString("SOFTWARE\\Tarnwell", "Common", "/opt/shared");
        help.SetHelpFile();
    }

    void speak(std::int32_t language) {
        host.registry.writeNumber(host::registry_keys::helvix, "LCID", language);
        texts.InitResources(host.registry);
    }

    /// Shows the dialog modally for the owner and lets the user do `action` meanwhile; then closes it by its frame
    /// when it is still open.
    template <class D>
    void show(D& dialog, const std::function<void(D&)>& action = {}) {
        host.script.onModal[dialog.name()] = [&](forms::Form& form) {
            if (action) action(dynamic_cast<D&>(form));
        };
        dialog.showModal(ownerHandle);
    }

    /// Types a key ("{ENTER}") into the dialog.
    void type(forms::Form& dialog, std::string_view keys) { host.screen.sendKeys(dialog, keys); }

    [[nodiscard]] bool closedByFrame() const { return host.record.modals.back().closedByFrame; }

    static constexpr forms::WindowHandle ownerHandle = 4711;
    support::MemoryProvider database;
    headless::Host host{database};
    resources::ResourceTable texts;
    resources::Help help{host.services()};
};

/// The control of this name with a caption.
inline std::string captionOf(const forms::Form& form, std::string_view name, std::optional<std::int16_t> index = {}) {
    const auto* control = dynamic_cast<forms::Captioned*>(form.findControl(name, index));
    return control != nullptr ? control->caption() : "no control " + std::string(name);
}

/// The controls that the tabulator key can reach and the user can use, in its order: "cmdChooseItem(2)".
inline std::vector<std::string> tabOrder(const forms::Form& form) {
    std::vector<std::string> order;
    for (const auto& control : form.controls()) {
        const bool still = dynamic_cast<forms::Label*>(control.get()) != nullptr ||
                           dynamic_cast<forms::Frame*>(control.get()) != nullptr;
        if (still || !control->tabStop() || !control->enabled()) continue;
        const auto index = control->index();
        order.push_back(control->name() + (index ? "(" + std::to_string(*index) + ")" : ""));
    }
    return order;
}

}  // namespace hx::dialogs
