// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/sentence.h"
#include "forms/font.h"

namespace hx::forms {

class Form;
class Bar;
class Band;

/// A window for the operating system: a 32-bit number that the host resolves; 0 is none.
using WindowHandle = std::int32_t;

/// Message box styles and answers, with OLE Automation's numbers; a style is a sum of them.
namespace message {
enum class Answer : std::int32_t { ok = 1, cancel = 2, yes = 6, no = 7 };  // first: GCC 12 sees `ok` shadowed otherwise
inline constexpr std::int32_t ok = 0, okCancel = 1, yesNoCancel = 3, yesNo = 4;
inline constexpr std::int32_t critical = 16, question = 32, exclamation = 48, information = 64;
inline constexpr std::int32_t defaultButton2 = 256;
/// The title of a box that names none.
inline constexpr std::string_view defaultTitle = "HXRecipeEditor";
}  // namespace message

/// The mouse pointers that the editor asks for.
enum class Pointer : std::int16_t { standard = 0, hourglass = 11 };

/// What a model needs of the display: the one way to windows, message boxes, menus and sounds. Implemented by a
/// view (a toolkit) or by a script that answers. The calls that wait for the user return when the user is done.
class Screen {
  public:
    virtual ~Screen() = default;

    /// Makes the window of a form that has just been loaded, hidden; the form's later changes are shown in it.
    [[nodiscard]] virtual WindowHandle createWindow(Form& form) = 0;
    virtual void destroyWindow(Form& form) = 0;
    /// Makes the form visible (Form::setVisible) and returns when it has been hidden or unloaded. `owner` may be 0.
    virtual void showModal(Form& form, WindowHandle owner) = 0;
    /// Raises the form's window, restored when minimised, and gives it the keyboard. A hidden one stays hidden.
    virtual void bringToFront(Form& form) = 0;

    /// Closing the box by its frame or Esc answers cancel, no or ok, whichever the style has, in this order.
    virtual message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) = 0;
    /// Shows a band as a menu at the mouse; a chosen tool is clicked (Bar::click) before it returns.
    virtual void popUp(Bar& bar, Band& band) = 0;
    /// Lets the user change the values; false when cancelled, the values are then unchanged.
    virtual bool chooseFont(Font::Values& font) = 0;
    virtual void beep() = 0;
    [[nodiscard]] virtual Pointer pointer() const = 0;
    virtual void setPointer(Pointer pointer) noexcept = 0;  ///< it is put back when something has failed, too
    /// Sends keys ("{F1}") to a form as if they were typed.
    virtual void sendKeys(Form& form, std::string_view keys) = 0;
    /// The language in which the user is told what failed.
    [[nodiscard]] virtual automation::Language language() const = 0;
    /// Twips in one pixel of the display, 15 at 96 dots an inch.
    [[nodiscard]] virtual double twipsPerPixel() const = 0;
};

}  // namespace hx::forms
