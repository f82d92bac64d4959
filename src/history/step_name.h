// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "automation/sentence.h"
#include "history/change_log.h"
#include "history/surprise.h"

namespace hx::history {

/// What a step did, to be said in either language.
struct StepName {
    enum class Kind : std::uint8_t {
        named,  ///< `first` as it stands: a command
        recipeAdded,
        recipeDeleted,
        recipeRenamed,
        recipeChanged,
        variableAdded,
        variableRemoved,
        variableChanged,
        subRecipeAdded,
        subRecipeRemoved,
        subRecipeChanged,
        elementsAdded,
        elementsRemoved,
        elementsChanged,
        listChanged,
        manyChanged,
        otherChanged,
        macro,  ///< called `first`
    };
    Kind kind = Kind::otherChanged;
    std::string first, second;  ///< names of recipes and variables
    std::int64_t recipes = 0;   ///< changed rows of the table of recipes,
    std::int64_t rows = 0;      ///< of all other tables
    /// Where it was: IDs of a recipe and of a member in it; 0 for none.
    std::int64_t recipe = 0, member = 0;

    [[nodiscard]] std::string text(automation::Language language) const;
};

/// What is to be said of a step.
struct Account {
    StepName name;
    std::optional<Surprise> surprise;
};

/// What was changed. Asks the session, in which the changes have been made, for what they do not tell.
[[nodiscard]] Account accountOf(const ChangeLog& changes, ado::Session& session);

}  // namespace hx::history
