#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/project_check.h"
#include "cli/visible.h"

namespace hx::cli {

struct RecipeEntry {
    std::int64_t id = 0;
    std::string name;
};

/// A member that is a sub-recipe.
struct Inclusion {
    std::int64_t member = 0;
    std::int64_t parent = 0;
    std::int64_t child = 0;  ///< may name no recipe
    std::string fileVariable;
};

/// Where the recipe with this ID stands in what ProjectReader::recipes() gave; nothing when there is none.
[[nodiscard]] std::optional<std::size_t> numberOf(const std::vector<RecipeEntry>& recipes, std::int64_t id);

/// A project that is read and never changed; everything read is as of one moment. Throws automation::Error when the
/// file cannot be read or is no project.
class ProjectReader {
  public:
    /// What is done with a project that is damaged: what can still be read of it is not all.
    enum class Damage { refuse, read };
    explicit ProjectReader(const std::string& path, Damage damage = Damage::refuse);

    /// For further queries; writing through it fails.
    [[nodiscard]] sqlite::Database& database() { return database_; }
    [[nodiscard]] const std::string& path() const { return database_.path(); }

    [[nodiscard]] std::vector<RecipeEntry> recipes();   ///< by ID
    [[nodiscard]] std::vector<Inclusion> inclusions();  ///< by the member's ID
    /// The recipe with this name ignoring case, else the one with this ID; nothing when there is neither.
    [[nodiscard]] std::optional<RecipeEntry> findRecipe(const std::string& nameOrId);

  private:
    sqlite::ProjectDatabase database_;
};

/// Throws an automation::Error that says why the file is no project, or that it is damaged.
void requireProject(const std::string& path);

/// Columns of a recipe that name a variable.
inline constexpr std::string_view variableColumns[] = {"VarRecipeName", "VarDescription", "VarLoad",    "VarSave",
                                                       "VarRead",       "VarWrite",       "VarSetValue"};

}  // namespace hx::cli
