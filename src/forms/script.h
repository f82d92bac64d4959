// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "automation/text.h"
#include "forms/bar.h"
#include "forms/form.h"
#include "forms/record.h"

namespace hx::forms {

/// What the user would do. A function that is not set is the user who answers a message box by its default button,
/// closes dialogs and menus and cancels choices. What a function throws reaches the caller of the screen; a dialog is
/// then closed.
struct Script {
    /// The answer to a box; one without such a button is an error of the script (errBadIndex).
    std::function<message::Answer(const ShownMessage&)> onMessage;
    /// By the form's name: works on the form while it is shown. A form that is open afterwards is closed by its frame.
    std::map<std::string, std::function<void(Form&)>, automation::IgnoringCase> onModal;
    /// The name of the tool to click, in the band or in one that its menus open; empty for none. A tool that is not
    /// shown is an error of the script (errBadIndex).
    std::function<std::string(Band&)> onPopUp;
    /// Changes the font; false cancels.
    std::function<bool(Font::Values&)> onFont;
    /// The variable to take instead of the current one; an empty text cancels.
    std::function<std::string(const std::string& current)> onItem;
    /// The folder to take instead of the current one.
    std::function<std::string(const std::string& current)> onFolder;
};

}  // namespace hx::forms
