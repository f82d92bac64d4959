// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "forms/bar.h"
#include "forms/record.h"

namespace hx::forms {

/// What a user sees in a band shown as a menu.
[[nodiscard]] std::vector<PopUp::Entry> entriesOf(const Bar& bar, const Band& band);

/// The tool of that name that a user can reach from a band shown as a menu: one of its own, or one of a band that one
/// of its enabled menus opens. Throws errBadIndex when there is none.
[[nodiscard]] std::shared_ptr<Tool> shownTool(Bar& bar, const Band& band, std::string_view name);

}  // namespace hx::forms
