// SPDX-License-Identifier: MIT
#include "torture/faults/plan.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

#include "torture/faults/power.h"

namespace hx::faults {

namespace {

constexpr auto modes = std::to_array<std::pair<std::string_view, Plan::Mode>>({
    {"count", Plan::Mode::count},
    {"full", Plan::Mode::full},
    {"broken", Plan::Mode::broken},
    {"gone", Plan::Mode::gone},
    {"short", Plan::Mode::shortened},
    {"kill", Plan::Mode::kill},
    {"cut", Plan::Mode::cut},
    {"memory", Plan::Mode::memory},
});

constexpr std::array kinds = {"make", "write", "sync", "truncate", "rename", "remove"};

std::string environment(const char* name) {
    const char* text = std::getenv(name);
    return text == nullptr ? std::string() : text;
}

Plan::Mode modeOf(std::string_view name) {
    for (const auto& [text, mode] : modes) {
        if (text == name) return mode;
    }
    return Plan::Mode::off;
}

}  // namespace

thread_local int Inside::depth = 0;

Plan::Plan()
    : folder_(environment("HX_FAULTS_FOLDER")),
      side_(environment("HX_FAULTS_SIDE")),
      keep_(environment("HX_FAULTS_KEEP")),
      at_(std::atol(environment("HX_FAULTS_AT").c_str())) {
    if (folder_.empty()) return;
    mode_ = modeOf(environment("HX_FAULTS_MODE"));
    folder_ += '/';
    const std::string log = environment("HX_FAULTS_LOG");
    if (log.empty()) return;
    log_ =
        static_cast<int>(syscall(SYS_openat, AT_FDCWD, log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
}

bool Plan::concerns(std::string_view path) const {
    return mode_ != Mode::off && mode_ != Mode::memory && path.starts_with(folder_);
}

int Plan::fault(Kind kind, const std::string& path) {
    const long number = ++count_;
    if (mode_ == Mode::count) log(kinds[static_cast<std::size_t>(kind)] + (" " + path.substr(folder_.size())));
    if (number < at_) return 0;
    switch (mode_) {
        case Mode::full: return kind == Kind::make || kind == Kind::write ? ENOSPC : 0;
        case Mode::broken: return number == at_ ? EIO : 0;
        case Mode::gone: return EIO;
        case Mode::shortened: shortens_ = shortens_ || number == at_; return 0;
        case Mode::kill: kill(getpid(), SIGKILL); break;
        case Mode::cut: power().cut(); break;
        default: break;
    }
    return 0;
}

std::size_t Plan::permitted(std::size_t bytes) { return bytes > 1 && shortens_.exchange(false) ? bytes / 2 : bytes; }

bool Plan::grants() { return mode_ != Mode::memory || ++blocks_ != at_; }

void Plan::logBlocks() const { log(std::to_string(blocks_)); }

void Plan::log(const std::string& line) const {
    const std::string ended = line + "\n";
    if (log_ >= 0) syscall(SYS_write, log_, ended.data(), ended.size());
}

Plan& plan() {
    const Inside inside;
    static Plan& made = *new Plan;  // calls come until the very end of the process
    return made;
}

}  // namespace hx::faults
