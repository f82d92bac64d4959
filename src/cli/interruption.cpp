// SPDX-License-Identifier: MIT
#include "cli/interruption.h"

namespace hx::cli {

namespace {

// A signal reaches nothing but what is global.
volatile std::sig_atomic_t signalled = 0;

void note(int) {
    signalled = 1;
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

// One that the caller has shut off, as for a program in the background, stays shut off.
auto noteSignal(int signal) {
    const auto before = std::signal(signal, note);
    if (before == SIG_IGN) std::signal(signal, SIG_IGN);
    return before;
}

}  // namespace

Interruption::Interruption() {
    signalled = 0;
    interruptBefore_ = noteSignal(SIGINT);
    endBefore_ = noteSignal(SIGTERM);
}

Interruption::~Interruption() {
    std::signal(SIGINT, interruptBefore_);
    std::signal(SIGTERM, endBefore_);
}

bool Interruption::requested() const noexcept { return signalled != 0; }

}  // namespace hx::cli
