// SPDX-License-Identifier: MIT
#include "history/step_name.h"

#include <algorithm>
#include <array>
#include <optional>

#include "automation/text.h"
#include "history/sentences.h"
#include "project/schema.h"

namespace hx::history {

namespace schema = project::schema;

namespace {

const automation::Sentence& sentenceOf(const StepName& name) {
    using namespace sentence;
    switch (name.kind) {
        case StepName::Kind::named: return named;
        case StepName::Kind::recipeAdded: return name.rows == 0 ? recipeAdded : recipeAddedWith;
        case StepName::Kind::recipeDeleted: return name.rows == 0 ? recipeDeleted : recipeDeletedWith;
        case StepName::Kind::recipeRenamed: return recipeRenamed;
        case StepName::Kind::recipeChanged: return recipeChanged;
        case StepName::Kind::variableAdded: return variableAdded;
        case StepName::Kind::variableRemoved: return variableRemoved;
        case StepName::Kind::variableChanged: return variableChanged;
        case StepName::Kind::subRecipeAdded: return subRecipeAdded;
        case StepName::Kind::subRecipeRemoved: return subRecipeRemoved;
        case StepName::Kind::subRecipeChanged: return subRecipeChanged;
        case StepName::Kind::elementsAdded: return elementsAdded;
        case StepName::Kind::elementsRemoved: return elementsRemoved;
        case StepName::Kind::elementsChanged: return elementsChanged;
        case StepName::Kind::listChanged: return listChanged;
        case StepName::Kind::manyChanged: return manyChanged;
        case StepName::Kind::otherChanged: return otherChanged;
        case StepName::Kind::macro: return macroRun;
    }
    return otherChanged;
}

// 1900000 as 1.900.000 or 1,900,000.
std::string grouped(std::int64_t number, automation::Language language) {
    std::string digits = std::to_string(number);
    for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), 1, language == automation::Language::german ? '.' : ',');
    return digits;
}

/// A column of a table, looked up when it is first asked for.
class ColumnOf {
  public:
    ColumnOf(ado::Session& session, std::string_view table, std::string_view name)
        : session_(session), table_(table), name_(name) {}

    [[nodiscard]] const ado::StoredValue& in(std::span<const ado::StoredValue> row) {
        static const ado::StoredValue none;
        if (!place_) find();
        return *place_ < row.size() ? row[*place_] : none;
    }
    [[nodiscard]] std::string textIn(std::span<const ado::StoredValue> row) { return std::string(in(row).text); }

  private:
    void find() {
        const auto rowset = session_.open(table_, ado::adCmdTable);
        const auto& columns = rowset->columns();
        const auto found = std::ranges::find_if(
            columns, [&](const ado::Column& column) { return automation::equalIgnoreCase(column.name, name_); });
        place_ = static_cast<std::size_t>(found - columns.begin());
    }
    ado::Session& session_;
    std::string_view table_, name_;
    std::optional<std::size_t> place_;
};

/// What was done to the rows of one table.
struct Counts {
    std::int64_t added = 0, removed = 0, changed = 0;

    [[nodiscard]] std::int64_t all() const noexcept { return added + removed + changed; }
};

class Namer {
  public:
    Namer(const ChangeLog& changes, ado::Session& session) : session_(session) {
        ChangeReader reader(changes);
        while (const ado::RowChange* change = reader.next()) count(*change);
    }

    StepName name() {
        StepName name;
        const Counts& recipes = recipes_;
        name.recipes = recipes.all();
        name.rows = members_.all() + list_ + others_;
        name.recipe = members_.all() > 0 && recipes.all() == 0 ? parents_.front() : firstRecipe_;
        name.member = recipes.all() == 0 ? firstMember_ : 0;
        if (others_ > 0) name.kind = StepName::Kind::otherChanged;
        else if (recipes.all() == 1) nameRecipe(name);
        else if (recipes.all() > 1 || parents_.size() > 1) name.kind = StepName::Kind::manyChanged;
        else if (members_.all() > 0) nameMembers(name);
        else name.kind = StepName::Kind::listChanged;
        return name;
    }

    [[nodiscard]] std::optional<Surprise> surprise() const { return surprises_.find(session_); }

