// SPDX-License-Identifier: MIT
#include "torture/process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string_view>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hx::torture {

namespace {

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> merged(const Environment& environment) {
    std::vector<std::string> lines;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view line = *entry;
        if (!environment.contains(std::string(line.substr(0, line.find('='))))) lines.emplace_back(line);
    }
    for (const auto& [name, value] : environment) lines.push_back(name + "=" + value);
    return lines;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> list;
    for (std::string& text : texts) list.push_back(text.data());
    list.push_back(nullptr);
    return list;
}

}  // namespace

std::string Ending::words() const {
    std::string text = late          ? "did not end"
                       : signal != 0 ? std::string("ended by ") + strsignal(signal)
                                     : "status " + std::to_string(status);
    text += "; " + output + problems;
    std::ranges::replace(text, '\n', ' ');
    return text.substr(0, 600);
}

Process::Process(const Command& command, const std::string& folder, const Environment& environment)
    : output_(folder + "/output"), problems_(folder + "/problems") {
    Command arguments = command;
    std::vector<std::string> variables = merged(environment);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int fresh = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output_.c_str(), fresh, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, problems_.c_str(), fresh, 0600);
    const int error = posix_spawn(&process_, arguments[0].c_str(), &actions, nullptr, pointers(arguments).data(),
                                  pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::runtime_error(arguments[0] + " cannot be started: " + std::strerror(error));
    handle_ = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
    if (handle_ < 0) throw std::runtime_error("a process cannot be waited for");
}

Process::~Process() {
    if (process_ > 0) {
        kill();
        waitpid(process_, nullptr, 0);
    }
    if (handle_ >= 0) close(handle_);
}

bool Process::endsWithin(std::chrono::microseconds time) {
    pollfd waits{handle_, POLLIN, 0};
    const timespec limit{time.count() / 1'000'000, time.count() % 1'000'000 * 1000};
    return ppoll(&waits, 1, &limit, nullptr) > 0;
}

void Process::kill() { ::kill(process_, SIGKILL); }

Ending Process::wait() {
    Ending ending;
    ending.late = !endsWithin(patience);
    if (ending.late) kill();
    int state = 0;
    waitpid(process_, &state, 0);
    process_ = -1;
    if (WIFEXITED(state)) ending.status = WEXITSTATUS(state);
    if (WIFSIGNALED(state)) ending.signal = WTERMSIG(state);
    ending.output = contents(output_);
    ending.problems = contents(problems_);
    return ending;
}

}  // namespace hx::torture
