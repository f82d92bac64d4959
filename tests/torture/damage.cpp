// SPDX-License-Identifier: MIT
#include "torture/damage.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "torture/state.h"

namespace hx::torture {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t page = 4096;

// Without end, should anybody read all of it.
const std::string endless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT ";

// The members in a table that asks nothing of them.
const std::string freeMembers =
    "CREATE TABLE m AS SELECT * FROM TrcpRecipeMember; DROP TABLE TrcpRecipeMember; ALTER TABLE m RENAME TO "
    "TrcpRecipeMember; ";

struct Schema {
    std::string name, sql;
};
const auto schemaRows = std::to_array<Schema>({
    {"view",
     "CREATE TABLE r AS SELECT * FROM TrcpRecipe; DROP TABLE TrcpRecipe; CREATE VIEW TrcpRecipe AS SELECT * FROM r"},
    {"endless recipes", "DROP TABLE TrcpRecipe; CREATE VIEW TrcpRecipe AS " + endless +
                            "i AS ID, 'r' || i AS Name, 0 AS StandardValue, 0 AS Options, '' AS Comment FROM n"},
    {"endless members", "DROP TABLE TrcpRecipeMember; CREATE VIEW TrcpRecipeMember AS " + endless +
                            "i AS ID, 1 AS ParentID, 'v' || i AS VarRecipe, 0 AS ChildID FROM n"},
    {"endless variables", "DROP TABLE ThxVariable; CREATE VIEW ThxVariable AS " + endless +
                              "i AS ID, 'v' || i AS Name, '' AS Type, '' AS Comment FROM n"},
    {"views in a circle",
     "DROP TABLE TrcpRecipeMember; CREATE VIEW TrcpRecipeMember AS SELECT * FROM b; CREATE VIEW b AS SELECT * FROM "
     "TrcpRecipeMember"},
    {"trigger that deletes",
     "CREATE TRIGGER t AFTER INSERT ON TrcpRecipe BEGIN DELETE FROM TrcpRecipeMember; END;"
     "CREATE TRIGGER u AFTER UPDATE ON TrcpRecipe BEGIN DELETE FROM TrcpRecipe; END;"
     "CREATE TRIGGER v AFTER INSERT ON ThxVariable BEGIN DELETE FROM TrcpRecipe; END"},
    {"trigger without end",
     "CREATE TRIGGER t AFTER INSERT ON TrcpRecipe BEGIN SELECT count(*) FROM (" + endless + "i FROM n); END"},
    {"computed column", "ALTER TABLE TrcpRecipe ADD COLUMN g AS (zeroblob(900000000))"},
    {"no row numbers",
     "CREATE TABLE m (ID INTEGER PRIMARY KEY, ParentID, VarRecipe, ChildID) WITHOUT ROWID; INSERT INTO m SELECT ID, "
     "ParentID, "
     "VarRecipe, ChildID FROM TrcpRecipeMember; DROP TABLE TrcpRecipeMember; ALTER TABLE m RENAME TO TrcpRecipeMember"},
    {"long text", "UPDATE TrcpRecipe SET Comment = printf('%.*c', 30000000, 'x')"},
    {"bytes", freeMembers + "UPDATE TrcpRecipe SET Name = randomblob(20), Comment = x'00FF'; UPDATE TrcpRecipeMember "
                            "SET VarRecipe = x'00'"},
    {"no text",
     "UPDATE TrcpRecipe SET Name = CAST(x'C328' AS TEXT) WHERE ID = 1; UPDATE ThxVariable SET Name = CAST(x'FF41' AS "
     "TEXT) WHERE rowid = 1"},
    {"numbers of another size",
     "UPDATE TrcpRecipe SET ID = 9223372036854775807 WHERE ID = 1; UPDATE TrcpRecipe SET ID = -5 WHERE "
     "ID = 2; UPDATE TrcpRecipeMember SET ParentID = 1e300, ChildID = 'x'"},
    {"infinite", "UPDATE TrcpRecipe SET StandardValue = 9e999, Options = -9e999"},
    {"nothing", freeMembers + "UPDATE TrcpRecipeMember SET ParentID = NULL, ChildID = NULL, VarRecipe = NULL"},
    {"circle of recipes", "UPDATE TrcpRecipeMember SET ChildID = ParentID"},
    {"no SQL", "PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = 'nothing' WHERE name = 'TrcpRecipe'"},
    {"another's pages",
     "PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = (SELECT rootpage FROM sqlite_master WHERE "
     "name = 'TrcpRecipeMember') WHERE name = 'TrcpRecipe'"},
    {"pages that are not there", "PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = 99999"},
    {"write-ahead log", "PRAGMA journal_mode = WAL"},
});

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void rewrite(const std::string& path, const std::function<void(std::string& bytes)>& action) {
    std::string bytes = contents(path);
    action(bytes);
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

std::size_t below(std::mt19937& chance, std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(chance);
}

void flip(std::string& bytes, std::mt19937& chance) {
    for (std::size_t i = 1 + below(chance, 8); i > 0; --i) {
        bytes[below(chance, bytes.size())] = static_cast<char>(below(chance, 256));
    }
}

// Where most of what leads through the file stands.
void flipBeginnings(std::string& bytes, std::mt19937& chance) {
    for (std::size_t i = 1 + below(chance, 4); i > 0; --i) {
        bytes[below(chance, bytes.size() / page) * page + below(chance, 120)] = static_cast<char>(below(chance, 256));
    }
}

void spoilPage(std::string& bytes, std::mt19937& chance) {
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(below(chance, bytes.size() / page) * page);
    const auto other = bytes.begin() + static_cast<std::ptrdiff_t>(below(chance, bytes.size() / page) * page);
    if (below(chance, 2) == 0) std::fill_n(at, page, static_cast<char>(below(chance, 2) * 0xFF));
    else std::swap_ranges(at, at + page, other);
}

void cut(std::string& bytes, std::mt19937& chance) { bytes.resize(below(chance, bytes.size())); }

}  // namespace

std::vector<Damage> schemas() {
    std::vector<Damage> list;
    for (const Schema& row : schemaRows) {
        list.push_back({row.name, [sql = row.sql](const std::string& project) { change(project, sql); }});
    }
    return list;
}

Damage accident(std::mt19937& chance) {
    using Make = void (*)(std::string & bytes, std::mt19937 & chance);
    static constexpr std::array<std::pair<const char*, Make>, 4> kinds = {
        {{"bytes", flip}, {"beginnings", flipBeginnings}, {"pages", spoilPage}, {"length", cut}}};
    const auto& [name, make] = kinds[below(chance, kinds.size())];
    const std::uint32_t seed = static_cast<std::uint32_t>(chance());
    return {std::string(name) + " " + std::to_string(seed), [make, seed](const std::string& project) {
                std::mt19937 own(seed);
                rewrite(project, [&](std::string& bytes) { make(bytes, own); });
            }};
}

}  // namespace hx::torture
