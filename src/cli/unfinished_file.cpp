// SPDX-License-Identifier: MIT
#include "cli/unfinished_file.h"

#include <unistd.h>

namespace hx::cli {

namespace {

// A signal reaches nothing but what is global. The texts are the living object's.
std::array<const char*, 2> unfinished{};

extern "C" void takeAway(int signal) {
    for (const char* path : unfinished) unlink(path);
    raise(signal);  // now as if nobody had asked
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::string& path) : path_(path), journal_(path + "-journal") {
    unfinished = {path_.c_str(), journal_.c_str()};
    for (std::size_t i = 0; i < signals.size(); ++i) {
        struct sigaction action {};
        action.sa_handler = takeAway;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
        sigaction(signals[i], nullptr, &before_[i]);
        // One that the caller has shut off, as for a program in the background, stays shut off.
        if (before_[i].sa_handler != SIG_IGN) sigaction(signals[i], &action, nullptr);
    }
}

UnfinishedFile::~UnfinishedFile() {
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &before_[i], nullptr);
}

}  // namespace hx::cli
