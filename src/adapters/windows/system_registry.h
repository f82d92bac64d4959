// SPDX-License-Identifier: MIT
#pragma once

#include "host/system_services.h"

namespace hx::windows {

/// HKEY_LOCAL_MACHINE. What a program of the other width has written is read too: a value is looked for in the view of
/// this program, then in the other. A value of the other kind counts as missing. Written is into the own view.
class SystemRegistry : public host::Registry {
  public:
    [[nodiscard]] std::string readString(std::string_view key, std::string_view value,
                                         std::string_view fallback = {}) const override;
    [[nodiscard]] std::int32_t readNumber(std::string_view key, std::string_view value,
                                          std::int32_t fallback) const override;
    void writeString(std::string_view key, std::string_view value, std::string_view data) override;
    void writeNumber(std::string_view key, std::string_view value, std::int32_t data) override;
};

}  // namespace hx::windows
