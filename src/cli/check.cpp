#include "cli/check.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "automation/text.h"
#include "cli/findings.h"
#include "cli/name_set.h"
#include "recipe/cycles.h"

namespace hx::cli {

using sqlite::Statement;

namespace {

constexpr std::string_view triggerColumns[] = {"VarLoad", "VarSave", "VarRead", "VarWrite"};

constexpr int mostDamages = 20;
constexpr std::int64_t comparedWhole = 32 << 20;  // some half a second

bool isBlank(std::string_view text) { return automation::trim(text).empty(); }

/// Reads each table once: with a million members every further pass would count.
class Check {
  public:
    Check(ProjectReader& project, FindingWriter& findings) : project_(project), findings_(findings) {}

    void run() {
        readVariables();
        readRecipes();
        readMembers();
        compareTriggers();
        findCycles();
    }

  private:
    struct TriggerUse {
        std::size_t recipe;
        std::string_view column;
        std::string variable;
    };
    struct Member {
        std::int64_t id = 0, parent = 0, child = 0;
        std::string variable;
        std::optional<std::size_t> recipe;  // none when it does not exist
    };

    void readVariables() {
        Statement select(project_.database(), "SELECT Name FROM ThxVariable");
        while (select.step()) variables_.add(select.textView(0));
    }

    void readRecipes() {
        std::string columns = "ID, Name, SaveSubRecipes";
        for (const std::string_view column : variableColumns) columns.append(", ").append(column);
        recipes_ = project_.recipes();  // from here on they stay in place: findings point at them
        saves_.reserve(recipes_.size());
        Statement select(project_.database(), "SELECT " + columns + " FROM TrcpRecipe ORDER BY ID");
        for (std::size_t i = 0; select.step(); ++i) {
            saves_.push_back(select.value(2, ado::adBoolean) == automation::Variant(true));
            for (std::size_t c = 0; c < std::size(variableColumns); ++c) {
                readVariable(i, variableColumns[c], select.textView(3 + static_cast<int>(c)));
            }
        }
    }

    void readVariable(std::size_t recipe, std::string_view column, std::string_view variable) {
        if (isBlank(variable)) return;
        if (std::ranges::find(triggerColumns, column) != std::end(triggerColumns)) {
            const std::size_t trigger = triggers_.add(automation::trim(variable));
            if (trigger == triggerUses_.size()) triggerUses_.emplace_back();
            triggerUses_[trigger].push_back({recipe, column, std::string(variable)});
        }
        if (variables_.contains(variable)) return;
        findings_.add(
            {Severity::warning,
             "unknown-variable",
             &recipes_[recipe],
             {},
             std::string(column) + " names the variable " + inQuotes(variable) + ", which is not in the variable list.",
             "Add the variable to the list or choose another one."});
    }

    // In blocks: while one name is looked up, the memory that the next ones need is on its way.
    void readMembers() {
        Statement select(project_.database(), "SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember");
        constexpr std::size_t blockSize = 32;
        std::vector<Member> block(blockSize);
        for (bool more = true; more;) {
            std::size_t count = 0;
            while (count < blockSize && (more = select.step())) read(select, block[count++]);
            for (std::size_t i = 0; i < count; ++i) checkMember(block[i]);
        }
    }

    void read(const Statement& row, Member& member) {
        member.id = row.key(0);
        member.parent = row.key(1);
        member.child = row.key(2);
        member.variable = row.textView(3);
        variables_.prefetch(member.variable);
    }

    void checkMember(Member& member) {
        member.recipe = numberOf(recipes_, member.parent);
        if (!member.recipe) reportOrphan(member);
        if (member.child != 0) readInclusion(member);
        if (!isBlank(member.variable) && !variables_.contains(member.variable)) reportUnknown(member);
    }

