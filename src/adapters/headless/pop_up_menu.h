#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "adapters/headless/record.h"
#include "forms/bar.h"

namespace hx::headless {

/// What a user sees in a band shown as a menu.
[[nodiscard]] std::vector<PopUp::Entry> entriesOf(const forms::Bar& bar, const forms::Band& band);

/// The tool of that name that a user can reach from a band shown as a menu: one of its own, or one of a band that one
/// of its enabled menus opens. Throws errBadIndex when there is none.
[[nodiscard]] std::shared_ptr<forms::Tool> shownTool(forms::Bar& bar, const forms::Band& band, std::string_view name);

}  // namespace hx::headless
