// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/sentence.h"
#include "project/links.h"
#include "project/name_set.h"
#include "project/reader.h"

namespace hx::project {

enum class Severity { error, warning };

/// Something wrong in a project. The sentences begin with a capital and end with a full stop; names in them stand as
/// they are stored.
struct Finding {
    Severity severity = Severity::error;
    std::string_view kind;                ///< one word for programs
    const RecipeEntry* recipe = nullptr;  ///< where; none when there is no such recipe. Lent until the check ends
    std::optional<std::int64_t> member;   ///< where, when it is a member
    std::string problem;
    std::string_view advice;
    bool ofSubRecipe = false;   ///< the member is one
    std::string_view column{};  ///< where, when it is a column of the recipe
};

/// How findings are put into words.
struct FindingWords {
    automation::Language language = automation::Language::english;
    bool captions = false;  ///< columns are called as in the dialogs, not as in the tables
};

/// Looks for what is wrong in a project whose tables can be read: cycles, missing sub-recipes and file names, members
/// without a recipe, unknown variables, shared triggers. Reads each table once: with a million members every further
/// pass would count.
class Check {
  public:
    using Receiver = std::function<void(const Finding&)>;

    Check(Reader& reader, Receiver receive, FindingWords words = {})
        : reader_(reader), receive_(std::move(receive)), words_(words) {}
    /// What the reader throws is passed on.
    void run();
    /// Reports what is damaged; true when anything is. What a damaged file seems to hold then says nothing.
    [[nodiscard]] bool findDamage(ado::Session::Check thorough);
    /// The names of the variable list, once it has run.
    [[nodiscard]] NameSet takeVariables() noexcept { return std::move(variables_); }

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

    void readVariables();
    void readRecipes();
    void readVariable(std::size_t recipe, std::string_view column, std::string_view variable);
    void readMembers();
    void checkMember(Member& member);
    void readInclusion(const Member& member);
    [[nodiscard]] const RecipeEntry* entryOf(const Member& member) const;
    void reportOrphan(const Member& member);
    void reportUnknown(const Member& member);
    void compareTriggers();
    void findCycles();
    void report(Finding finding, const automation::Sentence& advice);
    void report(Severity severity, std::string_view kind, const Member& member, std::string problem,
                const automation::Sentence& advice);
    [[nodiscard]] std::string say(const automation::Sentence& sentence,
                                  std::initializer_list<std::string_view> names) const {
        return automation::say(words_.language, sentence, names);
    }
    [[nodiscard]] std::string_view shown(std::string_view column) const;

    Reader& reader_;
    Receiver receive_;
    FindingWords words_;
    NameSet variables_;
    std::vector<RecipeEntry> recipes_;
    std::vector<bool> saves_;              // the values of sub-recipes
    std::vector<Links::Link> inclusions_;  // of recipes that exist
    NameSet triggers_;
    std::vector<std::vector<TriggerUse>> triggerUses_;  // by the trigger's number
};

}  // namespace hx::project
