// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "hosting/disk.h"

namespace hx::hosting {

/// The disk, of which one step fails: the first, the second, and so on. Counted are the steps that can fail.
class FailingDisk : public Disk {
  public:
    explicit FailingDisk(int failing = 0, std::errc why = std::errc::io_error) : failing_(failing), why_(why) {}

    /// What was done, a name a step.
    [[nodiscard]] const std::vector<std::string>& steps() const noexcept { return steps_; }

    std::error_code create(const Path& path, const Path& like, Handle& file) const override {
        const auto code = next("create");
        return code ? code : disk_.create(path, like, file);
    }
    /// A write that fails leaves the first half.
    std::error_code write(Handle file, std::string_view bytes) const override {
        const auto code = next("write");
        const auto written = disk_.write(file, code ? bytes.substr(0, bytes.size() / 2) : bytes);
        return code ? code : written;
    }
    std::error_code sync(Handle file) const override {
        const auto code = next("sync");
        return code ? code : disk_.sync(file);
    }
    void close(Handle handle) const noexcept override { disk_.close(handle); }
    std::error_code rename(const Path& from, const Path& to) const override {
        const auto code = next("rename");
        return code ? code : disk_.rename(from, to);
    }
    std::error_code renameNew(const Path& from, const Path& to) const override {
        const auto code = next("renameNew");
        return code ? code : disk_.renameNew(from, to);
    }
    std::error_code syncFolder(const Path& folder) const override {
        const auto code = next("syncFolder");
        return code ? code : disk_.syncFolder(folder);
    }
    void removeAbandoned(const Path& path) const noexcept override { disk_.removeAbandoned(path); }
    [[nodiscard]] std::vector<std::string> names(const Path& folder) const override { return disk_.names(folder); }
    [[nodiscard]] std::optional<Handle> tryLock(const Path& folder) const override { return disk_.tryLock(folder); }

  private:
    [[nodiscard]] std::error_code next(const char* step) const {
        steps_.emplace_back(step);
        return static_cast<int>(steps_.size()) == failing_ ? std::make_error_code(why_) : std::error_code();
    }

    const Disk& disk_ = systemDisk();
    int failing_;
    std::errc why_;
    mutable std::vector<std::string> steps_;
};

}  // namespace hx::hosting
