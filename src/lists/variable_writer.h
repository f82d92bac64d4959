// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "ado/provider.h"
#include "lists/listed_variable.h"

namespace hx::lists {

/// What became of a variable of a list.
struct VariableChange {
    enum class Kind { added, changed, unchanged, repeated };
    Kind kind = Kind::unchanged;
    std::string name, type, comment;  ///< as the project had them; empty for a new one
};

/// Brings the variables of one list into the variable list of a project, in the transaction that the caller holds, or
/// says what that would do.
/// Names are compared ignoring case; a variable that exists keeps its spelling and what the list does not say.
class VariableWriter {
  public:
    enum class Mode { write, practise };
    /// `project` and `file`, the list, are for messages.
    VariableWriter(ado::Session& session, const std::string& project, std::string file, Mode mode = Mode::write);

    [[nodiscard]] const VariableLimits& limits() const { return limits_; }
    /// Throws automation::Error with line and field when the variable cannot be one, or is in the list already with
    /// something else.
    VariableChange take(const ListedVariable& variable);

  private:
    struct Entry {
        ado::Key key;
        int line;  // that named it; 0: none
    };
    struct Row {
        std::string name, type, comment;
    };

    void check(const ListedVariable& variable) const;
    VariableChange write(const ListedVariable& variable);
    [[nodiscard]] std::size_t columnOf(std::string_view name) const;
    [[nodiscard]] VariableLimits limitsOf() const;
    void readKnown();
    [[nodiscard]] std::size_t hashOf(std::string_view name);
    [[nodiscard]] Row read(ado::Key key);
    VariableChange takeKnown(Entry& entry, const Row& row, const ListedVariable& variable);
    void update(ado::Key key, const Row& row, const ListedVariable& variable);
    void insert(std::size_t hash, const ListedVariable& variable);

    std::unique_ptr<ado::Rowset> rows_;
    std::size_t name_ = 0, type_ = 0, comment_ = 0;  // columns
    std::string file_;
    VariableLimits limits_;
    // By the hash of the folded name: the names themselves stay in the database. An equal hash is looked into.
    std::unordered_multimap<std::size_t, Entry> known_;
    std::string folded_;
    const Mode mode_;
    std::unordered_map<ado::Key, Row> practised_;  // what would be there by now
};

}  // namespace hx::lists
