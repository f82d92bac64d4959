// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace hx::report {

/// The look of the report in a browser and on its paper.
extern const std::string_view htmlStyle;

}  // namespace hx::report
