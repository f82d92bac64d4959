#include "cli/interruption.h"

namespace hx::cli {

namespace {

// A signal reaches nothing but what is global.
volatile std::sig_atomic_t signalled = 0;

void note(int signal) {
    signalled = 1;
    std::signal(signal, SIG_DFL);
}

}  // namespace

Interruption::Interruption() {
    signalled = 0;
    interruptBefore_ = std::signal(SIGINT, note);
    endBefore_ = std::signal(SIGTERM, note);
}

Interruption::~Interruption() {
    std::signal(SIGINT, interruptBefore_);
    std::signal(SIGTERM, endBefore_);
}

bool Interruption::requested() const noexcept { return signalled != 0; }

}  // namespace hx::cli
