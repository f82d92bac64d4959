// SPDX-License-Identifier: MIT
#include "exchange/differences.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "automation/text.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::exchange {

using automation::foldCase;
using Kind = Difference::Kind;

namespace {

std::string textIn(const ContentMember& member, std::string_view column) {
    const Cell* cell = findCell(member.cells, column);
    const auto* text = cell == nullptr ? nullptr : std::get_if<std::string>(&cell->value);
    return text == nullptr ? std::string() : *text;
}

// What makes a member the same one.
std::string identityOf(const ContentMember& member) {
    const std::string parent = std::to_string(member.parent) + " ";  // 0 but for members without a recipe
    if (member.childName) return parent + "s" + foldCase(*member.childName);
    if (member.isSubRecipe()) return parent + "#" + std::to_string(member.child);
    return parent + "v" + foldCase(textIn(member, project::schema::member::varRecipe));
}

std::string describe(const ContentMember& member) {
    if (member.childName) return "sub-recipe " + hosting::inQuotes(*member.childName);
    if (member.isSubRecipe()) return "missing sub-recipe with the ID " + std::to_string(member.child);
    return "variable " + hosting::inQuotes(textIn(member, project::schema::member::varRecipe));
}

/// Finds what differs in the columns of a recipe or member.
void compareCells(const std::vector<Cell>& before, const std::vector<Cell>& after, bool absentColumns,
                  const Difference& place, std::vector<Difference>& differences) {
    const auto add = [&](const std::string& column, const Value& from, const Value& to) {
        Difference difference = place;
        difference.column = column;
        difference.before = from;
        difference.after = to;
        differences.push_back(std::move(difference));
    };
    for (const Cell& cell : after) {
        const Cell* old = findCell(before, cell.column);
        if (old == nullptr ? absentColumns : !isSame(old->value, cell.value)) {
            add(cell.column, old == nullptr ? Value() : old->value, cell.value);
        }
    }
    if (!absentColumns) return;
    for (const Cell& cell : before) {
        if (findCell(after, cell.column) == nullptr) add(cell.column, cell.value, {});
    }
}

/// Finds for each member of one list the same one in another.
class Pairing {
  public:
    Pairing(const std::vector<ContentMember>& before, const std::vector<ContentMember>& after, bool absentColumns)
        : before_(before), after_(after), absentColumns_(absentColumns), partners_(after.size()) {}

    Partners run() {
        for (std::size_t i = 0; i < before_.size(); ++i) waiting_[identityOf(before_[i])].push_back(i);
        pair(true);   // those that are the same in everything
        pair(false);  // then those that have changed
        return std::move(partners_);
    }

  private:
    void pair(bool sameInEverything) {
        for (std::size_t i = 0; i < after_.size(); ++i) {
            if (partners_[i]) continue;
            const auto found = waiting_.find(identityOf(after_[i]));
            if (found == waiting_.end()) continue;
            auto& left = found->second;
            const auto partner = std::ranges::find_if(left, [&](std::size_t old) {
                return !sameInEverything || hasSameColumns(before_[old], after_[i], absentColumns_);
            });
            if (partner == left.end()) continue;
            partners_[i] = *partner;
            left.erase(partner);
        }
    }

    const std::vector<ContentMember>& before_;
    const std::vector<ContentMember>& after_;
    bool absentColumns_;
    Partners partners_;
    std::unordered_map<std::string, std::vector<std::size_t>> waiting_;  // of before_, by what they are
};

/// Compares the members of one recipe, or those without one.
class Members {
  public:
    Members(const std::vector<ContentMember>& before, const std::vector<ContentMember>& after, bool absentColumns,
            std::string recipe)
        : before_(before),
          after_(after),
          absentColumns_(absentColumns),
          recipe_(std::move(recipe)),
          partners_(partnersOf(before, after, absentColumns)) {}

