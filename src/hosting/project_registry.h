// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/system_services.h"

namespace hx::hosting {

/// The registry as the add-ins of a studio see it. Where the open project lies is answered by the studio itself:
/// another program may record a project of the same name elsewhere at any time. All else is the registry's own.
class ProjectRegistry : public host::Registry {
  public:
    /// The registry is lent.
    explicit ProjectRegistry(host::Registry& registry) : registry_(registry) {}

    /// Records the folder of a project, which is open from now on. Throws automation::Error when it cannot be written;
    /// no project is open then.
    void open(std::string_view name, const std::string& folder);
    void close() noexcept { key_.clear(); }
    /// Where the project of a name lies: the open one, else the one that was recorded last. Empty when none is known.
    [[nodiscard]] std::string folderOf(std::string_view name) const;

    [[nodiscard]] std::string readString(std::string_view key, std::string_view value,
                                         std::string_view fallback = {}) const override;
    [[nodiscard]] std::int32_t readNumber(std::string_view key, std::string_view value,
                                          std::int32_t fallback) const override;
    void writeString(std::string_view key, std::string_view value, std::string_view data) override;
    void writeNumber(std::string_view key, std::string_view value, std::int32_t data) override;

  private:
    host::Registry& registry_;
    std::string key_, folder_;  ///< of the open project; no key while none is open
};

}  // namespace hx::hosting
