// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "adapters/qt/wording.h"
#include "project/where_used.h"
#include "studio/found_list.h"

namespace hx::studio {

/// Where something is used, by kinds, for a list.
class FoundUses : public FoundThings {
  public:
    /// Used on another thread: nothing of the wording is asked for here. It is lent. What the recipe `except` uses is
    /// left out.
    FoundUses(project::WhereUsed used, const qt::Wording& wording, std::int64_t except = 0);

    [[nodiscard]] const project::WhereUsed& used() const noexcept { return used_; }
    [[nodiscard]] std::size_t groups() const override { return groups_.size(); }
    [[nodiscard]] std::size_t firstOf(std::size_t group) const override;
    [[nodiscard]] QString title(std::size_t group) const override;
    [[nodiscard]] QString text(std::size_t thing, int column) const override;
    [[nodiscard]] QString toolTip(std::size_t thing) const override;
    [[nodiscard]] Place place(std::size_t thing) const override;

  private:
    struct Group {
        project::Reference::Kind kind;
        std::size_t first;
    };
    [[nodiscard]] const project::Reference& reference(std::size_t thing) const {
        return used_.references()[inOrder_[thing]];
    }
    [[nodiscard]] QString nameOf(std::int64_t recipe) const;

    project::WhereUsed used_;
    const qt::Wording& wording_;
    std::vector<std::uint32_t> inOrder_;
    std::vector<Group> groups_;
};

}  // namespace hx::studio
