// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "automation/error.h"
#include "automation/variant.h"
#include "host/system_services.h"

namespace hx::headless {

/// A registry that lives as long as its object. A value of the other kind counts as missing.
class MemoryRegistry : public host::Registry {
  public:
    [[nodiscard]] std::string readString(std::string_view key, std::string_view value,
                                         std::string_view fallback = {}) const override;
    [[nodiscard]] std::int32_t readNumber(std::string_view key, std::string_view value,
                                          std::int32_t fallback) const override;
    void writeString(std::string_view key, std::string_view value, std::string_view data) override;
    void writeNumber(std::string_view key, std::string_view value, std::int32_t data) override;

    /// From now on every access throws this error; given nothing, it works again.
    void failWith(std::optional<automation::Error> error) { error_ = std::move(error); }
    /// How often a value was read.
    [[nodiscard]] std::int32_t reads() const noexcept { return reads_; }

  private:
    using Place = std::pair<std::string, std::string>;  ///< key and value name, folded
    [[nodiscard]] static Place placeOf(std::string_view key, std::string_view value);
    [[nodiscard]] const automation::Variant* find(std::string_view key, std::string_view value) const;
    void store(std::string_view key, std::string_view value, automation::Variant data);
    std::map<Place, automation::Variant> values_;
    std::optional<automation::Error> error_;
    mutable std::int32_t reads_ = 0;
};

}  // namespace hx::headless
