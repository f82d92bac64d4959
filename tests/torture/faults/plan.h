// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <string>
#include <string_view>

namespace hx::faults {

/// What a call does to a folder. A full disk refuses the first two alone.
enum class Kind { make, write, sync, truncate, rename, remove };

/// What happens to the calls of a process that change a folder, from the environment:
///
///   HX_FAULTS_FOLDER  the folder; without it nothing happens
///   HX_FAULTS_MODE    count   nothing but a line a call in the log
///                     full    the disk is full from the n-th call on
///                     broken  the n-th call fails, and no other
///                     gone    the n-th call fails, and every one after it
///                     short   the n-th call, or the first write behind it, writes half of what it should
///                     kill    the process ends before the n-th call
///                     cut     the power fails before the n-th call: what has not been synchronised is lost (power.h)
///                     memory  the n-th block that main asks for is refused, nothing else; the log gets their number
///   HX_FAULTS_AT      n, from 1
///   HX_FAULTS_LOG     the file for the lines
///   HX_FAULTS_SIDE    a folder on the same disk for what a power cut brings back
///   HX_FAULTS_KEEP    what of the unsynchronised survives a power cut: none, names, or a number that chooses
class Plan {
  public:
    enum class Mode { off, count, full, broken, gone, shortened, kill, cut, memory };

    Plan();

    /// Whether the path lies in the folder.
    [[nodiscard]] bool concerns(std::string_view path) const;
    /// Counts a call. Its errno when it must fail, else 0. Does not return when the process ends here.
    [[nodiscard]] int fault(Kind kind, const std::string& path);
    /// The bytes that a write may write.
    [[nodiscard]] std::size_t permitted(std::size_t bytes);
    /// Counts a block of memory; false when it must be refused.
    [[nodiscard]] bool grants();
    /// Puts the number of blocks into the log.
    void logBlocks() const;

    [[nodiscard]] Mode mode() const noexcept { return mode_; }
    [[nodiscard]] const std::string& side() const noexcept { return side_; }
    [[nodiscard]] const std::string& keep() const noexcept { return keep_; }

  private:
    void log(const std::string& line) const;

    Mode mode_ = Mode::off;
    std::string folder_, side_, keep_;
    long at_ = 0;
    std::atomic<long> count_ = 0, blocks_ = 0;
    std::atomic<bool> shortens_ = false;
    int log_ = -1;
};

/// The process's plan, made when it is asked for first.
Plan& plan();

/// The calls that the library itself makes while one of these lives are let through.
class Inside {
  public:
    Inside() noexcept { ++depth; }
    ~Inside() { --depth; }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
    [[nodiscard]] static bool any() noexcept { return depth > 0; }

  private:
    static thread_local int depth;
};

}  // namespace hx::faults
