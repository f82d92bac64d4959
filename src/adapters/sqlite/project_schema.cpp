// SPDX-License-Identifier: MIT
#include "adapters/sqlite/project_schema.h"

#include <array>

#include "automation/text.h"

namespace hx::sqlite {

namespace {

constexpr const char* tables = R"(
CREATE TABLE TrcpRecipe (
    ID             INTEGER PRIMARY KEY AUTOINCREMENT,
    Name           VARCHAR(255) NOT NULL UNIQUE COLLATE NOCASE,
    VarRecipeName  VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    VarDescription VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    FilePath       LONGTEXT DEFAULT '' COLLATE NOCASE,
    FileExtension  VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    Enabled        BOOLEAN NOT NULL DEFAULT 0,
    Comment        VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    VarLoad        VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    VarSave        VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    VarRead        VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    VarWrite       VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    StandardValue  DOUBLE DEFAULT 0,
    VarSetValue    VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    SaveSubRecipes BOOLEAN NOT NULL DEFAULT 0,
    SaveChanges    BOOLEAN NOT NULL DEFAULT 0,
    CryptEngine    BOOLEAN NOT NULL DEFAULT 0,
    Options        INTEGER DEFAULT 0
);
CREATE TABLE TrcpRecipeMember (
    ID        INTEGER PRIMARY KEY AUTOINCREMENT,
    ParentID  INTEGER NOT NULL DEFAULT 0,
    VarRecipe VARCHAR(255) DEFAULT '' COLLATE NOCASE,
    ChildID   INTEGER NOT NULL DEFAULT 0
);
CREATE TABLE ThxVariable (
    ID      INTEGER PRIMARY KEY AUTOINCREMENT,
    Name    VARCHAR(255) NOT NULL UNIQUE COLLATE NOCASE,
    Type    VARCHAR(20) DEFAULT '',
    Comment VARCHAR(255) DEFAULT '' COLLATE NOCASE
);
)";

// The first one holds all that a member query asks for, so its keys are read from it alone. The last one refuses a
// member that the recipe has already under that name: a variable, or a sub-recipe with the same variable for its file
// name. Different sub-recipes may share that variable.
constexpr const char* indexes = R"(
CREATE INDEX IrcpRecipeMember_ParentID_ChildID ON TrcpRecipeMember (ParentID, ChildID);
CREATE INDEX IrcpRecipeMember_ChildID ON TrcpRecipeMember (ChildID);
CREATE UNIQUE INDEX IrcpRecipeMember_Variable ON TrcpRecipeMember (ParentID, ChildID, VarRecipe)
    WHERE VarRecipe <> '';
)";

}  // namespace

std::string projectTables() {
    return tables + ("PRAGMA application_id=" + std::to_string(projectApplicationId) + ";") +
           "PRAGMA user_version=" + std::to_string(projectSchemaVersion) + ";";
}

std::string projectIndexes() { return indexes; }

std::string_view columnName(automation::Language language, std::string_view column) {
    struct Known {
        std::string_view column;
        automation::Sentence name;
    };
    static constexpr auto all = std::to_array<Known>({
        {"Name", {"Name", "Name"}},
        {"VarRecipeName", {"Recipe File Name", "Rezeptdateiname"}},
        {"VarDescription", {"Description Variable", "Beschreibungsvariable"}},
        {"FilePath", {"Recipe File Path", "Rezeptdateipfad"}},
        {"FileExtension", {"File Extension", "Dateiendung"}},
        {"Enabled", {"Definition active", "Definition aktiv"}},
        {"Comment", {"Comment", "Kommentar"}},
        {"VarLoad", {"Load Trigger", "Ladetrigger"}},
        {"VarSave", {"Save Trigger", "Speichertrigger"}},
        {"VarRead", {"Read Trigger", "Lesetrigger"}},
        {"VarWrite", {"Write Trigger", "Schreibtrigger"}},
        {"StandardValue", {"Norm Factor", "Normfaktor"}},
        {"VarSetValue", {"Multiply Factor Variable", "Sollfaktorvariable"}},
        {"SaveSubRecipes", {"Save Sub Recipe Values here", "Unterrezeptwerte hier speichern"}},
        {"SaveChanges", {"activate Change History", "Änderungshistorie aktivieren"}},
        {"CryptEngine", {"Crypt Recipe Files", "Rezeptdateien verschlüsseln"}},
        {"Options", {"Transfer behaviour", "Transferverhalten"}},
        {"VarRecipe", {"Variable", "Variable"}},
        {"ChildID", {"Sub Recipe", "Unterrezept"}},
    });
    for (const Known& known : all) {
        if (!automation::equalIgnoreCase(known.column, column)) continue;
        return language == automation::Language::german ? known.name.german : known.name.english;
    }
    return column;
}

}  // namespace hx::sqlite
