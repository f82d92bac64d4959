// SPDX-License-Identifier: MIT
#pragma once

#include "hosting/disk.h"

namespace hx::hosting {

/// Files in use and locked folders are marked for others by what ends with the process however that ends.
class SystemDisk : public Disk {
  public:
    std::error_code create(const Path& path, const Path& like, Handle& file) const override;
    std::error_code write(Handle file, std::string_view bytes) const override;
    std::error_code sync(Handle file) const override;
    void close(Handle handle) const noexcept override;
    std::error_code rename(const Path& from, const Path& to) const override;
    std::error_code renameNew(const Path& from, const Path& to) const override;
    std::error_code syncFolder(const Path& folder) const override;
    void removeAbandoned(const Path& path) const noexcept override;
    [[nodiscard]] std::vector<std::string> names(const Path& folder) const override;
    [[nodiscard]] std::optional<Handle> tryLock(const Path& folder) const override;
};

}  // namespace hx::hosting
