// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "bench/measure.h"
#include "bench/projects.h"

/// What is measured, three times each: our way, the peer's, and what the database alone takes.
namespace hx::bench {

/// Selects the variables of a recipe (RefreshMemberView), counts them and reads one at the start, the middle and the
/// end. The peer fetches all rows; the limit steps through the numbers of the same rows.
namespace select_recipe {
[[nodiscard]] Subject ours(const Project& project, std::int32_t recipe);
[[nodiscard]] Subject peer(const Project& project, std::int32_t recipe);
[[nodiscard]] Subject limit(const Project& project, std::int32_t recipe);
}  // namespace select_recipe

/// Reads 100 rows with all columns somewhere in the selected big recipe; the limit reads as many by their numbers.
namespace read_page {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace read_page

/// Reads number and name of every recipe.
namespace read_recipes {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject peer(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace read_recipes

/// Finds a recipe by its number or its name in the newly opened table.
namespace find_recipe {
[[nodiscard]] Subject ours(const Project& project, const std::string& criterion);
}  // namespace find_recipe

/// Counts recipes and members, as the statistic does.
namespace statistic {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace statistic

/// Adds the nodes of all recipes to the explorer and shows the first of them; the peer fills a QTreeWidget.
namespace fill_explorer {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject peer(const Project& project);
}  // namespace fill_explorer

/// Types into the filter above the explorer of all recipes, until those found are painted.
namespace filter_explorer {
[[nodiscard]] Subject ours(const Project& project, bool byName);
}  // namespace filter_explorer

/// Selects the big recipe and shows its first page in the grid; or scrolls to another page.
namespace show_grid {
[[nodiscard]] Subject firstPage(const Project& project);
[[nodiscard]] Subject anyPage(const Project& project);
}  // namespace show_grid

/// Replaces all variables of the big recipe by the same in another order, as the command for its variables does, up to
/// the grid that shows them. The limit deletes and inserts the same rows in one transaction.
namespace replace_variables {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace replace_variables

/// Deletes the big recipe with its members by the command; the limit deletes the members in one statement.
namespace delete_recipe {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace delete_recipe

/// Deletes the members of the big recipe in one statement while it is recorded, or without that; and undoes it. The
/// limit of the latter inserts the same rows in one transaction.
namespace record_steps {
[[nodiscard]] Subject recorded(const Project& project);
[[nodiscard]] Subject unrecorded(const Project& project);
[[nodiscard]] Subject undo(const Project& project);
[[nodiscard]] Subject insert(const Project& project);
}  // namespace record_steps

/// Opens the dialog for a recipe's variables, with all variables of the project and 1,000 of them checked, from reading
/// the list until it is painted; or types another filter in the open dialog, until the variables found are painted; or
/// checks all variables that are found.
namespace choose_variables {
[[nodiscard]] Subject open(const Project& project);
[[nodiscard]] Subject filter(const Project& project);
[[nodiscard]] Subject checkAll(const Project& project);
}  // namespace choose_variables

/// In the studio: clicks the header of the variables of the big recipe, until they are shown in their order. The limit
/// reads the numbers of the rows in the same order.
namespace sort_members {
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace sort_members

/// In the studio: deletes one variable of the big recipe, sorted by them or not.
namespace delete_member {
[[nodiscard]] Subject ours(const Project& project, bool sorted);
}

/// In the studio: selects all variables of the big recipe.
namespace select_all {
[[nodiscard]] Subject ours(const Project& project);
}

/// In the studio: refreshes the view as a user does, who finds the branch, his node and his row where they were.
namespace refresh_view {
[[nodiscard]] Subject ours(const Project& project);
}

/// In the studio: opens the choice of the variables of the big recipe, in which all are checked; searches in it;
/// cancels it, until the grid shows the variables again.
namespace choose_many {
[[nodiscard]] Subject open(const Project& project);
[[nodiscard]] Subject search(const Project& project);
[[nodiscard]] Subject cancel(const Project& project);
}  // namespace choose_many

/// Checks a project for what is wrong in it, as on the command line. The peer finds the same with queries, but for the
/// cycles; the limit reads the tables once.
namespace check_project {
/// A project of as many recipes as another, with 9 variables, a sub-recipe and a trigger each, and something wrong of
/// each kind; in the folder of the other.
[[nodiscard]] Project plant(const Project& beside);
[[nodiscard]] Subject ours(const Project& project);
[[nodiscard]] Subject peer(const Project& project);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace check_project

/// Looks for a text, ignoring case, in names, comments and variables of recipes, members and the variable list. The
/// limit reads the tables once.
namespace find_text {
[[nodiscard]] Subject ours(const Project& project, const std::string& text);
[[nodiscard]] Subject limit(const Project& project);
}  // namespace find_text

/// Makes the report on a project: reads it; reads it, lays it out and draws the first page; draws another page; writes
/// it as HTML; lays it out and writes it as PDF.
namespace make_report {
/// The file of a project of 1,000 recipes with 20,000 members, 1,900 of them sub-recipes, in the folder of another.
[[nodiscard]] std::string plant(const Project& beside);
[[nodiscard]] Subject readProject(const std::string& path);
[[nodiscard]] Subject show(const std::string& path);    ///< the first page
[[nodiscard]] Subject layOut(const std::string& path);  ///< the others
[[nodiscard]] Subject scroll(const std::string& path);
[[nodiscard]] Subject html(const std::string& path);
[[nodiscard]] Subject pdf(const std::string& path);
}  // namespace make_report

/// The project as a Jet database beside it, made once.
namespace jet_project {
[[nodiscard]] Project of(const Project& original);
/// Reads all columns of all members.
[[nodiscard]] Subject readMembers(const Project& project);
[[nodiscard]] Subject readMembersByPeer(const Project& project);
}  // namespace jet_project

}  // namespace hx::bench
