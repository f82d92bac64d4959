#include "cli/progress.h"

#include <algorithm>
#include <string>

namespace hx::cli {

namespace {

constexpr auto patience = std::chrono::milliseconds(500);
constexpr int barWidth = 40;
constexpr int whole = 100;

}  // namespace

Progress::Progress(const Output& output, std::int64_t total, std::function<Clock::time_point()> now)
    : output_(output), total_(std::max<std::int64_t>(total, 1)), now_(std::move(now)) {}

Progress::~Progress() {
    if (drawn_ >= 0) output_.problems << "\r\x1B[K" << std::flush;
}

void Progress::reach(std::int64_t done) {
    if (!output_.problemsAreShown || done < next_) return;
    next_ = done + total_ / whole;
    if (now_() - start_ < patience) return;
    // A file may grow while it is read.
    const int percent = static_cast<int>(std::min(done, total_) * whole / total_);
    if (percent != drawn_) draw(percent);
}

void Progress::draw(int percent) {
    drawn_ = percent;
    const auto filled = static_cast<std::size_t>(percent * barWidth / whole);
    output_.problems << "\r[" << std::string(filled, '#') << std::string(barWidth - filled, '.') << "] " << percent
                     << " %" << std::flush;
}

}  // namespace hx::cli
