// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/variant.h"
#include "forms/font.h"
#include "forms/screen.h"

namespace hx::forms {

/// A message box and how it was answered.
struct ShownMessage {
    std::string text, title;
    std::int32_t style = 0;
    std::vector<message::Answer> buttons;  ///< in the order in which they stand in the box
    message::Answer defaultButton = message::Answer::ok;
    message::Answer answer = message::Answer::ok;
    bool scripted = false;  ///< a function of the script was asked
};

/// A form that was shown modally.
struct ModalForm {
    std::string form, caption;
    WindowHandle owner = 0;
    bool scripted = false;       ///< a function of the script ran on it
    bool closedByFrame = false;  ///< it was still open then, or without one
};

/// A band that was shown as a pop-up menu, or would have been.
struct PopUp {
    struct Entry {
        std::string tool, caption;
        bool enabled = false;
    };
    std::string band;
    std::vector<Entry> entries;  ///< what the user saw
    bool refused = false;        ///< the band was not shown: a handler of its opening cancelled it
    std::string chosen;          ///< name of the clicked tool; empty when it was closed
};

struct FontChoice {
    Font::Values before, after;
    bool accepted = false;
};

struct HelpCall {
    WindowHandle owner = 0;
    std::string file;
    std::int32_t context = 0;
};

/// A choice of a variable or of a folder; `chosen` is what the caller got.
struct Choice {
    WindowHandle owner = 0;
    std::string current, chosen;
};

/// A call of a stand-in's member by name.
struct ComponentCall {
    std::string component, member;
    std::vector<automation::Variant> arguments;
};

struct SentKeys {
    std::string form, keys;
};

/// Everything that a user met on a host, in order. A reader may take entries out.
struct Record {
    std::vector<ShownMessage> messages;
    std::vector<ModalForm> modals;
    std::vector<PopUp> popUps;
    std::vector<FontChoice> fonts;
    std::int32_t beeps = 0;
    std::vector<Pointer> pointers;  ///< each pointer that was set
    std::vector<SentKeys> sentKeys;
    std::vector<std::string> broughtToFront;  ///< form names
    std::vector<HelpCall> help;
    std::int32_t helpCloses = 0;
    std::vector<std::string> components;  ///< program identifiers asked for
    std::vector<ComponentCall> componentCalls;
    std::vector<Choice> items, folders;
};

}  // namespace hx::forms
