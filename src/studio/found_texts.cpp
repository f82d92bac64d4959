// SPDX-License-Identifier: MIT
#include "studio/found_texts.h"

#include "adapters/qt/text.h"

namespace hx::studio {

using project::TextHit;

FoundTexts::FoundTexts(project::TextSearch search, const qt::Wording& wording)
    : search_(std::move(search)), wording_(wording) {
    const auto& hits = search_.hits();
    for (std::size_t i = 0; i < hits.size(); ++i) {
        if (groups_.empty() || groups_.back().recipe != hits[i].recipe) groups_.push_back({hits[i].recipe, i});
    }
}

void FoundTexts::replaceBy(std::shared_ptr<project::TextPattern> pattern, std::string with) {
    pattern_ = std::move(pattern);
    with_ = std::move(with);
}

std::vector<project::Replacement> FoundTexts::replacements(const std::vector<std::size_t>& things) const {
    std::vector<project::Replacement> result;
    for (const std::size_t thing : things) {
        const TextHit& hit = search_.hits()[thing];
        const std::string before(search_.text(hit));
        std::string after = pattern_->replaced(before, with_);
        if (after != before) result.push_back({&hit.where(), hit.row, before, std::move(after)});
    }
    return result;
}

std::size_t FoundTexts::firstOf(std::size_t group) const {
    return group < groups_.size() ? groups_[group].first : search_.hits().size();
}

QString FoundTexts::title(std::size_t group) const {
    const std::int64_t recipe = groups_[group].recipe;
    const auto number = project::numberOf(search_.recipes(), recipe);
    const QString name = number        ? qt::toQt(search_.recipes()[*number].name)
                         : recipe == 0 ? wording_.translate("studio", "Variable list")
                                       : wording_.translate("studio", "(missing recipe %1)").arg(recipe);
    return QStringLiteral("%1 (%2)").arg(name, wording_.number(firstOf(group + 1) - firstOf(group)));
}

QString FoundTexts::placeText(const TextHit& hit) const {
    if (hit.ofSubRecipe) return wording_.translate("studio", "File name of a sub-recipe");
    return qt::toQt(automation::say(automation::languageOf(wording_.language()), hit.where().caption));
}

QString FoundTexts::text(std::size_t thing, int column) const {
    const TextHit& hit = search_.hits()[thing];
    if (column == 0) return placeText(hit);
    if (column == 1) return qt::toQt(search_.text(hit));
    return pattern_ ? qt::toQt(pattern_->replaced(search_.text(hit), with_)) : QString();
}

QString FoundTexts::toolTip(std::size_t thing) const {
    const QString before = text(thing, 1);
    return pattern_ ? before + QStringLiteral("\n→ ") + text(thing, 2) : before;
}

Place FoundTexts::place(std::size_t thing) const {
    const TextHit& hit = search_.hits()[thing];
    const bool member = hit.where().table == project::Table::members;
    return {hit.recipe, member ? hit.row : 0, hit.ofSubRecipe, member ? std::string_view() : hit.where().name};
}

}  // namespace hx::studio
