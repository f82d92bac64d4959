// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace hx::hosting {

/// What writing a file carefully takes beyond the standard library; each operating system has an implementation of its
/// own. Nothing is thrown but std::bad_alloc: the codes say what went wrong.
class Disk {
  public:
    using Path = std::filesystem::path;
    using Handle = std::intptr_t;
    static constexpr Handle none = -1;

    virtual ~Disk() = default;

    /// Makes a file that is open for writing, and in use while it is open. It gets owner and permissions of the file
    /// `like`, as far as the system lets it, else the usual ones. file_exists when the name is taken, by a link too.
    virtual std::error_code create(const Path& path, const Path& like, Handle& file) const = 0;
    /// All bytes or an error.
    virtual std::error_code write(Handle file, std::string_view bytes) const = 0;
    /// Returns when a power failure can no longer take what the file holds.
    virtual std::error_code sync(Handle file) const = 0;
    virtual void close(Handle handle) const noexcept = 0;

    /// In one step; a file of the new name is replaced.
    virtual std::error_code rename(const Path& from, const Path& to) const = 0;
    /// The same, but file_exists when the new name is taken.
    virtual std::error_code renameNew(const Path& from, const Path& to) const = 0;
    /// Returns when a power failure can no longer take back what was renamed in the folder.
    virtual std::error_code syncFolder(const Path& folder) const = 0;
    /// Removes a file that create() made in a program that has ended since. One that is in use stays.
    virtual void removeAbandoned(const Path& path) const noexcept = 0;

    /// What a folder holds, by name; as much as can be read. The standard library's way through a folder ends the
    /// program when memory is short.
    [[nodiscard]] virtual std::vector<std::string> names(const Path& folder) const = 0;

    /// Locks a folder against others that lock it, in this process too, until it is closed or the process ends. Nothing
    /// while another holds it; Disk::none where folders cannot be locked.
    [[nodiscard]] virtual std::optional<Handle> tryLock(const Path& folder) const = 0;
};

/// The disks of the operating system.
[[nodiscard]] const Disk& systemDisk() noexcept;

}  // namespace hx::hosting
