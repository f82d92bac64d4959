// SPDX-License-Identifier: MIT
#include "studio/problems.h"

#include <algorithm>
#include <numeric>

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::studio {

namespace {

// The worst first.
constexpr std::array<std::string_view, 7> kindNames{
    "damaged", "cycle", "missing-sub-recipe", "no-recipe", "no-file-name", "unknown-variable", "shared-trigger"};

std::size_t kindOf(std::string_view name) {
    return static_cast<std::size_t>(std::ranges::find(kindNames, name) - kindNames.begin());
}

}  // namespace

QString Problems::titleOf(std::size_t kind, const qt::Wording& wording) {
    switch (kind) {
        case 0: return wording.translate("studio", "Damage");
        case 1: return wording.translate("studio", "Recipes that contain themselves");
        case 2: return wording.translate("studio", "Missing sub-recipes");
        case 3: return wording.translate("studio", "Members without a recipe");
        case 4: return wording.translate("studio", "Sub-recipes without a file name");
        case 5: return wording.translate("studio", "Unknown variables");
        case 6: return wording.translate("studio", "Shared triggers");
        default: return wording.translate("studio", "Others");
    }
}

void Problems::add(const project::Finding& finding) {
    if (kinds_.empty()) kinds_.resize(kindNames.size() + 1);
    Kind& kind = kinds_[kindOf(finding.kind)];
    if (++kind.count > mostOfKind) return;
    const bool there = finding.recipe != nullptr;
    kind.problems.push_back(
        {{there ? finding.recipe->id : 0, finding.member.value_or(0), finding.ofSubRecipe, finding.column},
         there ? finding.recipe->name : std::string(),
         finding.problem,
         finding.advice});
}

std::size_t Problems::count() const {
    return std::accumulate(kinds_.begin(), kinds_.end(), std::size_t{0},
                           [](std::size_t sum, const Kind& kind) { return sum + kind.count; });
}

FoundProblems::FoundProblems(std::shared_ptr<const Problems> problems, const automation::WordFilter& filter,
                             const qt::Wording& wording)
    : problems_(std::move(problems)), wording_(wording) {
    std::string folded;
    for (std::size_t kind = 0; kind < problems_->kinds().size(); ++kind) {
        const std::size_t first = shown_.size();
        for (const Problems::Problem& problem : problems_->kinds()[kind].problems) {
            folded.clear();
            automation::appendFolded(folded, problem.recipe + '\n' + problem.text);
            if (filter.matches(folded)) shown_.push_back(&problem);
        }
        if (shown_.size() > first) groups_.push_back({kind, first});
    }
}

std::size_t FoundProblems::firstOf(std::size_t group) const {
    return group < groups_.size() ? groups_[group].first : shown_.size();
}

QString FoundProblems::title(std::size_t group) const {
    const std::size_t kind = groups_[group].kind;
    const std::size_t shown = firstOf(group + 1) - firstOf(group), all = problems_->kinds()[kind].count;
    const QString count =
        shown == all ? wording_.number(all)
                     : wording_.translate("studio", "%1 of %2").arg(wording_.number(shown), wording_.number(all));
    return QStringLiteral("%1 (%2)").arg(Problems::titleOf(kind, wording_), count);
}

QString FoundProblems::text(std::size_t thing, int column) const {
    return qt::toQt(column == 0 ? shown_[thing]->recipe : shown_[thing]->text);
}

QString FoundProblems::toolTip(std::size_t thing) const {
    return qt::toQt(shown_[thing]->text) + QLatin1Char('\n') + qt::toQt(shown_[thing]->advice);
}

}  // namespace hx::studio