    void readInclusion(const Member& member) {
        const auto child = numberOf(recipes_, member.child);
        if (!child) {
            findings_.add({Severity::error, "missing-sub-recipe", entryOf(member), member.id,
                           "The sub-recipe with the ID " + std::to_string(member.child) + " does not exist.",
                           "Delete the member or choose an existing recipe."});
        }
        if (!member.recipe) return;
        if (child) inclusions_.push_back({*member.recipe, *child});
        if (saves_[*member.recipe] || !isBlank(member.variable)) return;
        const std::string name = child ? " " + inQuotes(recipes_[*child].name) : std::string();
        findings_.add({Severity::error, "no-file-name", entryOf(member), member.id,
                       "The sub-recipe" + name + " has no variable for its file name.",
                       "Choose one, or let the recipe save the values of its sub-recipes."});
    }

    [[nodiscard]] const RecipeEntry* entryOf(const Member& member) const {
        return member.recipe ? &recipes_[*member.recipe] : nullptr;
    }

    void reportOrphan(const Member& member) {
        findings_.add({Severity::error, "no-recipe", nullptr, member.id,
                       "The recipe with the ID " + std::to_string(member.parent) +
                           ", to which the member belongs, does not exist.",
                       "Delete the member."});
    }

    void reportUnknown(const Member& member) {
        findings_.add({Severity::warning, "unknown-variable", entryOf(member), member.id,
                       "The variable " + inQuotes(member.variable) + " is not in the variable list.",
                       "Add the variable to the list or choose another one."});
    }

    void compareTriggers() {
        for (const auto& uses : triggerUses_) {
            const TriggerUse& first = uses.front();
            std::string others;
            for (const TriggerUse& use : uses) {
                if (use.recipe == first.recipe) continue;
                others += (others.empty() ? "" : ", ") + inQuotes(recipes_[use.recipe].name) + " (" +
                          std::string(use.column) + ")";
            }
            if (others.empty()) continue;
            findings_.add({Severity::warning,
                           "shared-trigger",
                           &recipes_[first.recipe],
                           {},
                           "The trigger variable " + inQuotes(first.variable) + " (" + std::string(first.column) +
                               ") also triggers " + others + ".",
                           "Give each recipe a trigger of its own."});
        }
    }

    void findCycles() {
        for (const auto& cycle : recipe::cyclesOf({recipes_.size(), inclusions_}).ways) {
            std::string way;
            for (const std::size_t recipe : cycle) way += inQuotes(recipes_[recipe].name) + " > ";
            findings_.add({Severity::error,
                           "cycle",
                           &recipes_[cycle.front()],
                           {},
                           "The recipe contains itself: " + way + inQuotes(recipes_[cycle.front()].name) + ".",
                           "Delete one of these sub-recipes."});
        }
    }

    ProjectReader& project_;
    FindingWriter& findings_;
    NameSet variables_;
    std::vector<RecipeEntry> recipes_;
    std::vector<bool> saves_;                      // the values of sub-recipes
    std::vector<recipe::Links::Link> inclusions_;  // of recipes that exist
    NameSet triggers_;
    std::vector<std::vector<TriggerUse>> triggerUses_;  // by the trigger's number
};

void addDamage(FindingWriter& findings, std::string_view damage) {
    findings.add({Severity::error,
                  "damaged",
                  nullptr,
                  {},
                  "The file is damaged: " + visible(damage) + ".",
                  "Go back to a copy of it; \"hxrecipe export\" saves what can still be read."});
}

void addFindings(ProjectReader& project, bool thorough, FindingWriter& findings) {
    const auto damages = thorough ? sqlite::damagesOf(project.database(), mostDamages)
                                  : sqlite::damagesOf(project.database(), mostDamages, comparedWhole);
    for (const std::string& damage : damages) addDamage(findings, damage);
    // What a damaged file seems to hold says nothing.
    if (damages.empty()) Check(project, findings).run();
}

}  // namespace

int check(const CheckOptions& options, const Output& output) {
    ProjectReader project(options.path, ProjectReader::Damage::read);
    FindingWriter findings(options.json, output);
    addFindings(project, options.thorough, findings);
    findings.finish();
    return findings.isEmpty() ? succeeded : found;
}

}  // namespace hx::cli
