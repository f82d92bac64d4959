// SPDX-License-Identifier: MIT
#include "project/check.h"

#include <algorithm>
#include <array>

#include "automation/text.h"
#include "project/columns.h"
#include "project/cycles.h"
#include "project/schema.h"
#include "project/sentences.h"

namespace hx::project {

namespace {

constexpr int mostDamages = 20;

bool isBlank(std::string_view text) { return automation::trim(text).empty(); }

}  // namespace

void Check::run() {
    readVariables();
    readRecipes();
    readMembers();
    compareTriggers();
    findCycles();
}

bool Check::findDamage(ado::Session::Check thorough) {
    const auto damages = reader_.session().damages(mostDamages, thorough);
    for (const std::string& damage : damages)
        report({Severity::error, "damaged", nullptr, {}, say(sentence::damaged, {damage}), {}}, sentence::goBack);
    return !damages.empty();
}

void Check::report(Finding finding, const automation::Sentence& advice) {
    finding.advice = words_.language == automation::Language::english ? advice.english : advice.german;
    receive_(finding);
}

void Check::report(Severity severity, std::string_view kind, const Member& member, std::string problem,
                   const automation::Sentence& advice) {
    report({severity, kind, entryOf(member), member.id, std::move(problem), {}, member.child != 0}, advice);
}

std::string_view Check::shown(std::string_view column) const {
    if (!words_.captions) return column;
    const automation::Sentence caption = captionOf(column);
    return words_.language == automation::Language::english ? caption.english : caption.german;
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
    report({Severity::warning,
            "unknown-variable",
            &recipes_[recipe],
            {},
            say(sentence::unknownInColumn, {shown(column), variable}),
            {},
            false,
            column},
           sentence::addVariable);
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
        report(Severity::error, "missing-sub-recipe", member,
               say(sentence::missingSubRecipe, {std::to_string(member.child)}), sentence::chooseRecipe);
    }
    if (!member.recipe) return;
    if (child) inclusions_.push_back({*member.recipe, *child});
    if (saves_[*member.recipe] || !isBlank(member.variable)) return;
    const std::string name = child ? say(sentence::quoted, {recipes_[*child].name}) : std::string();
    report(Severity::error, "no-file-name", member, say(sentence::noFileName, {name}), sentence::chooseFileName);
}

const RecipeEntry* Check::entryOf(const Member& member) const {
    return member.recipe ? &recipes_[*member.recipe] : nullptr;
}

void Check::reportOrphan(const Member& member) {
    report(Severity::error, "no-recipe", member, say(sentence::noRecipe, {std::to_string(member.parent)}),
           sentence::deleteMember);
}

void Check::reportUnknown(const Member& member) {
    report(Severity::warning, "unknown-variable", member, say(sentence::unknownVariable, {member.variable}),
           sentence::addVariable);
}

void Check::compareTriggers() {
    for (const auto& uses : triggerUses_) {
        const TriggerUse& first = uses.front();
        std::string others;
        for (const TriggerUse& use : uses) {
            if (use.recipe == first.recipe) continue;
            if (!others.empty()) others += ", ";
            others += say(sentence::trigger, {recipes_[use.recipe].name, shown(use.column)});
        }
        if (others.empty()) continue;
        report({Severity::warning,
                "shared-trigger",
                &recipes_[first.recipe],
                {},
                say(sentence::sharedTrigger, {first.variable, shown(first.column), others}),
                {},
                false,
                first.column},
               sentence::ownTrigger);
    }
}

void Check::findCycles() {
    for (const auto& cycle : cyclesOf({recipes_.size(), inclusions_}).ways) {
        std::string way;
        for (const std::size_t recipe : cycle) way += say(sentence::named, {recipes_[recipe].name}) + " > ";
        way += say(sentence::named, {recipes_[cycle.front()].name});
        report({Severity::error, "cycle", &recipes_[cycle.front()], {}, say(sentence::cycle, {way}), {}},
               sentence::breakCycle);
    }
}

}  // namespace hx::project
