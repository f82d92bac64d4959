// SPDX-License-Identifier: MIT
#include <array>
#include <csignal>
#include <unistd.h>

#include "cli/unfinished_file.h"

namespace hx::cli {

namespace {

// A signal reaches nothing but what is global. The texts are the living object's.
std::array<const char*, 2> unfinished{};

constexpr std::array signals{SIGINT, SIGTERM, SIGHUP};
std::array<struct sigaction, signals.size()> actionsBefore{};

extern "C" void takeAway(int signal) {
    for (const char* path : unfinished) unlink(path);
    raise(signal);  // now as if nobody had asked
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::filesystem::path& path) : path_(path), journal_(path) {
    journal_ += "-journal";
    unfinished = {path_.c_str(), journal_.c_str()};
    for (std::size_t i = 0; i < signals.size(); ++i) {
        struct sigaction action {};
        action.sa_handler = takeAway;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
        sigaction(signals[i], nullptr, &actionsBefore[i]);
        // One that the caller has shut off, as for a program in the background, stays shut off.
        if (actionsBefore[i].sa_handler != SIG_IGN) sigaction(signals[i], &action, nullptr);
    }
}

UnfinishedFile::~UnfinishedFile() {
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &actionsBefore[i], nullptr);
}

}  // namespace hx::cli
