// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "adapters/qt/cell_marks.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "automation/text.h"
#include "project/name_set.h"
#include "project/schema.h"

namespace hx::studio {

/// The names of the variable list: what else stands where a variable is named is marked.
class KnownVariables : public qt::CellMarks {
  public:
    explicit KnownVariables(const qt::Wording& wording) : wording_(wording) {}

    void set(project::NameSet names) { names_ = std::move(names); }
    /// Nothing is marked.
    void forget() { names_.reset(); }

    [[nodiscard]] bool isMarked(std::string_view field, std::string_view text) const override {
        if (!names_ || field != project::schema::member::varRecipe || automation::trim(text).empty()) return false;
        return !names_->contains(text);
    }
    [[nodiscard]] QString reason(std::string_view text) const override {
        return wording_.translate("studio", "The variable %1 is not in the variable list").arg(qt::toQt(text));
    }

  private:
    const qt::Wording& wording_;
    mutable std::optional<project::NameSet> names_;  // looking up uses its memory
};

}  // namespace hx::studio
