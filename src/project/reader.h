// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"
#include "project/inclusion_graph.h"

namespace hx::project {

/// Values of one row, in the order in which their columns were asked for.
using Row = std::span<const ado::StoredValue>;

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

/// Where the recipe with this ID stands in a list that is ordered by ID; nothing when there is none.
[[nodiscard]] std::optional<std::size_t> numberOf(const std::vector<RecipeEntry>& recipes, std::int64_t id);
/// Where the recipe with this name ignoring case stands in it, else the one with this ID.
[[nodiscard]] std::optional<std::size_t> findRecipe(const std::vector<RecipeEntry>& recipes,
                                                    const std::string& nameOrId);
/// Which recipe includes which, numbered as in these lists.
[[nodiscard]] InclusionGraph graphOf(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions);

/// Reads the tables of a project. What a provider throws is passed on.
class Reader {
  public:
    /// What is done with a project that is damaged: what can still be read of it is not all.
    enum class Damage { refuse, read };

    /// Opens a project file for reading only; all that is read is as of one moment.
    Reader(ado::Provider& provider, std::string path, Damage damage = Damage::refuse);
    /// Reads what a session shows that somebody else has opened and keeps.
    Reader(std::shared_ptr<ado::Session> session, std::string path);

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Tells how many rows have been read, of a total that nobody knows (0). What it throws ends the reading.
    void tell(std::function<void(std::int64_t done, std::int64_t total)> progress) { progress_ = std::move(progress); }
    /// For what is done beside the reading.
    void reach(std::int64_t done, std::int64_t total) const {
        if (progress_) progress_(done, total);
    }
    [[nodiscard]] ado::Session& session() { return *session_; }

    /// The columns of a table; throws dbErrNoTable.
    [[nodiscard]] std::vector<ado::Column> columns(std::string_view table);
    /// Gives these columns of the rows of a table by their IDs; a condition is one of Jet SQL.
    void read(std::string_view table, std::span<const std::string_view> columns, const ado::StoredRowReceiver& receive,
              const std::string& condition = {});

    /// Gives these columns of all rows of a table with the keys by which the rows are changed: not their IDs where the
    /// table's key is another column.
    void readKeyed(std::string_view table, std::span<const std::string_view> columns,
                   const std::function<void(ado::Key key, Row row)>& receive);

    [[nodiscard]] std::vector<RecipeEntry> recipes();   ///< by ID
    [[nodiscard]] std::vector<Inclusion> inclusions();  ///< by the member's ID

  private:
    void scan(ado::Rowset& rows, std::string_view table, std::span<const std::string_view> columns,
              const ado::StoredRowReceiver& receive);

    std::shared_ptr<ado::Session> session_;
    std::string path_;
    std::function<void(std::int64_t done, std::int64_t total)> progress_;
    std::int64_t rows_ = 0;  // that have been read
};

}  // namespace hx::project
