// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/memory_registry.h"
#include "report/report.h"
#include "support/recipe_draft.h"

namespace hx::report {

using support::projectOf;

constexpr std::int32_t german = 1031, english = 1033;
constexpr Moment someDay{2025, 3, 5, 14, 7};

inline Texts textsIn(std::int32_t language) {
    headless::MemoryRegistry registry;
    registry.writeNumber(host::registry_keys::helvix, "LCID", language);
    Texts texts;
    texts.init(registry);
    return texts;
}

/// A recipe that includes those with these IDs.
inline support::RecipeDraft recipe(std::int32_t id, std::string name, const std::vector<std::int32_t>& children = {}) {
    support::RecipeDraft data;
    data.id = id;
    data.name = std::move(name);
    data.enabled = true;
    for (const std::int32_t child : children) data.subRecipes.push_back({child, ""});
    return data;
}

}  // namespace hx::report
