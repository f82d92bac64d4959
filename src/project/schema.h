// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// Tables and columns of the project database that are read and written by name. The host owns the tables; they may
/// have further columns, which stay as they are.
namespace hx::project::schema {

inline constexpr std::string_view recipeTable = "TrcpRecipe";
inline constexpr std::string_view memberTable = "TrcpRecipeMember";
inline constexpr std::string_view variableTable = "ThxVariable";  ///< the list of the process variables

/// Columns of `recipeTable`, one row a recipe. Var... hold names of variables.
namespace recipe {
inline constexpr std::string_view id = "ID";      ///< assigned by the database, never -1
inline constexpr std::string_view name = "Name";  ///< unique ignoring case
inline constexpr std::string_view varRecipeName = "VarRecipeName";
inline constexpr std::string_view varDescription = "VarDescription";
inline constexpr std::string_view filePath = "FilePath";  ///< may be null, may begin with "<ProjectDir>"
inline constexpr std::string_view fileExtension = "FileExtension";
inline constexpr std::string_view enabled = "Enabled";
inline constexpr std::string_view comment = "Comment";
inline constexpr std::string_view varLoad = "VarLoad";
inline constexpr std::string_view varSave = "VarSave";
inline constexpr std::string_view varRead = "VarRead";
inline constexpr std::string_view varWrite = "VarWrite";
inline constexpr std::string_view standardValue = "StandardValue";  ///< 0: the values are absolute
inline constexpr std::string_view varSetValue = "VarSetValue";
inline constexpr std::string_view saveSubRecipes = "SaveSubRecipes";
inline constexpr std::string_view saveChanges = "SaveChanges";
inline constexpr std::string_view cryptEngine = "CryptEngine";
inline constexpr std::string_view options = "Options";  ///< bits, see `option`

/// Those that name a variable, and of these the ones whose variable starts a transfer.
inline constexpr std::array variableColumns{varRecipeName, varDescription, varLoad,    varSave,
                                            varRead,       varWrite,       varSetValue};
inline constexpr std::array triggerColumns{varLoad, varSave, varRead, varWrite};
}  // namespace recipe

/// Columns of `memberTable`, one row a variable or sub-recipe of a recipe.
namespace member {
inline constexpr std::string_view id = "ID";              ///< assigned by the database, in the order of insertion
inline constexpr std::string_view parentId = "ParentID";  ///< the recipe that contains the member
inline constexpr std::string_view childId = "ChildID";    ///< 0 for a variable, else the recipe that is included
inline constexpr std::string_view varRecipe = "VarRecipe";
}  // namespace member

/// Columns of `variableTable`, one row a variable.
namespace variable {
inline constexpr std::string_view name = "Name";  ///< unique ignoring case
inline constexpr std::string_view type = "Type";
inline constexpr std::string_view comment = "Comment";
}  // namespace variable

/// Bits of `recipe::options`.
namespace option {
inline constexpr std::int32_t writeThrough = 1;  ///< changed values are written to the process at once
inline constexpr std::int32_t saveThrough = 2;   ///< changed values are saved to the recipe file at once
}  // namespace option

/// A `ParentID` that no member has.
inline constexpr std::int32_t noRecipe = -1;

}  // namespace hx::project::schema
