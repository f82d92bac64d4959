// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>

#include "adapters/sqlite/database.h"
#include "lists/listed_variable.h"

namespace hx::lists {

/// What became of a variable of a list.
struct VariableChange {
    enum class Kind { added, changed, unchanged, repeated };
    Kind kind = Kind::unchanged;
    std::string name, type, comment;  ///< as the project had them; empty for a new one
};

/// Brings the variables of one list into the variable list of a project, in the transaction that the caller holds.
/// Names are compared ignoring case; a variable that exists keeps its spelling and what the list does not say.
class VariableWriter {
  public:
    /// `file` is the list, for messages.
    VariableWriter(sqlite::Database& database, std::string file);

    [[nodiscard]] const VariableLimits& limits() const { return limits_; }
    /// From now on a copy of the variable list is changed, in memory.
    void practise();

    /// Throws automation::Error with line and field when the variable cannot be one, or is in the list already with
    /// something else.
    VariableChange take(const ListedVariable& variable);

  private:
    struct Entry {
        std::int64_t id;
        int line;  // that named it; 0: none
    };
    struct Row {
        std::string name, type, comment;
    };

    void check(const ListedVariable& variable) const;
    VariableChange write(const ListedVariable& variable);
    [[nodiscard]] std::size_t hashOf(std::string_view name);
    [[nodiscard]] Row read(std::int64_t id);
    VariableChange takeKnown(Entry& entry, const Row& row, const ListedVariable& variable);
    void update(std::int64_t id, const Row& row, const ListedVariable& variable);
    void insert(std::size_t hash, const ListedVariable& variable);

    sqlite::Database& database_;
    std::string file_;
    VariableLimits limits_;
    // By the hash of the folded name: the names themselves stay in the database. An equal hash is looked into.
    std::unordered_multimap<std::size_t, Entry> known_;
    std::string folded_;
};

}  // namespace hx::lists
