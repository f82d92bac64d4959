// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "automation/error.h"
#include "automation/sentence.h"

namespace hx::sqlite {

/// What is in the file makes no sense: nobody can read it any further.
class DamagedFile : public automation::Error {
  public:
    explicit DamagedFile(const automation::Error& error) : Error(error) {}
};

[[nodiscard]] bool isDamage(int code) noexcept;

/// SQLite's (extended) result code and message as an error that says what happened to which file.
[[nodiscard]] automation::Error errorOf(int code, std::string_view message, const std::string& path,
                                        automation::Language language);

}  // namespace hx::sqlite
