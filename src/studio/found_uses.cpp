// SPDX-License-Identifier: MIT
#include "studio/found_uses.h"

#include <algorithm>

#include "adapters/qt/text.h"
#include "project/columns.h"

namespace hx::studio {

using project::Reference;

FoundUses::FoundUses(project::WhereUsed used, const qt::Wording& wording, std::int64_t except)
    : used_(std::move(used)), wording_(wording) {
    for (std::uint32_t number = 0; number < used_.references().size(); ++number) {
        if (except == 0 || used_.references()[number].recipe != except) inOrder_.push_back(number);
    }
    std::ranges::stable_sort(inOrder_, {}, [this](std::uint32_t number) { return used_.references()[number].kind; });
    for (std::size_t i = 0; i < inOrder_.size(); ++i) {
        const Reference::Kind kind = reference(i).kind;
        if (groups_.empty() || groups_.back().kind != kind) groups_.push_back({kind, i});
    }
}

std::size_t FoundUses::firstOf(std::size_t group) const {
    return group < groups_.size() ? groups_[group].first : inOrder_.size();
}

QString FoundUses::title(std::size_t group) const {
    const auto name = [&] {
        switch (groups_[group].kind) {
            case Reference::Kind::column: return wording_.translate("studio", "Recipes that name it");
            case Reference::Kind::variable: return wording_.translate("studio", "Recipes that contain it");
            case Reference::Kind::fileName: return wording_.translate("studio", "File name of sub-recipes");
            case Reference::Kind::subRecipe: return wording_.translate("studio", "Recipes that include it");
            case Reference::Kind::indirect: return wording_.translate("studio", "Through sub-recipes");
        }
        return QString();
    };
    return QStringLiteral("%1 (%2)").arg(name(), wording_.number(firstOf(group + 1) - firstOf(group)));
}

QString FoundUses::nameOf(std::int64_t recipe) const {
    const auto number = project::numberOf(used_.recipes(), recipe);
    return number ? qt::toQt(used_.recipes()[*number].name)
                  : wording_.translate("studio", "(missing recipe %1)").arg(recipe);
}

QString FoundUses::text(std::size_t thing, int column) const {
    const Reference& use = reference(thing);
    if (column == 0) return nameOf(use.recipe);
    switch (use.kind) {
        case Reference::Kind::column:
            return qt::toQt(
                automation::say(automation::languageOf(wording_.language()), project::captionOf(use.column)));
        case Reference::Kind::variable: return wording_.translate("studio", "Variable");
        case Reference::Kind::fileName: return nameOf(use.other);
        case Reference::Kind::subRecipe: return wording_.translate("studio", "Sub-recipe");
        case Reference::Kind::indirect: return wording_.translate("studio", "through %1").arg(nameOf(use.other));
    }
    return {};
}

QString FoundUses::toolTip(std::size_t thing) const { return text(thing, 0) + QStringLiteral(": ") + text(thing, 1); }

Place FoundUses::place(std::size_t thing) const {
    const Reference& use = reference(thing);
    const bool ofSubRecipe = use.kind == Reference::Kind::fileName || use.kind == Reference::Kind::subRecipe;
    return {use.recipe, use.member, ofSubRecipe, use.column};
}

}  // namespace hx::studio
