// SPDX-License-Identifier: MIT
#include "editor/recipe_rows.h"

#include <algorithm>
#include <array>

#include "ado/transaction.h"
#include "automation/convert.h"
#include "project/schema.h"
#include "recipe/existing_recipe.h"
#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::editor {

using automation::Error;
using automation::Variant;
namespace schema = project::schema;

namespace {

std::string newName(std::int32_t attempt) {
    const std::string name = "Neues Rezept";
    return attempt == 1 ? name : name + "(" + std::to_string(attempt) + ")";
}

bool tryToAdd(ado::Recordset& recipes, const std::string& name) {
    try {
        recipes.addNew(std::to_array<std::pair<std::string, Variant>>({{std::string(schema::recipe::name), name}}));
        return true;
    } catch (const Error& error) {
        if (error.number() != ado::dbErrDuplicate) throw;  // no other name would be taken either
        return false;
    }
}

// One statement: through a recordset a million members would take many times as long. It is a recordset of its own that
// carries it out, so that no other can ever be opened with such a source again.
void deleteAllMembers(std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection) {
    ado::Recordset command;
    command.open("DELETE * FROM " + std::string(schema::memberTable) + " WHERE ParentID = " + std::to_string(recipe),
                 connection);
}

/// Runs the steps in one transaction: a crash half way leaves the old state. When a step fails, what the steps before
/// it have deleted stays deleted.
template <class Steps>
void deleting(ado::Connection& connection, Steps&& steps) {
    ado::Transaction transaction(connection);
    try {
        steps();
    } catch (const Error&) {
        transaction.commit();
        throw;
    }
    transaction.commit();
}

/// The members of one recipe, made from names.
class NewVariables : public ado::RowSource {
  public:
    NewVariables(const std::vector<std::string>& names, std::int32_t recipe) : names_(names), recipe_(recipe) {}
    static constexpr std::size_t fieldCount = 3;
    static std::array<std::string, fieldCount> fields() {
        using namespace schema::member;
        return {std::string(varRecipe), std::string(parentId), std::string(childId)};
    }
    bool next(std::span<Variant> values) override {
        if (given_ == names_.size()) return false;
        values[0] = names_[given_++];
        values[1] = recipe_;
        values[2] = 0;
        return true;
    }

  private:
    const std::vector<std::string>& names_;
    std::int32_t recipe_;
    std::size_t given_ = 0;
};

}  // namespace

std::string addRecipe(ado::Recordset& recipes) {
    if (recipes.state() == ado::adStateClosed) recipes.open();
    std::int32_t attempt = 1;
    while (!tryToAdd(recipes, newName(attempt))) ++attempt;
    return newName(attempt);
}

bool findRecipe(ado::Recordset& recipes, const std::string& criterion) {
    if (!recipe::OpenAndMoveFirst(recipes)) return false;
    recipes.find(criterion);
    return !recipes.eof();
}

void deleteRecipeWithMembers(ado::Recordset& recipes, std::int32_t id, bool& deleted) {
    bool recipeGone = false;
    const auto& connection = recipes.activeConnection();
    const std::uint64_t rollbacks = connection->rollbacks();
    try {
        deleting(*connection, [&] {
            recipes.remove();
            recipeGone = true;
            deleteAllMembers(id, connection);
        });
    } catch (const Error&) {
        deleted = recipeGone && connection->rollbacks() == rollbacks;
        throw;
    }
    deleted = true;
}

void deleteMembers(ado::Recordset& members, std::span<const ado::Key> rows) {
    deleting(*members.activeConnection(), [&] {
        members.requery();
        members.removeRows(rows);
    });
}

void Members::add(const ado::Recordset& rows) {
    const auto fields = {schema::member::id, schema::member::childId, schema::member::varRecipe};
    const std::size_t most = size() + static_cast<std::size_t>(rows.recordCount());
    constexpr std::size_t usualName = 24;
    numbers_.reserve(most);  // growing would take a tenth of the time
    variables_.reserve(most, most * usualName);
    std::string room;
    rows.clone()->scan(fields, [&](std::span<const ado::StoredValue> values) {
        numbers_.emplace_back(automation::toInt32(values[0].real), automation::toInt32(values[1].real));
        variables_.append(ado::shownText(values[2], room));
    });
}

std::vector<Member> Members::sorted() const {
    std::vector<Member> all;
    all.reserve(size());
    for (std::size_t i = 0; i < size(); ++i) all.push_back({numbers_[i].first, numbers_[i].second, variables_[i]});
    std::ranges::sort(all);
    return all;
}

namespace {

void addWhere(Members& to, const std::string& condition, const std::shared_ptr<ado::Connection>& connection) {
    ado::Recordset rows;
    rows.open("SELECT * FROM " + std::string(schema::memberTable) + " WHERE " + condition, connection);
    to.add(rows);
}

std::string inRecipe(std::int32_t recipe) { return "ParentID = " + std::to_string(recipe); }

}  // namespace

Members membersOf(std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection) {
    Members members;
    addWhere(members, inRecipe(recipe), connection);
    return members;
}

void addSubRecipes(Members& to, std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection) {
    // Found by way of an index, which "<> 0" is not.
    for (const char* child : {" AND ChildID < 0", " AND ChildID > 0"}) {
        addWhere(to, inRecipe(recipe) + child, connection);
    }
}

std::optional<Members> replaceMembers(std::int32_t recipe, const Members& known,
                                      const std::vector<std::string>& variables,
                                      const std::shared_ptr<ado::Connection>& connection,
                                      const resources::ResourceTable& texts) {
    ado::Transaction transaction(*connection);
    recipe::requireRecipe(connection, recipe, texts);
    Members now = membersOf(recipe, connection);
    if (now.sorted() != known.sorted()) return now;
    deleteAllMembers(recipe, connection);
    ado::Recordset members;
    members.open(std::string(schema::memberTable), connection, ado::adOpenKeyset, ado::adLockOptimistic,
                 ado::adCmdTableDirect);
    NewVariables rows(variables, recipe);
    members.addNew(NewVariables::fields(), rows);
    transaction.commit();
    return std::nullopt;
}

}  // namespace hx::editor
