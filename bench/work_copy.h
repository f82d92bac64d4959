// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "bench/projects.h"

namespace hx::bench {

/// A copy of a project for work that changes it; removed at the end.
class WorkCopy {
  public:
    /// There is no file before renew().
    explicit WorkCopy(const Project& original);
    ~WorkCopy();
    WorkCopy(const WorkCopy&) = delete;
    WorkCopy& operator=(const WorkCopy&) = delete;

    /// Makes the copy like the original again, and has it written to the disk. It must not be open.
    void renew();
    [[nodiscard]] const Project& project() const noexcept { return copy_; }

  private:
    Project original_;
    Project copy_;
};

/// What works on a copy of its own, opened anew for every run.
template <class Opened>
class OnCopy {
  public:
    explicit OnCopy(const Project& original) : copy_(original) {}

    Opened& renew() {
        opened_.reset();
        copy_.renew();
        return opened_.emplace(copy_.project());
    }
    [[nodiscard]] Opened& opened() { return *opened_; }
    [[nodiscard]] const Project& project() const noexcept { return copy_.project(); }

  private:
    WorkCopy copy_;
    std::optional<Opened> opened_;  // closed before the copy goes
};

}  // namespace hx::bench
