// SPDX-License-Identifier: MIT
#include "project/recipe_writer.h"

#include <algorithm>
#include <array>
#include <functional>

#include "ado/criterion.h"
#include "ado/row_edit.h"
#include "automation/text.h"
#include "project/schema.h"
#include "project/sentences.h"

namespace hx::project {

using automation::Error;

namespace {

/// A row that nobody lends.
class KeptRow {
  public:
    explicit KeptRow(std::span<const ado::StoredValue> values) : values_(values.begin(), values.end()) {
        texts_.reserve(values_.size());
        for (ado::StoredValue& value : values_) value.text = texts_.emplace_back(value.text);
    }
    KeptRow(KeptRow&&) noexcept = default;
    KeptRow& operator=(KeptRow&&) noexcept = default;
    KeptRow(const KeptRow&) = delete;
    KeptRow& operator=(const KeptRow&) = delete;
    ~KeptRow() = default;
    [[nodiscard]] std::vector<ado::StoredValue>& values() noexcept { return values_; }

  private:
    std::vector<std::string> texts_;
    std::vector<ado::StoredValue> values_;
};

std::vector<KeptRow> rowsOf(ado::Rowset& rows, std::span<const ado::Key> keys) {
    std::vector<KeptRow> kept;
    rows.readStored(keys, [&](std::span<const ado::StoredValue> row) { kept.emplace_back(row); });
    return kept;
}

void inTransaction(ado::Session& session, const std::function<void()>& work) {
    session.beginTransaction();
    try {
        work();
    } catch (...) {
        session.rollback();
        throw;
    }
    session.commit();
}

// "Cola(2)" is a copy of "Cola", and so is its copy.
std::string_view withoutNumber(std::string_view name) {
    if (!name.ends_with(')')) return name;
    const std::size_t open = name.rfind('(');
    if (open == std::string_view::npos || open == 0) return name;
    const std::string_view number = name.substr(open + 1, name.size() - open - 2);
    const bool isNumber = !number.empty() && std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; });
    return isNumber ? name.substr(0, open) : name;
}

// So much of the name that the number fits behind it.
std::string numbered(std::string_view name, int number, std::size_t longest) {
    const std::string suffix = "(" + std::to_string(number) + ")";
    std::string begin(name);
    while (longest > 0 && !begin.empty() && automation::characterCount(begin) + suffix.size() > longest) {
        while (begin.size() > 1 && (static_cast<unsigned char>(begin.back()) & 0xC0U) == 0x80U) begin.pop_back();
        begin.pop_back();
    }
    return begin + suffix;
}

}  // namespace

RecipeWriter::Table RecipeWriter::open(ado::Session& session, std::string_view name) {
    Table table{session.open(name, ado::adCmdTableDirect), 0};
    table.id = table.column(schema::recipe::id);
    return table;
}

RecipeWriter::RecipeWriter(ado::Session& session)
    : session_(session), recipes_(open(session, schema::recipeTable)), members_(open(session, schema::memberTable)) {}

std::size_t RecipeWriter::Table::column(std::string_view name) const {
    const auto& columns = rows->columns();
    const auto found = std::ranges::find_if(
        columns, [&](const ado::Column& one) { return automation::equalIgnoreCase(one.name, name); });
    if (found == columns.end()) throw Error(ado::dbErrBadCommand, std::string(name));
    return static_cast<std::size_t>(found - columns.begin());
}

std::vector<ado::Key> RecipeWriter::Table::keysWhere(std::string_view name, std::int64_t value) const {
    ado::Criterion isIt;
    isIt.column = column(name);
    isIt.value = static_cast<double>(value);
    ado::RowKeys keys = rows->keys(&isIt);
    keys.sort(false);
    std::vector<ado::Key> list;
    for (std::size_t i = 0; i < keys.size(); ++i) list.push_back(keys[i]);
    return list;
}

std::vector<std::int64_t> RecipeWriter::copy(std::span<const std::int64_t> recipes, SubRecipes subRecipes) {
    std::vector<std::int64_t> copies;
    inTransaction(session_, [&] {
        const bool all = subRecipes == SubRecipes::copied;
        std::vector<std::pair<std::int64_t, std::int64_t>> ids;
        for (const std::int64_t recipe : all ? withSubRecipes(recipes) : std::vector(recipes.begin(), recipes.end())) {
            if (const std::int64_t copied = copyRow(recipe); copied != 0) ids.emplace_back(recipe, copied);
        }
        for (const auto& [from, to] : ids) copyMembers(from, to, all ? ids : decltype(ids)());
        for (const auto& [from, to] : ids) copies.push_back(to);
    });
    return copies;
}

