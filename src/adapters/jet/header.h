// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/bytes.h"
#include "adapters/jet/page_cache.h"

namespace hx::jet {

/// What begins every database of the family.
enum class FileKind : std::uint8_t { none, jet3, jet4, later };

/// What a file is, by its first bytes (at least 24).
[[nodiscard]] FileKind fileKindOf(Bytes start) noexcept;

/// The first page of a database, whose most part is hidden behind a fixed pattern.
class Header {
  public:
    explicit Header(Bytes page);

    /// The pages are encrypted.
    [[nodiscard]] bool isEncrypted() const noexcept;
    [[nodiscard]] bool hasPassword() const noexcept;

    /// The first page of a new database.
    [[nodiscard]] static PageBytes make();

  private:
    Byte bytes_[128];
};

}  // namespace hx::jet
