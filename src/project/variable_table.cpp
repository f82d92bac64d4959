// SPDX-License-Identifier: MIT
#include "project/variable_table.h"

#include <algorithm>
#include <utility>

#include "automation/text.h"
#include "project/name_set.h"
#include "project/schema.h"

namespace hx::project {

namespace {

constexpr std::array orderOfTexts{schema::variable::name, schema::variable::type, schema::variable::comment};

/// Which recipe names which variable of the list.
class UseCounter {
  public:
    explicit UseCounter(std::size_t variables) : variables_(variables) {}

    /// The variables of the list come first.
    void add(std::string_view variable) { numbers_.push_back(static_cast<std::uint32_t>(names_.add(variable))); }
    void use(const ado::StoredValue& variable, std::int64_t recipe) {
        if (variable.kind != ado::StoredValue::Kind::text || variable.text.empty()) return;
        const std::size_t number = names_.add(variable.text);
        if (number < variables_) pairs_.emplace_back(static_cast<std::uint32_t>(number), recipe);
    }
    /// How many recipes use each.
    [[nodiscard]] std::vector<std::uint32_t> counts() {
        std::ranges::sort(pairs_);
        pairs_.erase(std::unique(pairs_.begin(), pairs_.end()), pairs_.end());
        std::vector<std::uint32_t> ofName(variables_);
        for (const auto& [number, recipe] : pairs_) ++ofName[number];
        std::vector<std::uint32_t> counts;
        counts.reserve(numbers_.size());
        for (const std::uint32_t number : numbers_) counts.push_back(ofName[number]);
        return counts;
    }

  private:
    std::size_t variables_;
    NameSet names_;
    std::vector<std::uint32_t> numbers_;  // of each variable of the list
    std::vector<std::pair<std::uint32_t, std::int64_t>> pairs_;
};

}  // namespace

VariableTable::VariableTable(Reader& reader) {
    readList(reader);
    countUses(reader);
}

void VariableTable::readList(Reader& reader) {
    std::string room;
    reader.readKeyed(schema::variableTable, orderOfTexts, [&](ado::Key key, Row row) {
        keys_.push_back(key);
        for (const ado::StoredValue& value : row) texts_.append(ado::shownText(value, room));
        foldedNames_.appendFolded(ado::shownText(row[0], room));
    });
    byName_ = automation::inOrder(foldedNames_);
}

void VariableTable::countUses(Reader& reader) {
    UseCounter counter(size());
    for (std::uint32_t number = 0; number < size(); ++number) counter.add(text(number, Column::name));
    constexpr auto& names = schema::recipe::variableColumns;
    std::vector<std::string_view> columns(names.begin(), names.end());
    columns.push_back(schema::recipe::id);
    reader.read(schema::recipeTable, columns, [&](Row row) {
        for (std::size_t i = 0; i < names.size(); ++i) counter.use(row[i], row.back().integer);
    });
    reader.read(schema::memberTable, std::array{schema::member::parentId, schema::member::varRecipe},
                [&](Row row) { counter.use(row[1], row[0].integer); });
    uses_ = counter.counts();
}

std::optional<std::uint32_t> VariableTable::find(std::string_view name) const {
    const std::string folded = automation::foldCase(name);
    const auto nameOf = [this](std::uint32_t number) { return foldedNames_[number]; };
    const auto found = std::ranges::lower_bound(byName_, std::string_view(folded), {}, nameOf);
    if (found == byName_.end() || nameOf(*found) != folded) return std::nullopt;
    return *found;
}

bool VariableTable::Wish::isAll() const noexcept {
    return !uses && std::ranges::all_of(words, &automation::WordFilter::holdsForAll);
}

std::vector<std::uint32_t> VariableTable::arranged(const Wish& wish) const {
    std::vector<std::uint32_t> numbers = byName_;
    std::string folded;
    if (!wish.isAll()) std::erase_if(numbers, [&](std::uint32_t number) { return !holds(wish, number, folded); });
    order(numbers, wish.order, wish.descending);
    return numbers;
}

bool VariableTable::holds(const Wish& wish, std::uint32_t number, std::string& folded) const {
    if (wish.uses && *wish.uses != uses_[number]) return false;
    for (std::size_t column = 0; column < texts; ++column) {
        const automation::WordFilter& filter = wish.words[column];
        if (filter.holdsForAll()) continue;
        folded.clear();
        automation::appendFolded(folded, text(number, static_cast<Column>(column)));
        if (!filter.matches(folded)) return false;
    }
    return true;
}

// Those that are equal stay in the order of their names.
void VariableTable::order(std::vector<std::uint32_t>& numbers, Column column, bool descending) const {
    if (column == Column::name) {
        if (descending) std::ranges::reverse(numbers);
        return;
    }
    if (column == Column::uses) {
        std::ranges::stable_sort(numbers, [&](std::uint32_t a, std::uint32_t b) {
            return descending ? uses_[a] > uses_[b] : uses_[a] < uses_[b];
        });
        return;
    }
    automation::TextList sorted;
    sorted.reserve(numbers.size());
    for (const std::uint32_t number : numbers) sorted.appendFolded(text(number, column));
    std::vector<std::uint32_t> places = automation::inOrder(sorted, descending);
    for (std::uint32_t& place : places) place = numbers[place];
    numbers = std::move(places);
}

}  // namespace hx::project
