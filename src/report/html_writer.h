// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "report/report.h"

namespace hx::report {

/// Takes the next part of a text, after which so many recipes are written.
using TextSink = std::function<void(std::string_view part, std::size_t recipes)>;

/// Writes the report as one HTML file in UTF-8 that needs no other file, a recipe at a time: a table of contents and
/// links from each mention of a recipe to its section.
void writeHtml(const Report& report, const TextSink& sink);

}  // namespace hx::report
