// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <string_view>

#include "automation/error.h"

namespace hx::qt {

inline constexpr std::int32_t errClassNotRegistered = automation::hresult(0x80040154);

/// The file that a component comes from: for "HXRecipeEditor.Connect" HXRecipeEditor.so, on Windows HXRecipeEditor.dll,
/// in the first of the folders that has it. Throws errClassNotRegistered when none has.
[[nodiscard]] QString addInFile(const QStringList& folders, std::string_view programId);

}  // namespace hx::qt
