// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "automation/restore.h"
#include "host/project_explorer.h"
#include "host/services.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "resources/help.h"
#include "resources/resource_table.h"

namespace hx::editor {

/// While it lives, the add-in is busy.
class Busy : automation::Restore<bool> {
  public:
    explicit Busy(bool& flag) : Restore(flag, true) {}
};

/// What the editor window needs of the add-in that created it.
class AddIn {
  public:
    virtual ~AddIn() = default;
    /// Closes and reopens the editor with its connection and nodes. The calling window ends with it.
    virtual void RefreshView() = 0;
    /// Null before Initialize and after Terminate.
    [[nodiscard]] virtual host::ProjectExplorer* explorer() const = 0;
    [[nodiscard]] virtual const host::Services& services() const = 0;
    [[nodiscard]] virtual const resources::ResourceTable& texts() const = 0;
    [[nodiscard]] virtual resources::Help& help() = 0;
    [[nodiscard]] virtual recipe::StatusCounters& counters() = 0;
    /// True while the editor shows a message box or a selection of its own: the window's activation then does nothing.
    [[nodiscard]] virtual bool& busy() = 0;
};

/// A window's reference to the add-in that created it, released when the window is closed: somebody may keep the window
/// for longer than the add-in lives. What needs the add-in then throws errFail, and there is no explorer; messages can
/// still be shown.
class AddInReference : public AddIn {
  public:
    explicit AddInReference(AddIn& addIn) : addIn_(&addIn), services_(addIn.services()) {}
    void release() noexcept { addIn_ = nullptr; }

    void RefreshView() override { required().RefreshView(); }
    [[nodiscard]] host::ProjectExplorer* explorer() const override { return addIn_ ? addIn_->explorer() : nullptr; }
    [[nodiscard]] const host::Services& services() const override { return services_; }
    [[nodiscard]] const resources::ResourceTable& texts() const override { return required().texts(); }
    [[nodiscard]] resources::Help& help() override { return required().help(); }
    [[nodiscard]] recipe::StatusCounters& counters() override { return required().counters(); }
    [[nodiscard]] bool& busy() override { return addIn_ ? addIn_->busy() : busy_; }

  private:
    static constexpr automation::Sentence closed{"The editor has been closed.", "Der Editor ist geschlossen."};

    [[nodiscard]] AddIn& required() const {
        if (addIn_ == nullptr) throw automation::Error(automation::errFail, closed);
        return *addIn_;
    }

    AddIn* addIn_;
    const host::Services& services_;
    bool busy_ = false;  // of nobody, when the add-in is gone
};

/// "number: description" under the procedure's name: the box of every trapped error.
void showError(forms::Screen& screen, const automation::Error& error, std::string_view procedure);

}  // namespace hx::editor
