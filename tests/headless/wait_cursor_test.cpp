// SPDX-License-Identifier: MIT
#include "forms/wait_cursor.h"

#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "support/memory_provider.h"

namespace hx::forms {
namespace {

TEST(WaitCursor, ShowsTheHourglassAndTheDefaultPointerAgain) {
    support::MemoryProvider provider;
    headless::Host host(provider);
    ShowWaitCursor(host.screen);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::hourglass);
    RestoreCursor(host.screen);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
}

TEST(WaitCursor, IsRestoredWhenTheWorkEndsWithAnError) {
    support::MemoryProvider provider;
    headless::Host host(provider);
    try {
        const WaitCursor wait(host.screen);
        EXPECT_EQ(host.screen.pointer(), forms::Pointer::hourglass);
        throw automation::Error(automation::errFail, "The disk is full.");
    } catch (const automation::Error&) {
        EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
    }
}

}  // namespace
}  // namespace hx::forms
