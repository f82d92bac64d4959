// SPDX-License-Identifier: MIT
#include "cli/convert.h"

#include <algorithm>
#include <array>

#include "adapters/sqlite/jet_project.h"
#include "adapters/sqlite/session.h"
#include "automation/text.h"
#include "cli/unfinished_file.h"
#include "hosting/file_bytes.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::cli {

namespace {

constexpr std::array<std::string_view, 3> tables = {"TrcpRecipe", "TrcpRecipeMember", project::schema::variableTable};

/// Copies the rows of one table.
class TableCopy {
  public:
    TableCopy(sqlite::Session& from, sqlite::Session& to, std::string_view table, const Output& output)
        : table_(table), from_(from.open(table, ado::adCmdTable)), to_(to.open(table, ado::adCmdTable)) {
        const auto& known = to_->columns();
        for (std::size_t i = 0; i < from_->columns().size(); ++i) {
            const std::string& name = from_->columns()[i].name;
            const auto same = std::ranges::find_if(
                known, [&](const ado::Column& column) { return automation::equalIgnoreCase(column.name, name); });
            if (same == known.end()) {
                output.problems << "Not copied: column " << hosting::inQuotes(name) << " of table " << table << ".\n";
                continue;
            }
            columns_.push_back(i);
            places_.push_back(static_cast<std::size_t>(same - known.begin()));
        }
    }

    /// How many rows there were.
    std::int64_t run() {
        from_->scan(columns_, [&](std::span<const ado::StoredValue> row) { copy(row); });
        return rows_;
    }

  private:
    void copy(std::span<const ado::StoredValue> row) {
        bool given = false;
        const auto once = [&](std::span<ado::StoredValue> values) {
            if (given) return false;
            std::ranges::copy(row, values.begin());
            return given = true;
        };
        ++rows_;
        try {
            to_->restore(places_, once);
        } catch (const automation::Error& error) {
            throw automation::Error(error.number(), "Row " + std::to_string(rows_) + " of table " +
                                                        std::string(table_) +
                                                        " cannot be copied: " + error.description());
        }
    }

    std::string_view table_;
    std::unique_ptr<ado::Rowset> from_, to_;
    std::vector<std::size_t> columns_, places_;
    std::int64_t rows_ = 0;
};

void nameOtherTables(sqlite::Database& database, const Output& output) {
    sqlite::Statement names(database, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
    while (names.step()) {
        const std::string name = names.text(0);
        const auto isName = [&](std::string_view table) { return automation::equalIgnoreCase(table, name); };
        if (name.starts_with("sqlite_") || std::ranges::any_of(tables, isName)) continue;
        output.problems << "Not copied: table " << hosting::inQuotes(name) << ".\n";
    }
}

}  // namespace

void convertProject(const std::string& from, const std::string& to, const Output& output) {
    sqlite::Session source(from, true);
    source.beginTransaction();
    sqlite::ProjectDraft draft(to);
    const UnfinishedFile unfinished(hosting::fileSystemPath(draft.temporaryPath()));
    const bool toJet = source.database().jet() == nullptr;
    if (toJet) sqlite::fillJetProject(draft.temporaryPath());
    else draft.createTables();
    std::array<std::int64_t, tables.size()> rows{};
    {
        sqlite::Session target(draft.temporaryPath(), false, {.comparesNames = false});
        target.beginTransaction();
        for (std::size_t i = 0; i < tables.size(); ++i) rows[i] = TableCopy(source, target, tables[i], output).run();
        target.commit();
    }
    nameOtherTables(source.database(), output);
    draft.publish();
    output.results << "Made " << to << (toJet ? ", a Jet database: " : ": ") << rows[0] << " recipes, " << rows[1]
                   << " members, " << rows[2] << " variables.\n";
}

}  // namespace hx::cli
