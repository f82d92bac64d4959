#include "cli/content.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <unordered_map>

#include "adapters/sqlite/table_info.h"
#include "automation/error.h"
#include "automation/text.h"
#include "cli/in_file.h"
#include "cli/project_reader.h"
#include "hosting/file_bytes.h"

namespace hx::cli {

using automation::equalIgnoreCase;
using sqlite::Statement;

namespace {

std::optional<double> numberOf(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return std::nullopt;
}

/// Reads the rows of one table, whatever columns it has.
class RowReader {
  public:
    /// `rows` says which ones, and in which order.
    RowReader(sqlite::Database& database, std::string_view table, const std::string& rows)
        : info_(requireTable(database, table)), select_(database, query(info_, rows)) {}

    bool next() { return select_.step(); }

    [[nodiscard]] std::int64_t number(std::string_view column) const {
        return select_.key(2 * static_cast<int>(info_.requireColumn(column)));
    }

    /// All columns but these.
    [[nodiscard]] std::vector<Cell> cells(std::initializer_list<std::string_view> without) const {
        std::vector<Cell> cells;
        for (std::size_t i = 0; i < info_.columns.size(); ++i) {
            const std::string& name = info_.columns[i].name;
            const auto isName = [&](std::string_view other) { return equalIgnoreCase(name, other); };
            if (std::ranges::none_of(without, isName)) cells.push_back({name, value(i), 0});
        }
        return cells;
    }

  private:
    static sqlite::TableInfo requireTable(sqlite::Database& database, std::string_view table) {
        if (auto info = sqlite::TableInfo::read(database, table)) return *info;
        throw automation::Error(automation::errFail, "There is no table \"" + std::string(table) + "\".");
    }

    // Each column twice: its value, and whether it is bytes.
    static std::string query(const sqlite::TableInfo& info, const std::string& rows) {
        std::string columns;
        for (const ado::Column& column : info.columns) {
            const std::string name = sqlite::quotedName(column.name);
            const std::string isBlob = "typeof(" + name + ") = 'blob'";
            columns.append(columns.empty() ? "" : ", ").append("CASE WHEN ").append(isBlob);
            columns.append(" THEN hex(").append(name).append(") ELSE ").append(name).append(" END, ").append(isBlob);
        }
        return "SELECT " + columns + " FROM " + sqlite::quotedName(info.name) + " " + rows;
    }

    [[nodiscard]] Value value(std::size_t column) const {
        const int at = 2 * static_cast<int>(column);
        switch (select_.storedType(at)) {
            case ado::adEmpty: return {};
            case ado::adDouble: return select_.value(at, ado::adDouble).asDouble();
            case ado::adInteger: {
                const std::int64_t number = select_.key(at);
                const bool yesNo = info_.columns[column].type == ado::adBoolean && (number == 0 || number == 1);
                return yesNo ? Value(number == 1) : Value(number);
            }
            default: return select_.key(at + 1) != 0 ? Value(Blob{select_.text(at)}) : Value(select_.text(at));
        }
    }

    sqlite::TableInfo info_;
    Statement select_;
};

// Everything else goes by the name.
void requireName(const ContentRecipe& recipe) {
    const Cell* name = findCell(recipe.cells, "Name");
    if (name != nullptr && std::holds_alternative<std::string>(name->value)) return;
    throw automation::Error(automation::errFail,
                            "The recipe with the ID " + std::to_string(*recipe.id) + " has a name that is no text.");
}

Content contentOf(sqlite::Database& database) {
    Content content;
    std::unordered_map<std::int64_t, std::size_t> numbers;
    RowReader recipes(database, "TrcpRecipe", "ORDER BY ID");
    while (recipes.next()) {
        const std::int64_t id = recipes.number("ID");
        numbers.emplace(id, content.recipes.size());
        content.recipes.push_back({id, recipes.cells({"ID"}), {}, 0});
        requireName(content.recipes.back());
    }
    RowReader members(database, "TrcpRecipeMember", "ORDER BY ID");
    while (members.next()) {
        ContentMember member{members.number("ID"), members.number("ParentID"), members.number("ChildID"), {}, {}, 0};
        member.cells = members.cells({"ID", "ParentID", "ChildID"});
        if (const auto child = numbers.find(member.child); member.child != 0 && child != numbers.end()) {
            member.childName = content.recipes[child->second].name();
        }
        const auto parent = numbers.find(member.parent);
        if (parent == numbers.end()) {
            content.orphans.push_back(std::move(member));
            continue;
        }
        member.parent = 0;
        content.recipes[parent->second].members.push_back(std::move(member));
    }
    return content;
}

// What cannot be opened, too, is better explained where projects are. A pipe gives its text only once.
bool isForProjects(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return std::filesystem::is_directory(status);
    }
    return !std::ifstream(path).is_open() || beginsLikeProject(path);
}

}  // namespace

bool beginsLikeProject(const std::string& path) {
    constexpr std::string_view mark = "SQLite format 3";
    return hosting::startOf(path, mark.size()) == mark;
}

bool isSame(const Value& a, const Value& b) {
    // Beyond 2^53 neighbours are the same real number.
    if (std::holds_alternative<std::int64_t>(a) && std::holds_alternative<std::int64_t>(b)) return a == b;
    const auto x = numberOf(a);
    const auto y = numberOf(b);
    if (x && y) {
        // A yes/no column may hold any number but 0 for true.
        if (std::holds_alternative<bool>(a) || std::holds_alternative<bool>(b)) return (*x != 0) == (*y != 0);
        return *x == *y;
    }
    return a == b;
}

const Cell* findCell(const std::vector<Cell>& cells, std::string_view column) {
    const auto found = std::ranges::find_if(cells, [&](const Cell& c) { return equalIgnoreCase(c.column, column); });
    return found == cells.end() ? nullptr : &*found;
}

const std::string& ContentRecipe::name() const { return std::get<std::string>(findCell(cells, "Name")->value); }

ContentRecipe readRecipe(sqlite::Database& database, std::int64_t id) {
    ContentRecipe recipe{id, {}, {}, 0};
    RowReader row(database, "TrcpRecipe", "WHERE ID = " + std::to_string(id));
    if (row.next()) recipe.cells = row.cells({"ID"});
    return recipe;
}

Content readContent(sqlite::Database& database) {
    return inFile(database.path(), [&] { return contentOf(database); });
}

Content loadContent(const std::string& path) {
    if (!isForProjects(path)) return parseContent(path);
    ProjectReader project(path);
    return readContent(project.database());
}

}  // namespace hx::cli
