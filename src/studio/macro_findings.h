// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "macros/studio.h"
#include "studio/found_list.h"

namespace hx::studio {

/// What a macro has found, for a list.
class MacroFindings : public FoundThings {
  public:
    /// The wording is lent.
    MacroFindings(QString macro, std::vector<macros::Found> found, const qt::Wording& wording)
        : macro_(std::move(macro)), found_(std::move(found)), wording_(wording) {}

    [[nodiscard]] std::size_t groups() const override { return 1; }
    [[nodiscard]] std::size_t firstOf(std::size_t group) const override { return group == 0 ? 0 : found_.size(); }
    [[nodiscard]] QString title(std::size_t) const override {
        return QStringLiteral("%1 (%2)").arg(macro_, wording_.number(found_.size()));
    }
    [[nodiscard]] QString text(std::size_t thing, int) const override { return qt::toQt(found_[thing].text); }
    [[nodiscard]] QString toolTip(std::size_t thing) const override { return text(thing, 0); }
    [[nodiscard]] Place place(std::size_t thing) const override {
        return {found_[thing].recipe, found_[thing].member, found_[thing].ofSubRecipe};
    }

  private:
    QString macro_;
    std::vector<macros::Found> found_;
    const qt::Wording& wording_;
};

}  // namespace hx::studio
