// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/sentence.h"

namespace hx::sqlite {

/// What marks a SQLite file as a project: "HXSP" in its header.
inline constexpr std::int32_t projectApplicationId = 0x48585350;
/// The newest form of the tables that this program knows.
inline constexpr std::int32_t projectSchemaVersion = 1;

/// The statements that make an empty project of an empty file: the tables, then what speeds up queries.
///
/// A yes/no column stores 1 for true; any number but 0 reads as true, -1 among them, as other programs write it.
/// Name is unique in SQLite's own NOCASE, so that any SQLite program can open the file; that letters beyond ASCII are
/// compared ignoring case too is up to the provider.
[[nodiscard]] std::string projectTables();
[[nodiscard]] std::string projectIndexes();

/// What the user calls a column of the recipes and their members; the column's own name when he does not know it.
[[nodiscard]] std::string_view columnName(automation::Language language, std::string_view column);

}  // namespace hx::sqlite
