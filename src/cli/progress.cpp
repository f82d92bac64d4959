// SPDX-License-Identifier: MIT
#include "cli/progress.h"

#include <algorithm>
#include <utility>

#include "automation/cancelled.h"

namespace hx::cli {

namespace {

constexpr auto patience = std::chrono::milliseconds(500);
constexpr int barWidth = 40;
constexpr int whole = 100;
constexpr std::int64_t rowsBetween = 10'000;

std::string lineOf(std::int64_t done, std::int64_t total) {
    if (total == 0) return std::to_string(done) + " rows";
    // A file may grow while it is read.
    const std::int64_t percent = std::min(done, total) * whole / total;
    const auto filled = static_cast<std::size_t>(percent * barWidth / whole);
    return "[" + std::string(filled, '#') + std::string(barWidth - filled, '.') + "] " + std::to_string(percent) + " %";
}

}  // namespace

Progress::Progress(const Output& output, std::function<Clock::time_point()> now)
    : output_(output), now_(std::move(now)) {}

Progress::~Progress() {
    if (!drawn_.empty()) output_.problems << "\r\x1B[K" << std::flush;
}

void Progress::reach(std::int64_t done, std::int64_t total) {
    if (interruption_.requested()) throw automation::Cancelled();
    if (total != total_) next_ = 0;
    total_ = total;
    if (!output_.problemsAreShown || done < next_) return;
    next_ = done + (total == 0 ? rowsBetween : total / whole);
    if (now_() - start_ >= patience) draw(lineOf(done, total));
}

void Progress::draw(const std::string& line) {
    if (line == drawn_) return;
    const bool shorter = line.size() < drawn_.size();
    drawn_ = line;
    output_.problems << '\r' << line << (shorter ? "\x1B[K" : "") << std::flush;
}

}  // namespace hx::cli
