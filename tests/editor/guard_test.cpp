// SPDX-License-Identifier: MIT
#include "editor/guard.h"

#include <stdexcept>

#include "editor_window.h"

namespace hx::editor {
namespace {

struct Guarded : EditorWindow {
    /// "title|text", shown while the editor is busy.
    template <class Action>
    std::string told(Action&& action) {
        host.record.messages.clear();
        host.script.onMessage = [this](const forms::ShownMessage& message) {
            EXPECT_TRUE(addIn.busyFlag);
            return message.defaultButton;
        };
        EXPECT_FALSE(guard(addIn, "mnuTest", action));
        EXPECT_FALSE(addIn.busyFlag);
        return host.record.messages.size() == 1 ? host.record.messages[0].title + "|" + host.record.messages[0].text
                                                : "";
    }
};

TEST_F(Guarded, WhateverFailsIsToldOnceUnderTheProcedure) {
    EXPECT_EQ(told([] { throw automation::Error(automation::errOverflow, "Too many."); }),
              "mnuTest|-2147352566: Too many.");
    EXPECT_EQ(told([] { throw std::runtime_error("No memory."); }), "mnuTest|-2147467259: No memory.");
    EXPECT_EQ(told([] { throw 5; }), "mnuTest|-2147467259: Unknown error");
}

}  // namespace
}  // namespace hx::editor
