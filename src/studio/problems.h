// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "adapters/qt/wording.h"
#include "automation/word_filter.h"
#include "project/check.h"
#include "studio/found_list.h"

namespace hx::studio {

/// What is wrong in a project, by kinds.
class Problems {
  public:
    struct Problem {
        Place place;
        std::string recipe, text;
        std::string_view advice;
    };
    struct Kind {
        std::size_t count = 0;          ///< of all
        std::vector<Problem> problems;  ///< the first of them
    };
    /// So many of a kind are kept.
    static constexpr std::size_t mostOfKind = 10'000;

    void add(const project::Finding& finding);
    [[nodiscard]] std::size_t count() const;
    [[nodiscard]] const std::vector<Kind>& kinds() const noexcept { return kinds_; }
    /// What a kind is called.
    [[nodiscard]] static QString titleOf(std::size_t kind, const qt::Wording& wording);

  private:
    std::vector<Kind> kinds_;
};

/// Those of them for which a filter holds, for a list.
class FoundProblems : public FoundThings {
  public:
    /// The wording is lent.
    FoundProblems(std::shared_ptr<const Problems> problems, const automation::WordFilter& filter,
                  const qt::Wording& wording);

    [[nodiscard]] std::size_t groups() const override { return groups_.size(); }
    [[nodiscard]] std::size_t firstOf(std::size_t group) const override;
    [[nodiscard]] QString title(std::size_t group) const override;
    [[nodiscard]] QString text(std::size_t thing, int column) const override;
    [[nodiscard]] QString toolTip(std::size_t thing) const override;
    [[nodiscard]] Place place(std::size_t thing) const override { return shown_[thing]->place; }

  private:
    struct Group {
        std::size_t kind, first;
    };
    std::shared_ptr<const Problems> problems_;
    const qt::Wording& wording_;
    std::vector<Group> groups_;
    std::vector<const Problems::Problem*> shown_;
};

}  // namespace hx::studio
