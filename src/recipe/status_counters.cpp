// SPDX-License-Identifier: MIT
#include <limits>

#include "recipe/mhxrcp_hirarch_func.h"
#include "resources/text_ids.h"

namespace hx::recipe {

namespace text = resources::text_id;

namespace {

std::int32_t sum(std::int32_t a, std::int32_t b) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t wide = std::int64_t{a} + b;
    if (wide < Limits::min() || wide > Limits::max()) throw automation::Error(automation::errOverflow, "Overflow");
    return static_cast<std::int32_t>(wide);
}

}  // namespace

void StatusCounters::UpdateStatusCounters(forms::StatusBar& bar, const resources::ResourceTable& texts,
                                          const std::string& function, Mode mode, std::int32_t& recipes,
                                          std::int32_t& members) {
    switch (mode) {
        case Mode::add: {
            const std::int32_t allRecipes = sum(recipes_, recipes);
            members_ = sum(members_, members);
            recipes_ = allRecipes;
            break;
        }
        case Mode::reset: recipes_ = members_ = 0; break;
        case Mode::set:
            recipes_ = recipes;
            members_ = members;
            break;
        case Mode::get:
            recipes = recipes_;
            members = members_;
            break;
    }
    bar.panel(1).setText(texts.GetResource(text::panelFunction) + function);
    bar.panel(2).setText(texts.GetResource(text::panelRecipes) + std::to_string(recipes_));
    bar.panel(3).setText(texts.GetResource(text::panelMembers) + std::to_string(members_));
}

}  // namespace hx::recipe