  private:
    using Place = std::pair<std::int64_t, std::int64_t>;  // parent and child
    void count(const ado::RowChange& change) {
        if (automation::equalIgnoreCase(change.table, schema::recipeTable)) {
            if (recipes_.all() == 0) firstRecipe_ = change.key;
            if (recipes_.all() == 0) recipe_ = {recipeName_.textIn(change.before), recipeName_.textIn(change.after)};
            add(recipes_, change);
            if (change.after.empty()) surprises_.recipeRemoved(change.key, recipeName_.textIn(change.before));
        } else if (automation::equalIgnoreCase(change.table, schema::memberTable)) {
            countMember(change);
        } else if (automation::equalIgnoreCase(change.table, schema::variableTable)) {
            ++list_;
        } else {
            ++others_;
        }
    }
    static void add(Counts& to, const ado::RowChange& change) {
        if (change.before.empty()) ++to.added;
        else if (change.after.empty()) ++to.removed;
        else ++to.changed;
    }
    void countMember(const ado::RowChange& change) {
        const auto row = change.after.empty() ? change.before : change.after;
        const std::int64_t parent = parent_.in(row).integer;
        if (parents_.empty() || (parents_.size() == 1 && parents_.front() != parent)) parents_.push_back(parent);
        if (members_.all() == 0) {
            firstMember_ = change.key;
            isSubRecipe_ = child_.in(row).integer != 0;
            variable_ = varRecipe_.textIn(row);
        }
        add(members_, change);
        const auto placeIn = [this](std::span<const ado::StoredValue> side) {
            return side.empty() ? Place{} : Place{parent_.in(side).integer, child_.in(side).integer};
        };
        const Place before = placeIn(change.before), after = placeIn(change.after);
        if (before == after) return;
        if (!change.before.empty()) surprises_.memberRemoved(before.first, before.second);
        if (!change.after.empty()) surprises_.memberAdded(after.first, after.second);
    }

    void nameRecipe(StepName& name) const {
        const auto& [before, after] = recipe_;
        name.first = recipes_.removed > 0 || recipes_.changed > 0 ? before : after;
        if (recipes_.added > 0) name.kind = StepName::Kind::recipeAdded;
        else if (recipes_.removed > 0) name.kind = StepName::Kind::recipeDeleted;
        else if (before == after) name.kind = StepName::Kind::recipeChanged;
        else name.kind = StepName::Kind::recipeRenamed;
        name.second = after;
    }
    void nameMembers(StepName& name) {
        name.first = recipeNamed(parents_.front());
        const bool one = members_.all() == 1;
        if (one) name.second = variable_;
        if (members_.added == members_.all())
            name.kind = !one           ? StepName::Kind::elementsAdded
                        : isSubRecipe_ ? StepName::Kind::subRecipeAdded
                                       : StepName::Kind::variableAdded;
        else if (members_.removed == members_.all())
            name.kind = !one           ? StepName::Kind::elementsRemoved
                        : isSubRecipe_ ? StepName::Kind::subRecipeRemoved
                                       : StepName::Kind::variableRemoved;
        else
            name.kind = !one           ? StepName::Kind::elementsChanged
                        : isSubRecipe_ ? StepName::Kind::subRecipeChanged
                                       : StepName::Kind::variableChanged;
    }
    std::string recipeNamed(std::int64_t id) {
        std::string name = std::to_string(id);
        const ado::Key key = id;
        session_.open(schema::recipeTable, ado::adCmdTable)
            ->readStored({&key, 1}, [&](std::span<const ado::StoredValue> row) { name = recipeName_.textIn(row); });
        return name;
    }

    ado::Session& session_;
    ColumnOf recipeName_{session_, schema::recipeTable, schema::recipe::name};
    ColumnOf parent_{session_, schema::memberTable, schema::member::parentId};
    ColumnOf child_{session_, schema::memberTable, schema::member::childId};
    ColumnOf varRecipe_{session_, schema::memberTable, schema::member::varRecipe};
    SurpriseFinder surprises_;
    Counts recipes_, members_;
    std::int64_t list_ = 0, others_ = 0;
    std::vector<std::int64_t> parents_;  // at most two of them
    std::array<std::string, 2> recipe_;  // of the first one that was changed, before and after
    std::string variable_;               // of the first member that was changed
    bool isSubRecipe_ = false;
    ado::Key firstRecipe_ = 0, firstMember_ = 0;
};

}  // namespace

std::string StepName::text(automation::Language language) const {
    if (kind == StepName::Kind::manyChanged)
        return automation::say(language, sentence::manyChanged, {grouped(recipes, language), grouped(rows, language)});
    return automation::say(language, sentenceOf(*this), {first, second, grouped(rows, language)});
}

Account accountOf(const ChangeLog& changes, ado::Session& session) {
    Namer namer(changes, session);
    return {namer.name(), namer.surprise()};
}

}  // namespace hx::history
