// SPDX-License-Identifier: MIT
#include "cli/interruption.h"

#include <gtest/gtest.h>

namespace hx::cli {

namespace {

// How the signal is handled now.
auto handlerOf(int signal) {
    const auto handler = std::signal(signal, SIG_DFL);
    std::signal(signal, handler);
    return handler;
}

TEST(Interruption, IsNotedOnceAndLeavesTheNextSignalOfEitherKindToTheSystem) {
    for (const int signal : {SIGINT, SIGTERM}) {
        const Interruption interruption;
        EXPECT_FALSE(interruption.requested());
        EXPECT_NE(handlerOf(SIGINT), SIG_DFL);
        std::raise(signal);
        EXPECT_TRUE(interruption.requested());
        EXPECT_EQ(handlerOf(SIGINT), SIG_DFL);
        EXPECT_EQ(handlerOf(SIGTERM), SIG_DFL);
    }
}

TEST(Interruption, LeavesASignalShutOffThatTheCallerHasShutOff) {
    const auto before = std::signal(SIGINT, SIG_IGN);
    {
        const Interruption interruption;
        std::raise(SIGINT);
        EXPECT_FALSE(interruption.requested());
        std::raise(SIGTERM);
        EXPECT_TRUE(interruption.requested());
    }
    EXPECT_EQ(handlerOf(SIGINT), SIG_IGN);
    std::signal(SIGINT, before);
}

}  // namespace

}  // namespace hx::cli
