// SPDX-License-Identifier: MIT

// What is looked for in all tables of a project: what is wrong in it, or a text.
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>

#include "adapters/sqlite/provider.h"
#include "bench/limit_database.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "cli/findings.h"
#include "cli/generate.h"
#include "project/text_search.h"

namespace hx::bench {

namespace {

constexpr std::int64_t variablesEach = 9;
// Recipe 1 includes recipe 2, which includes recipe 1; a damaged row or two for each other kind of finding.
constexpr const char* lastLine = "6 findings: 4 errors, 2 warnings.\n";
constexpr std::int64_t foundByQueries = 5;  // all but the cycle

// A trigger of its own and one sub-recipe for each recipe.
constexpr const char* links =
    "INSERT INTO ThxVariable (Name) SELECT 'Rezept' || ID || '.Laden' FROM TrcpRecipe;"
    "UPDATE TrcpRecipe SET VarLoad = 'Rezept' || ID || '.Laden';"
    "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) SELECT ID, max(ID / 2, 1) + (ID = 1), VarLoad FROM "
    "TrcpRecipe;";

constexpr const char* damage =
    "UPDATE TrcpRecipeMember SET ChildID = 2000000000 WHERE ID = (SELECT max(ID) FROM TrcpRecipeMember);"
    "UPDATE TrcpRecipeMember SET VarRecipe = '' WHERE ID = (SELECT max(ID) - 1 FROM TrcpRecipeMember);"
    "UPDATE TrcpRecipeMember SET ParentID = 2000000000 WHERE ID = 1;"
    "UPDATE TrcpRecipeMember SET VarRecipe = 'no such variable' WHERE ID = 2;"
    "UPDATE TrcpRecipe SET VarSave = (SELECT VarLoad FROM TrcpRecipe WHERE ID = 3) WHERE ID = 4;";

// The same without the cycles, for which a query would take forever.
constexpr const char* queries[] = {
    "SELECT count(*) FROM TrcpRecipeMember WHERE ParentID NOT IN (SELECT ID FROM TrcpRecipe)",
    "SELECT count(*) FROM TrcpRecipeMember WHERE ChildID <> 0 AND ChildID NOT IN (SELECT ID FROM TrcpRecipe)",
    "SELECT count(*) FROM TrcpRecipeMember AS m JOIN TrcpRecipe AS r ON r.ID = m.ParentID WHERE m.ChildID <> 0 AND "
    "trim(m.VarRecipe) = '' AND NOT r.SaveSubRecipes",
    "SELECT count(*) FROM TrcpRecipeMember WHERE trim(VarRecipe) <> '' AND VarRecipe NOT IN (SELECT Name FROM "
    "ThxVariable)",
    "SELECT count(*) FROM (SELECT Variable FROM (SELECT ID, VarLoad AS Variable FROM TrcpRecipe UNION ALL SELECT ID, "
    "VarSave FROM TrcpRecipe UNION ALL SELECT ID, VarRead FROM TrcpRecipe UNION ALL SELECT ID, VarWrite FROM "
    "TrcpRecipe) WHERE trim(Variable) <> '' GROUP BY Variable HAVING count(DISTINCT ID) > 1)"};

}  // namespace

Project check_project::plant(const Project& beside) {
    const std::string path = std::filesystem::path(beside.path).replace_filename("check.hxs").string();
    const Project project{path, beside.recipes, 0};
    if (std::filesystem::exists(path)) {
        LimitDatabase(project).execute("SELECT count(*) FROM TrcpRecipeMember");  // not from the disk, as a new one
        return project;
    }
    const cli::Output output{std::cout, std::cerr, false};
    cli::generate({project.recipes, project.recipes * variablesEach, 0}, path, output);
    LimitDatabase database(project);
    database.execute(links);
    database.execute(damage);
    return project;
}

Subject check_project::ours(const Project& project) {
    return [=]() -> Work {
        return [=] {
            std::ostringstream results;
            const cli::Output output{results, results, false};
            const int status = cli::check({.path = project.path}, output);
            require(status == cli::found && results.str().ends_with(lastLine), "the check found something else");
        };
    };
}

Subject check_project::peer(const Project& project) {
    return [=]() -> Work {
        return [=] {
            LimitDatabase database(project);
            std::int64_t findings = 0;
            for (const char* query : queries) findings += database.number(query);
            require(findings == foundByQueries, "the queries found something else");
        };
    };
}

Subject check_project::limit(const Project& project) {
    return [=]() -> Work {
        return [=] {
            LimitDatabase database(project);
            database.readAll("SELECT Name FROM ThxVariable");
            database.readAll("SELECT ID, Name, VarLoad, VarSave, VarRead, VarWrite, SaveSubRecipes FROM TrcpRecipe");
            database.readAll("SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember");
        };
    };
}

Subject find_text::ours(const Project& project, const std::string& text) {
    return [=]() -> Work {
        return [=] {
            sqlite::Provider provider;
            project::Reader reader(provider, project.path, project::Reader::Damage::read);
            project::PlainPattern pattern(text, false, false);
            const project::TextSearch search(reader, pattern, {});
            require(!search.hits().empty(), "nothing was found");
        };
    };
}

Subject find_text::limit(const Project& project) {
    return [=]() -> Work {
        return [=] {
            LimitDatabase database(project);
            database.readAll(
                "SELECT ID, Name, Comment, VarRecipeName, VarDescription, VarLoad, VarSave, VarRead, "
                "VarWrite, VarSetValue FROM TrcpRecipe");
            database.readAll("SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember");
            database.readAll("SELECT ID, Name, Comment FROM ThxVariable");
        };
    };
}

}  // namespace hx::bench
