// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ado/provider.h"
#include "automation/sentence.h"

namespace hx::history {

/// What a step has done that its user may not have meant.
struct Surprise {
    enum class Kind : std::uint8_t {
        includedRecipeDeleted,  ///< `count` members of others still name it
        subRecipesDropped,      ///< `count` of them, by a choice of variables
        includesItself,         ///< directly or through others
    };
    Kind kind;
    std::string recipe;
    std::int64_t count = 0;

    [[nodiscard]] std::string text(automation::Language language) const;
};

/// Looks at the changes of one step.
class SurpriseFinder {
  public:
    void recipeRemoved(std::int64_t id, std::string name);
    void memberRemoved(std::int64_t parent, std::int64_t child);
    void memberAdded(std::int64_t parent, std::int64_t child);

    /// The worst one. Asks the session, in which the changes have been made.
    [[nodiscard]] std::optional<Surprise> find(ado::Session& session) const;

  private:
    [[nodiscard]] std::optional<Surprise> deletedOne(ado::Session& session) const;
    [[nodiscard]] std::optional<Surprise> cycle(ado::Session& session) const;
    [[nodiscard]] std::optional<Surprise> dropped(ado::Session& session) const;

    // No more than can be looked at while the user waits for the command.
    std::vector<std::pair<std::int64_t, std::string>> removed_;
    std::vector<std::pair<std::int64_t, std::int64_t>> inclusions_;
    std::int64_t subRecipesGone_ = 0, othersTouched_ = 0;
    std::int64_t parent_ = 0;  // of the members that came or went
    bool oneParent_ = true;
};

}  // namespace hx::history
