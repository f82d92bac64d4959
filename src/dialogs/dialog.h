// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/text_box.h"
#include "host/services.h"
#include "resources/help.h"

namespace hx::dialogs {

/// What the editor's dialogs have in common. A dialog is made by std::make_shared, filled through its controls, given
/// its owner, shown by showModal(owner's handle), and read afterwards: it only hides itself, or ends its window when it
/// is closed by its frame; the controls keep their state. F1 and the button open the help at the HelpContextID.
class Dialog : public forms::Form {
  public:
    /// False after OK. What it is before and after closing by the frame, each dialog states.
    [[nodiscard]] bool cancelled() const noexcept { return cancelled_; }
    void setCancelled(bool cancelled) noexcept { cancelled_ = cancelled; }
    /// Asked by OK before the dialog closes: false keeps it open with all that the user has entered.
    void setAccept(std::function<bool()> accept) { accept_ = std::move(accept); }
    /// The window that shows the dialog; it lives at least as long as the dialog. Null until it is set.
    [[nodiscard]] const automation::ObjectRef& owner() const noexcept { return owner_; }
    void setOwner(const automation::ObjectRef& owner) { owner_ = owner; }

    // --- the buttons below the dialog: OK is the default, cancel is pressed by Esc
    std::shared_ptr<forms::CommandButton> cmdOk, cmdCancel, cmdHelp;

    /// Cancelled, Owner and those of a form.
    [[nodiscard]] static const automation::MemberTable& dialogMembers();

  protected:
    /// Services and help are lent.
    Dialog(std::string name, const host::Services& services, resources::Help& help, std::int32_t helpContext);

    /// A control that has the tag from the start.
    template <class C>
    std::shared_ptr<C> addTagged(std::string name, std::string_view tag) {
        auto control = add<C>(std::move(name));
        control->setTag(std::string(tag));
        return control;
    }
    /// The small button behind a field that opens a choice: "...".
    std::shared_ptr<forms::CommandButton> addChooser(std::string name);
    /// Makes the three buttons: the last controls in the order of the tabulator key. They get their captions by tags
    /// when the dialog is localised, or German ones at once.
    void addDialogButtons();
    void tagDialogButtons();
    void captionDialogButtons();

    /// Calls the method of the dialog for as long as the dialog lives. What fails in it is shown under the dialog's
    /// name and goes no further: whoever reports a click or a key cannot do anything about it.
    template <class D, class... A>
    void on(forms::Event<A...>& event, void (D::*method)(A...)) {
        hear(event, [this, method](A... args) { (static_cast<D*>(this)->*method)(args...); });
    }
    /// The same for any handler.
    template <class H, class... A>
    void hear(forms::Event<A...>& event, H handler) {
        subscriptions_.push_back(event.subscribe([this, handler](A... args) { guard([&] { handler(args...); }); }));
    }

    /// Lets the user choose a variable, with the field's text chosen before; cancelled, the text stays.
    void chooseItem(forms::TextBox& field);
    void closeWith(bool cancelled);
    [[nodiscard]] const host::Services& services() const noexcept { return services_; }

  private:
    void guard(const std::function<void()>& action);
    /// "{F1}" to the dialog itself: the online help opens.
    void sendHelpKey();
    void onKeyDown(forms::KeyEvent& event);

    const host::Services& services_;
    resources::Help& help_;
    automation::ObjectRef owner_;
    bool cancelled_ = false;
    std::function<bool()> accept_;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::dialogs