// Each once, also where they include themselves.
std::vector<std::int64_t> RecipeWriter::withSubRecipes(std::span<const std::int64_t> recipes) const {
    std::vector<std::int64_t> all(recipes.begin(), recipes.end());
    const std::size_t child = members_.column(schema::member::childId);
    for (std::size_t next = 0; next < all.size(); ++next) {
        const auto keys = members_.keysWhere(schema::member::parentId, all[next]);
        members_.rows->readStored(keys, [&](std::span<const ado::StoredValue> row) {
            const std::int64_t id = row[child].integer;
            if (id != 0 && std::ranges::find(all, id) == all.end()) all.push_back(id);
        });
    }
    return all;
}

std::int64_t RecipeWriter::copyRow(std::int64_t recipe) {
    auto rows = rowsOf(*recipes_.rows, recipes_.keysWhere(schema::recipe::id, recipe));
    if (rows.empty()) return 0;
    auto& values = rows.front().values();
    const std::size_t name = recipes_.column(schema::recipe::name);
    const std::string_view original = withoutNumber(values[name].text);
    const std::size_t longest = ado::longestText(recipes_.rows->columns()[name]);
    std::int64_t copied = 0;
    for (int number = 2; copied == 0; ++number) copied = addNamed(numbered(original, number, longest));
    std::vector<std::size_t> columns;
    std::vector<ado::StoredValue> rest;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i == name || i == recipes_.id) continue;
        columns.push_back(i);
        rest.push_back(values[i]);
    }
    recipes_.rows->rewrite(copied, columns, rest);
    return copied;
}

// 0 when the name is there already.
std::int64_t RecipeWriter::addNamed(const std::string& name) {
    try {
        const std::array values{ado::ColumnValue{recipes_.column(schema::recipe::name), name}};
        return recipes_.rows->insert(values);
    } catch (const Error& error) {
        if (error.number() != ado::dbErrDuplicate) throw;
        return 0;
    }
}

void RecipeWriter::copyMembers(std::int64_t from, std::int64_t to,
                               const std::vector<std::pair<std::int64_t, std::int64_t>>& ids) {
    auto rows = rowsOf(*members_.rows, members_.keysWhere(schema::member::parentId, from));
    const std::size_t parent = members_.column(schema::member::parentId);
    const std::size_t child = members_.column(schema::member::childId);
    std::vector<std::size_t> columns = ado::allColumns(*members_.rows);
    std::erase(columns, members_.id);
    std::size_t next = 0;
    members_.rows->restore(columns, [&](std::span<ado::StoredValue> row) {
        if (next == rows.size()) return false;
        auto& values = rows[next++].values();
        values[parent] = ado::StoredValue::of(to);
        const auto copied =
            std::ranges::find(ids, values[child].integer, &std::pair<std::int64_t, std::int64_t>::first);
        if (copied != ids.end()) values[child] = ado::StoredValue::of(copied->second);
        std::ranges::transform(columns, row.begin(), [&](std::size_t column) { return values[column]; });
        return true;
    });
}

void RecipeWriter::remove(std::span<const std::int64_t> recipes) {
    inTransaction(session_, [&] {
        for (const std::int64_t recipe : recipes) {
            for (const ado::Key key : recipes_.keysWhere(schema::recipe::id, recipe)) recipes_.rows->remove(key);
            (void)session_.open("DELETE * FROM " + std::string(schema::memberTable) + " WHERE " +
                                    std::string(schema::member::parentId) + " = " + std::to_string(recipe),
                                ado::adCmdText);
        }
    });
}

std::vector<std::int64_t> RecipeWriter::create(std::span<const NewRecipe> recipes) {
    std::vector<std::int64_t> made;
    inTransaction(session_, [&] {
        for (const NewRecipe& recipe : recipes) {
            made.push_back(addNamed(recipe.name));
            if (made.back() == 0) {
                const auto inWords = [&](automation::Language language) {
                    return automation::say(language, sentence::notMade, {recipe.name});
                };
                throw Error(automation::errFail, inWords(automation::Language::english),
                            inWords(automation::Language::german));
            }
            addMembers(made.back(), recipe.variables);
        }
    });
    return made;
}

void RecipeWriter::addVariables(std::int64_t recipe, std::span<const std::string> variables) {
    inTransaction(session_, [&] { addMembers(recipe, variables); });
}

void RecipeWriter::addMembers(std::int64_t recipe, std::span<const std::string> variables) {
    const std::array columns{members_.column(schema::member::parentId), members_.column(schema::member::childId),
                             members_.column(schema::member::varRecipe)};
    std::size_t next = 0;
    members_.rows->restore(columns, [&](std::span<ado::StoredValue> row) {
        if (next == variables.size()) return false;
        row[0] = ado::StoredValue::of(recipe);
        row[1] = ado::StoredValue::of(0);
        row[2] = {ado::StoredValue::Kind::text, 0, 0, variables[next++]};
        return true;
    });
}

}  // namespace hx::project
