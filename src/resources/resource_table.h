// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "automation/sentence.h"
#include "host/system_services.h"

namespace hx::resources {

/// Every visible text by number, in the language chosen when the table is built. German stands under its number,
/// English under the number + 100000.
class ResourceTable {
  public:
    /// Reads the language from the registry (value "LCID"; 1033 is English, all else German) and registers all texts. A
    /// table that is filled again keeps its language when the registry names another code than 1031 and 1033.
    void InitResources(const host::Registry& registry);
    /// Registers a text in German (0) and English (1). The first registration of a number wins.
    void AddResource(std::int32_t id, const std::array<std::string_view, 2>& texts);
    /// Never fails: an unknown number gives "Resource " + id + " not found".
    [[nodiscard]] std::string GetResource(std::int32_t id) const;
    /// The language of the texts.
    [[nodiscard]] automation::Language wording() const noexcept {
        return offset_ == 0 ? automation::Language::german : automation::Language::english;
    }
    /// The language code that was read (a Windows locale identifier).
    [[nodiscard]] std::int32_t language() const noexcept { return language_; }

  private:
    std::unordered_map<std::string, std::string> texts_;
    std::int32_t offset_ = 0;
    std::int32_t language_ = 1031;
};

}  // namespace hx::resources
