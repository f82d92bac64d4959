// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace hx::torture {

/// Whether a file begins as a Jet database does.
[[nodiscard]] bool isJet(const std::string& project);
/// All rows of its tables as text, or "damaged: ..."; whatever it has left to take back is taken back first.
[[nodiscard]] std::string jetText(const std::string& project);
/// Changes it from outside. Throws when that fails.
void changeJet(const std::string& project, const std::string& sql);

}  // namespace hx::torture
