#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "automation/variant.h"
#include "cli/text_file.h"

namespace hx::cli {

/// One variable of the project's list.
struct SampleVariable {
    std::string name;
    std::string type;
    std::string comment;
};

/// A variable (no sub-recipe) or a sub-recipe with the variable that supplies its file name (may be empty).
struct SampleMember {
    std::string variable;
    std::string subRecipe;
    Line line;
};

struct SampleRecipe {
    std::string name;
    std::vector<std::pair<std::string, automation::Variant>> columns;  ///< as the file sets them
    std::vector<SampleMember> members;
    Line line;
};

/// A sample project as its text files hold it; samples/README.md says how they are written.
struct Sample {
    std::vector<SampleVariable> variables;
    std::vector<SampleRecipe> recipes;
};

/// Reads variables.csv and recipes.txt and checks every rule; throws automation::Error with file, line and what is
/// wrong.
[[nodiscard]] Sample readSample(const std::string& folder);

// The two steps of that.
[[nodiscard]] std::vector<SampleVariable> readVariables(const std::vector<Line>& lines);
[[nodiscard]] std::vector<SampleRecipe> readRecipes(const std::vector<Line>& lines,
                                                    const std::vector<SampleVariable>& variables);

}  // namespace hx::cli
