#pragma once

#include <functional>
#include <map>
#include <string>

#include "adapters/headless/record.h"
#include "automation/text.h"
#include "forms/bar.h"
#include "forms/form.h"

namespace hx::headless {

/// Orders names ignoring case.
struct IgnoringCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return automation::compareIgnoreCase(a, b) < 0; }
};

/// What the user would do. A function that is not set is the user who answers a message box by its default button,
/// closes dialogs and menus and cancels choices. What a function throws reaches the caller of the screen; a dialog is
/// then closed.
struct Script {
    /// The answer to a box; one without such a button is an error of the script (errBadIndex).
    std::function<forms::message::Answer(const Message&)> onMessage;
    /// By the form's name: works on the form while it is shown. A form that is open afterwards is closed by its frame.
    std::map<std::string, std::function<void(forms::Form&)>, IgnoringCase> onModal;
    /// The name of the tool to click, in the band or in one that its menus open; empty for none. A tool that is not
    /// shown is an error of the script (errBadIndex).
    std::function<std::string(forms::Band&)> onPopUp;
    /// Changes the font; false cancels.
    std::function<bool(forms::Font::Values&)> onFont;
    /// The variable to take instead of the current one; an empty text cancels.
    std::function<std::string(const std::string& current)> onItem;
    /// The folder to take instead of the current one.
    std::function<std::string(const std::string& current)> onFolder;
};

}  // namespace hx::headless
