// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "hosting/disk.h"

namespace hx::history {

/// The file in which the steps of one project stand while it is open: a crash leaves it behind. It lies in a folder of
/// its own, which is locked as long as the journal is there, and goes away with it.
class Journal {
  public:
    using Path = std::filesystem::path;
    /// Where a record stands.
    struct Place {
        std::uint64_t at = 0, size = 0;
    };
    using Receiver = std::function<void(std::string_view record, const Place& place)>;

    /// For this project, in a folder below `cache`. What a program that has ended in another way than by close() left
    /// of the project is gone on with: `receive` gets its whole records. Throws nothing: a journal that cannot be
    /// written is not there.
    Journal(const Path& cache, const std::string& project, const Receiver& receive,
            const hosting::Disk& disk = hosting::systemDisk());
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Puts a record at the end. Nothing when it cannot be written; no further one is taken then.
    [[nodiscard]] std::optional<Place> append(std::string_view record);
    /// What append() has put there; nothing when it cannot be read or is not the same any more.
    [[nodiscard]] std::optional<std::string> read(const Place& place);
    /// The program ends as it should: nothing is left. Without it the destructor leaves all where it is.
    void close() noexcept;

  private:
    void open(const Path& folder);
    void goOnWith(const Receiver& receive);
    [[nodiscard]] std::optional<std::string> recordAt(std::uint64_t at);

    const hosting::Disk& disk_;
    Path folder_;
    std::optional<hosting::Disk::Handle> lock_;
    std::fstream file_;
    std::uint64_t end_ = 0;
};

}  // namespace hx::history
