// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "adapters/qt/wording.h"
#include "project/replacement.h"
#include "project/text_search.h"
#include "studio/found_list.h"

namespace hx::studio {

/// What was found in texts, by recipes, and what they would become, for a list.
class FoundTexts : public FoundThings {
  public:
    /// Used on another thread: nothing of the wording is asked for here. It is lent.
    FoundTexts(project::TextSearch search, const qt::Wording& wording);

    /// What the texts become; without a pattern nothing.
    void replaceBy(std::shared_ptr<project::TextPattern> pattern, std::string with);
    /// Of these things, those that change.
    [[nodiscard]] std::vector<project::Replacement> replacements(const std::vector<std::size_t>& things) const;

    [[nodiscard]] std::size_t groups() const override { return groups_.size(); }
    [[nodiscard]] std::size_t firstOf(std::size_t group) const override;
    [[nodiscard]] QString title(std::size_t group) const override;
    /// The place, the text and what it becomes.
    [[nodiscard]] QString text(std::size_t thing, int column) const override;
    [[nodiscard]] QString toolTip(std::size_t thing) const override;
    [[nodiscard]] Place place(std::size_t thing) const override;
    [[nodiscard]] Place placeOfGroup(std::size_t group) const override { return {groups_[group].recipe}; }

  private:
    struct Group {
        std::int64_t recipe;  // 0: the variable list
        std::size_t first;
    };
    [[nodiscard]] QString placeText(const project::TextHit& hit) const;

    project::TextSearch search_;
    const qt::Wording& wording_;
    std::vector<Group> groups_;
    std::shared_ptr<project::TextPattern> pattern_;
    std::string with_;
};

}  // namespace hx::studio
