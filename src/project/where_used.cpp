// SPDX-License-Identifier: MIT
#include "project/where_used.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "automation/text.h"
#include "project/schema.h"

namespace hx::project {

WhereUsed::WhereUsed(Reader& reader, std::string name)
    : name_(std::move(name)),
      recipes_(reader.recipes()),
      inclusions_(reader.inclusions()),
      recipe_(findRecipe(recipes_, name_)) {
    findColumns(reader);
    findMembers(reader);
    if (recipe_) findInclusions();
    findIndirect();
    known_ = !references_.empty() || recipe_ || isListed(reader);
}

WhereUsed::WhereUsed(Reader& reader, std::int64_t recipe)
    : recipes_(reader.recipes()),
      inclusions_(reader.inclusions()),
      recipe_(numberOf(recipes_, recipe)),
      known_(recipe_.has_value()) {
    if (!recipe_) return;
    name_ = recipes_[*recipe_].name;
    findInclusions();
    findIndirect();
}

bool WhereUsed::isName(const ado::StoredValue& value) const {
    return value.kind == ado::StoredValue::Kind::text && automation::equalIgnoreCase(value.text, name_);
}

void WhereUsed::findColumns(Reader& reader) {
    constexpr auto& names = schema::recipe::variableColumns;
    std::vector<std::string_view> columns(names.begin(), names.end());
    columns.push_back(schema::recipe::id);
    reader.read(schema::recipeTable, columns, [&](Row row) {
        for (std::size_t c = 0; c < names.size(); ++c) {
            if (isName(row[c])) references_.push_back({Reference::Kind::column, row.back().integer, 0, names[c]});
        }
    });
}

void WhereUsed::findMembers(Reader& reader) {
    const std::size_t first = references_.size();
    using namespace schema::member;
    reader.read(schema::memberTable, std::array{id, parentId, childId, varRecipe}, [&](Row row) {
        if (!isName(row[3])) return;
        const auto kind = row[2].integer == 0 ? Reference::Kind::variable : Reference::Kind::fileName;
        references_.push_back({kind, row[1].integer, row[0].integer, {}, row[2].integer});
    });
    std::ranges::stable_sort(references_.begin() + static_cast<std::ptrdiff_t>(first), references_.end(), {},
                             &Reference::recipe);
}

void WhereUsed::findInclusions() {
    const std::int64_t id = recipes_[*recipe_].id;
    for (const Inclusion& inclusion : inclusions_) {
        if (inclusion.child != id) continue;
        references_.push_back({Reference::Kind::subRecipe, inclusion.parent, inclusion.member, {}, id});
    }
}

bool WhereUsed::isListed(Reader& reader) const {
    bool found = false;
    reader.read(schema::variableTable, std::array{schema::variable::name},
                [&](Row row) { found = found || isName(row[0]); });
    return found;
}

// The recipes above those that refer directly; the latter are not named again.
void WhereUsed::findIndirect() {
    std::set<std::size_t> direct;
    for (const Reference& reference : references_) {
        if (const auto number = numberOf(recipes_, reference.recipe)) direct.insert(*number);
    }
    for (const Use& use : graphOf(recipes_, inclusions_).uses({direct.begin(), direct.end()}).list) {
        if (direct.contains(use.recipe)) continue;
        references_.push_back({Reference::Kind::indirect, recipes_[use.recipe].id, 0, {}, recipes_[use.through].id});
    }
}

}  // namespace hx::project
