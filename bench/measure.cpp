// SPDX-License-Identifier: MIT
#include "bench/measure.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <malloc.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace hx::bench {

namespace {

using Clock = std::chrono::steady_clock;

double medianOf(std::vector<double> values) {
    if (values.empty()) return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// A line of /proc/self/status, "VmRSS:     1234 kB", in megabytes.
double statusMegabytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        constexpr double kilobytesPerMegabyte = 1024;
        if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1)) / kilobytesPerMegabyte;
    }
    return 0;
}

// From now on the peak counts from the present size.
void forgetPeak() { std::ofstream("/proc/self/clear_refs") << "5"; }

double timed(const Work& work) {
    if (work.spent) return work.spent();
    if (work.before) work.before();
    const auto start = Clock::now();
    work.action();
    const double spent = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    if (work.after) work.after();
    return spent;
}

std::vector<double> runAll(const Subject& subject, int runs) {
    const Work work = subject();
    malloc_trim(0);  // what was used and freed before must not serve the first run unseen
    forgetPeak();
    const double before = statusMegabytes("VmRSS");
    std::vector<double> numbers = {0, timed(work)};
    numbers[0] = statusMegabytes("VmHWM") - before;
    for (int run = 1; run < runs; ++run) numbers.push_back(timed(work));
    return numbers;
}

void writeAll(int pipe, const std::vector<double>& numbers) {
    const char* bytes = reinterpret_cast<const char*>(numbers.data());
    for (std::size_t left = numbers.size() * sizeof(double); left > 0;) {
        const ssize_t written = ::write(pipe, bytes, left);
        if (written <= 0) std::abort();
        bytes += written;
        left -= static_cast<std::size_t>(written);
    }
}

[[noreturn]] void runChild(const Subject& subject, int runs, int pipe) {
    try {
        writeAll(pipe, runAll(subject, runs));
        std::_Exit(EXIT_SUCCESS);
    } catch (const std::exception& error) {
        std::cerr << "hx_bench: " << error.what() << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

}  // namespace

double Cost::median() const { return medianOf(milliseconds); }

double Cost::worst() const {
    return milliseconds.empty() ? 0 : *std::max_element(milliseconds.begin(), milliseconds.end());
}

Cost measure(const Subject& subject, int runs) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) runChild(subject, runs, ends[1]);
    ::close(ends[1]);
    std::vector<double> numbers(static_cast<std::size_t>(runs) + 1);
    std::size_t got = 0;
    for (ssize_t more = 1; more > 0;) {
        more = ::read(ends[0], reinterpret_cast<char*>(numbers.data()) + got, numbers.size() * sizeof(double) - got);
        if (more > 0) got += static_cast<std::size_t>(more);
    }
    ::close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0 || got != numbers.size() * sizeof(double)) throw std::runtime_error("a measurement failed");
    return {{numbers.begin() + 1, numbers.end()}, numbers[0]};
}

std::vector<Cost> compare(const std::vector<Subject>& subjects, int rounds, int runs) {
    std::vector<Cost> costs(subjects.size());
    std::vector<std::vector<double>> memory(subjects.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            if (!subjects[i]) continue;
            const Cost cost = measure(subjects[i], runs);
            costs[i].milliseconds.insert(costs[i].milliseconds.end(), cost.milliseconds.begin(),
                                         cost.milliseconds.end());
            memory[i].push_back(cost.megabytes);
        }
    }
    for (std::size_t i = 0; i < subjects.size(); ++i) costs[i].megabytes = medianOf(memory[i]);
    return costs;
}

}  // namespace hx::bench
