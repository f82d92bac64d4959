// SPDX-License-Identifier: MIT
#include "torture/figures.h"

#include <algorithm>
#include <iomanip>

namespace hx::torture {

void Figures::add(const std::string& kind, const std::string& attempt, const std::string& problem) {
    const std::lock_guard lock(mutex_);
    Count& count = counts_[kind];
    ++count.tried;
    if (problem.empty()) return;
    ++count.failed;
    out_ << "FAILED " << kind << " " << attempt << ": " << problem << std::endl;
}

void Figures::print() {
    const std::lock_guard lock(mutex_);
    Count sum;
    for (const auto& [kind, count] : counts_) {
        out_ << std::left << std::setw(40) << kind << std::right << " tried " << std::setw(7) << count.tried
             << "  failed " << std::setw(5) << count.failed << "\n";
        sum.tried += count.tried;
        sum.failed += count.failed;
    }
    out_ << "in all: tried " << sum.tried << ", failed " << sum.failed << std::endl;
}

bool Figures::failed() const {
    const std::lock_guard lock(mutex_);
    return std::ranges::any_of(counts_, [](const auto& entry) { return entry.second.failed != 0; });
}

}  // namespace hx::torture
