// SPDX-License-Identifier: MIT
#include "project/check.h"

#include <algorithm>
#include <array>

#include "automation/text.h"
#include "project/cycles.h"
#include "project/schema.h"

namespace hx::project {

namespace {

bool isBlank(std::string_view text) { return automation::trim(text).empty(); }

std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

}  // namespace

void Check::run() {
    readVariables();
    readRecipes();
    readMembers();
    compareTriggers();
    findCycles();
}

void Check::readVariables() {
    reader_.read(schema::variableTable, std::array{schema::variable::name},
                 [&](Row row) { variables_.add(row[0].text); });
}

void Check::readRecipes() {
    recipes_ = reader_.recipes();  // from here on they stay in place: findings point at them
    saves_.reserve(recipes_.size());
    constexpr auto& names = schema::recipe::variableColumns;
    std::vector<std::string_view> columns(names.begin(), names.end());
    columns.push_back(schema::recipe::saveSubRecipes);
    reader_.read(schema::recipeTable, columns, [&](Row row) {
        for (std::size_t c = 0; c < names.size(); ++c) readVariable(saves_.size(), names[c], row[c].text);
        saves_.push_back(row.back().isTrue());
    });
}

void Check::readVariable(std::size_t recipe, std::string_view column, std::string_view variable) {
    if (isBlank(variable)) return;
    if (std::ranges::find(schema::recipe::triggerColumns, column) != schema::recipe::triggerColumns.end()) {
        const std::size_t trigger = triggers_.add(automation::trim(variable));
        if (trigger == triggerUses_.size()) triggerUses_.emplace_back();
        triggerUses_[trigger].push_back({recipe, column, std::string(variable)});
    }
    if (variables_.contains(variable)) return;
    receive_({Severity::warning,
              "unknown-variable",
              &recipes_[recipe],
              {},
              std::string(column) + " names the variable " + quoted(variable) + ", which is not in the variable list.",
              "Add the variable to the list or choose another one."});
}

// In blocks: while one name is looked up, the memory that the next ones need is on its way.
void Check::readMembers() {
    constexpr std::size_t blockSize = 32;
    std::vector<Member> block(blockSize);
    std::size_t count = 0;
    const auto checkBlock = [&] {
        for (std::size_t i = 0; i < count; ++i) checkMember(block[i]);
        count = 0;
    };
    using namespace schema::member;
    reader_.read(schema::memberTable, std::array{id, parentId, childId, varRecipe}, [&](Row row) {
        Member& member = block[count++];
        member.id = row[0].integer;
        member.parent = row[1].integer;
        member.child = row[2].integer;
        member.variable = row[3].text;
        variables_.prefetch(member.variable);
        if (count == blockSize) checkBlock();
    });
    checkBlock();
}

void Check::checkMember(Member& member) {
    member.recipe = numberOf(recipes_, member.parent);
    if (!member.recipe) reportOrphan(member);
    if (member.child != 0) readInclusion(member);
    if (!isBlank(member.variable) && !variables_.contains(member.variable)) reportUnknown(member);
}

void Check::readInclusion(const Member& member) {
    const auto child = numberOf(recipes_, member.child);
    if (!child) {
        receive_({Severity::error, "missing-sub-recipe", entryOf(member), member.id,
                  "The sub-recipe with the ID " + std::to_string(member.child) + " does not exist.",
                  "Delete the member or choose an existing recipe."});
    }
    if (!member.recipe) return;
    if (child) inclusions_.push_back({*member.recipe, *child});
    if (saves_[*member.recipe] || !isBlank(member.variable)) return;
    const std::string name = child ? " " + quoted(recipes_[*child].name) : std::string();
    receive_({Severity::error, "no-file-name", entryOf(member), member.id,
              "The sub-recipe" + name + " has no variable for its file name.",
              "Choose one, or let the recipe save the values of its sub-recipes."});
}

const RecipeEntry* Check::entryOf(const Member& member) const {
    return member.recipe ? &recipes_[*member.recipe] : nullptr;
}

void Check::reportOrphan(const Member& member) {
    receive_(
        {Severity::error, "no-recipe", nullptr, member.id,
         "The recipe with the ID " + std::to_string(member.parent) + ", to which the member belongs, does not exist.",
         "Delete the member."});
}

void Check::reportUnknown(const Member& member) {
    receive_({Severity::warning, "unknown-variable", entryOf(member), member.id,
              "The variable " + quoted(member.variable) + " is not in the variable list.",
              "Add the variable to the list or choose another one."});
}

void Check::compareTriggers() {
    for (const auto& uses : triggerUses_) {
        const TriggerUse& first = uses.front();
        std::string others;
        for (const TriggerUse& use : uses) {
            if (use.recipe == first.recipe) continue;
            others +=
                (others.empty() ? "" : ", ") + quoted(recipes_[use.recipe].name) + " (" + std::string(use.column) + ")";
        }
        if (others.empty()) continue;
        receive_({Severity::warning,
                  "shared-trigger",
                  &recipes_[first.recipe],
                  {},
                  "The trigger variable " + quoted(first.variable) + " (" + std::string(first.column) +
                      ") also triggers " + others + ".",
                  "Give each recipe a trigger of its own."});
    }
}

void Check::findCycles() {
    for (const auto& cycle : cyclesOf({recipes_.size(), inclusions_}).ways) {
        std::string way;
        for (const std::size_t recipe : cycle) way += quoted(recipes_[recipe].name) + " > ";
        receive_({Severity::error,
                  "cycle",
                  &recipes_[cycle.front()],
                  {},
                  "The recipe contains itself: " + way + quoted(recipes_[cycle.front()].name) + ".",
                  "Delete one of these sub-recipes."});
    }
}

}  // namespace hx::project
