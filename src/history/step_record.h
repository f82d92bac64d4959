// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "history/history.h"

/// How steps stand in a journal.
namespace hx::history {

[[nodiscard]] std::string recordOf(const Step& step, const ChangeLog& changes);
/// So many steps are done.
[[nodiscard]] std::string recordOf(std::size_t position);

// Nothing of a record of the other kind.
[[nodiscard]] std::optional<Step> stepIn(std::string_view record);
[[nodiscard]] std::optional<std::size_t> positionIn(std::string_view record);
/// Of a step.
[[nodiscard]] ChangeLog changesIn(std::string_view record);

}  // namespace hx::history
