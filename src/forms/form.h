// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"
#include "forms/layout.h"
#include "forms/screen.h"

namespace hx::forms {

enum class WindowState : std::int16_t { normal = 0, minimised = 1, maximised = 2 };

/// Why a form is about to be unloaded.
enum class UnloadMode : std::int16_t { byUser = 0, byCode = 1, bySystem = 2 };

/// A window and its controls. It is loaded (its window exists, hidden), shown, hidden and unloaded. Left, Top, Width
/// and Height are the outer window's, relative to its parent window, in twips.
class Form : public Control {
  public:
    Form(std::string name, Screen& screen);
    ~Form() override;

    /// Raises loadEvent, then makes the window: the handlers run while handle() is still 0. Does nothing when loaded.
    void load();
    [[nodiscard]] bool loaded() const noexcept { return handle_ != 0; }
    /// Raises queryUnloadEvent; unless that cancels, raises unloadEvent and ends the window. True when unloaded.
    bool unload(UnloadMode mode);
    /// Loads when needed and makes it visible.
    void show();
    void hide();
    /// Loads when needed and shows it through the screen until it is hidden or unloaded; `owner` is the window it
    /// stands in front of.
    void showModal(WindowHandle owner);
    void bringToFront();

    [[nodiscard]] WindowHandle handle() const noexcept { return handle_; }
    [[nodiscard]] Screen& screen() const noexcept { return screen_; }
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption) { assign(caption_, caption, "Caption"); }
    [[nodiscard]] WindowState windowState() const noexcept { return windowState_; }
    /// A number other than 0, 1, 2 throws errOverflow.
    void setWindowState(WindowState state);
    /// The area inside the frame, in twips; a view reports it by clientAreaChanged.
    [[nodiscard]] double scaleWidth() const noexcept { return scaleWidth_; }
    [[nodiscard]] double scaleHeight() const noexcept { return scaleHeight_; }
    /// Whether the form's key events come before those of the control with the keyboard.
    [[nodiscard]] bool keyPreview() const noexcept { return keyPreview_; }
    void setKeyPreview(bool preview) noexcept { keyPreview_ = preview; }

    /// The controls in the order in which they were added.
    [[nodiscard]] const std::vector<std::shared_ptr<Control>>& controls() const noexcept { return controls_; }
    /// By name ignoring case, and by index for an array; null when there is none.
    [[nodiscard]] Control* findControl(std::string_view name, std::optional<std::int16_t> index = {}) const;
    /// The rows that a dialog is made of; empty: its controls lie where Left, Top, Width and Height say.
    [[nodiscard]] const Layout& layout() const noexcept { return layout_; }

    // --- what a view reports
    void clientAreaChanged(double width, double height);  ///< raises resizeEvent
    /// The user moved or sized the window or changed its state; no `changed` is raised.
    void boundsReported(double left, double top, double width, double height, WindowState state);
    /// A key went down or up in a control of the form, or in the form itself: the key, and the character that one going
    /// down types (0 for none). The form hears of it first when it previews keys, then the control. True when nothing
    /// else may come of it: a handler has swallowed it, or has ended the form.
    bool keyReported(Control& at, KeyMove move, KeyEvent key, KeyPress typed = {});
    /// The button that a key presses which no control has taken: Enter the one that has the keyboard, else the default
    /// one, Esc the cancel button. Null for none.
    [[nodiscard]] CommandButton* buttonOf(std::int16_t code) const;
    /// The user closed it by its frame: unload(byUser).
    bool closeByFrame() { return unload(UnloadMode::byUser); }
    void activated(bool active) { activateEvent.raise(active); }

    // --- events
    Event<> loadEvent, unloadEvent, resizeEvent;
    Event<bool&, UnloadMode> queryUnloadEvent;
    Event<bool> activateEvent;

    /// Caption, WindowState, ScaleWidth, ScaleHeight, KeyPreview, hWnd, Show, Hide, Unload and those of a control.
    [[nodiscard]] static const automation::MemberTable& formMembers();
    [[nodiscard]] const automation::MemberTable& members() const override { return formMembers(); }
    /// A control's name reads that control ("tdbRM"); with an index as argument, one of a control array.
    automation::Variant get(std::string_view name, automation::Args args = {}) override;
    void set(std::string_view name, const automation::Variant& value, automation::Args index = {}) override;

  protected:
    /// Makes a control of the form; it lies in `container`, or in the form itself.
    template <class C, class... A>
    std::shared_ptr<C> add(std::string name, A&&... args) {
        auto control = std::make_shared<C>(std::move(name), std::forward<A>(args)...);
        control->setForm(*this);
        control->setTabIndex(static_cast<std::int16_t>(controls_.size()));
        controls_.push_back(control);
        return control;
    }
    /// A further row of the dialog. Each control of it, and its container, must be one of this form (a page: of one
    /// of its tab strips), and must not stand in a row yet: std::invalid_argument. The controls come to lie in the
    /// container.
    void addRow(const LayoutRow& row);
    /// The dialog's own buttons in a row at the bottom: `buttons` at the right end, `help` at the left.
    void addButtons(std::vector<CommandButton*> buttons, CommandButton* help = nullptr);

  private:
    [[nodiscard]] bool hasControl(std::string_view name) const;
    [[nodiscard]] bool holds(const Control& control) const;
    void requirePlaceable(const Control& control) const;
    Screen& screen_;
    std::vector<std::shared_ptr<Control>> controls_;
    Layout layout_;
    std::string caption_;
    WindowHandle handle_ = 0;
    WindowState windowState_ = WindowState::normal;
    double scaleWidth_ = 0, scaleHeight_ = 0;
    bool keyPreview_ = false, loading_ = false, unloading_ = false;
};

}  // namespace hx::forms
