// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <vector>

namespace hx::faults {

/// What a disk would still hold if the power failed now: remembers of each file what was synchronised last, and of each
/// name what its folder held then.
class Power {
  public:
    /// The file is about to be opened for writing; `truncates` when it is emptied by that.
    void opens(const std::string& path, bool truncates);
    /// A file that was not there has been made and got this name.
    void made(const std::string& path);
    void wrote(int file, off_t offset, std::size_t bytes);
    void resized(int file);
    void synced(int file);
    /// A name is about to be taken away, or given to another file.
    void removes(const std::string& path);
    void renames(const std::string& from, const std::string& to);
    /// Another name for a file.
    void linked(const std::string& path) { made(path); }
    /// Takes back what was not synchronised, and ends the process.
    [[noreturn]] void cut();

  private:
    struct Change {
        off_t offset;
        std::string bytes;
        bool resizes;
    };
    struct File {
        int handle = -1;
        std::string durable;
        std::vector<Change> changes;
    };
    /// A name as it was before: `kept` is the file that it stood for, `from` the name that this one had.
    struct Name {
        std::string path, kept, from;
    };
    using Identity = std::pair<dev_t, ino_t>;

    File* known(int file);
    File& track(int file, bool isNew);
    std::string keep(const std::string& path);
    void takeBackNames(std::size_t count);
    void restore(const File& file) const;
    [[nodiscard]] bool survives();

    std::recursive_mutex mutex_;
    std::map<Identity, File> files_;
    std::vector<Name> names_;
    int kept_ = 0;
    std::uint64_t chance_ = 0;
};

Power& power();

}  // namespace hx::faults