    std::vector<Difference> compare() {
        std::vector<Difference> differences;
        std::vector<bool> stays(before_.size());
        for (const auto& partner : partners_) {
            if (partner) stays[*partner] = true;
        }
        for (std::size_t i = 0; i < before_.size(); ++i) {
            if (!stays[i]) differences.push_back(whole(Kind::removed, before_[i]));
        }
        for (std::size_t i = 0; i < after_.size(); ++i) {
            if (!partners_[i]) differences.push_back(whole(Kind::added, after_[i]));
            else
                compareCells(before_[*partners_[i]].cells, after_[i].cells, absentColumns_,
                             whole(Kind::changed, after_[i]), differences);
        }
        if (!isInOrder()) differences.push_back({Kind::changed, recipe_, "order of the members", {}, {}, {}});
        return differences;
    }

  private:
    [[nodiscard]] bool isInOrder() const {
        Partners order;
        std::ranges::copy_if(partners_, std::back_inserter(order), [](const auto& i) { return i.has_value(); });
        return std::ranges::is_sorted(order);
    }

    [[nodiscard]] Difference whole(Kind kind, const ContentMember& member) const {
        return {kind, recipe_, describe(member), {}, {}, {}};
    }

    const std::vector<ContentMember>& before_;
    const std::vector<ContentMember>& after_;
    bool absentColumns_;
    std::string recipe_;
    Partners partners_;
};

void append(std::vector<Difference>& all, std::vector<Difference> more) {
    std::ranges::move(more, std::back_inserter(all));
}

/// Finds recipes by their names: ignoring case, unless one content has several that differ in nothing else.
class ByName {
  public:
    ByName(const Content& content, const Content& other) {
        collectAmbiguous(content);
        collectAmbiguous(other);
        for (const ContentRecipe& recipe : content.recipes) recipes_.emplace(keyOf(recipe), &recipe);
    }
    /// Null when there is none.
    [[nodiscard]] const ContentRecipe* find(const ContentRecipe& recipe) const {
        const auto found = recipes_.find(keyOf(recipe));
        return found == recipes_.end() ? nullptr : found->second;
    }

  private:
    void collectAmbiguous(const Content& content) {
        std::unordered_set<std::string> names;
        for (const ContentRecipe& recipe : content.recipes) {
            std::string name = foldCase(recipe.name());
            if (!names.insert(name).second) ambiguous_.insert(std::move(name));
        }
    }
    [[nodiscard]] std::string keyOf(const ContentRecipe& recipe) const {
        std::string name = foldCase(recipe.name());
        return ambiguous_.contains(name) ? recipe.name() : name;
    }

    std::unordered_set<std::string> ambiguous_;
    std::unordered_map<std::string, const ContentRecipe*> recipes_;
};

}  // namespace

Partners partnersOf(const std::vector<ContentMember>& before, const std::vector<ContentMember>& after,
                    bool absentColumns) {
    return Pairing(before, after, absentColumns).run();
}

bool hasSameColumns(const ContentMember& before, const ContentMember& after, bool absentColumns) {
    std::vector<Difference> differences;
    compareCells(before.cells, after.cells, absentColumns, {}, differences);
    return differences.empty();
}

std::vector<Difference> compare(const ContentRecipe& before, const ContentRecipe& after, bool absentColumns) {
    std::vector<Difference> differences;
    const Difference place{Kind::changed, before.name(), {}, {}, {}, {}};
    compareCells(before.cells, after.cells, absentColumns, place, differences);
    append(differences, Members(before.members, after.members, absentColumns, before.name()).compare());
    return differences;
}

std::vector<Difference> compare(const Content& before, const Content& after, const Comparison& what) {
    std::vector<Difference> differences;
    const ByName old(before, after);
    const ByName now(after, before);
    for (const ContentRecipe& recipe : before.recipes) {
        if (!what.removed || now.find(recipe) != nullptr) continue;
        differences.push_back({Kind::removed, recipe.name(), {}, {}, {}, {}});
    }
    for (const ContentRecipe& recipe : after.recipes) {
        const ContentRecipe* found = old.find(recipe);
        if (found == nullptr) differences.push_back({Kind::added, recipe.name(), {}, {}, {}, {}});
        else if (what.changed) append(differences, compare(*found, recipe, what.absentColumns));
    }
    for (Difference& difference : Members(before.orphans, after.orphans, what.absentColumns, {}).compare()) {
        if (difference.kind != Kind::removed || what.removed) differences.push_back(std::move(difference));
    }
    return differences;
}

}  // namespace hx::exchange
