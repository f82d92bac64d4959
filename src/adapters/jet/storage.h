// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "adapters/jet/bytes.h"

namespace hx::jet {

/// An open file. Everything but close and unlock throws automation::Error, which names the file.
class File {
  public:
    enum class Lock : std::uint8_t { none, shared, reserved, exclusive };

    virtual ~File() = default;
    /// Bytes beyond the end are read as zeros.
    virtual void read(std::uint64_t offset, std::span<Byte> bytes) = 0;
    virtual void write(std::uint64_t offset, Bytes bytes) = 0;
    virtual void truncate(std::uint64_t size) = 0;
    /// Returns when a power failure can no longer take what was written, nor the name of a journal.
    virtual void sync() = 0;
    [[nodiscard]] virtual std::uint64_t size() = 0;

    /// Many may share; one of them may hold it reserved, for writing later; exclusive means alone. Waits as long as the
    /// session waits for locks.
    virtual void lock(Lock lock) = 0;
    /// The same without waiting: false when another is in the way.
    [[nodiscard]] virtual bool tryLock(Lock lock) = 0;
    /// Back to shared or none.
    virtual void unlock(Lock lock) noexcept = 0;
    /// Whether anybody, here or elsewhere, holds it reserved or more.
    [[nodiscard]] virtual bool isReserved() = 0;
    [[nodiscard]] virtual bool isReadOnly() const noexcept = 0;
};

/// Where a project and what stands beside it lie.
class Storage {
  public:
    enum class Kind : std::uint8_t { project, journal, users };

    virtual ~Storage() = default;
    [[nodiscard]] virtual const std::string& path() const noexcept = 0;
    /// What stands beside the project is made when it is missing; null when that cannot be done for the users' file.
    [[nodiscard]] virtual std::unique_ptr<File> open(Kind kind, const std::string& path) = 0;
    [[nodiscard]] virtual bool exists(const std::string& path) = 0;
    /// Returns when a power failure can no longer bring it back.
    virtual void remove(const std::string& path) = 0;
    /// The same of a file that is open and locked, and ends that: nobody else gets it in between, where the system can.
    virtual void removeOpen(std::unique_ptr<File> file, const std::string& path) = 0;
    /// Waits a little because another program is in the way; false when it has been waited for long enough.
    [[nodiscard]] virtual bool wait(int earlierWaits) = 0;
};

}  // namespace hx::jet
