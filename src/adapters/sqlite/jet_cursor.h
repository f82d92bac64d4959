// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "adapters/jet/database.h"
#include "adapters/sqlite/jet_plan.h"

struct sqlite3_context;
struct sqlite3_value;

namespace hx::sqlite {

class JetMount;

/// Goes through rows of a Jet table. Changes between two steps do not harm it.
class JetCursor {
  public:
    /// Reads as long as it lives.
    JetCursor(JetMount& mount, const std::string& table);

    void filter(const JetPlan& plan, std::span<sqlite3_value*> values);
    void next();
    [[nodiscard]] bool atEnd() const noexcept { return atEnd_; }
    [[nodiscard]] ado::Key key();
    void giveColumn(sqlite3_context* context, std::size_t column);

  private:
    [[nodiscard]] jet::Table& table();
    void startIndex(std::size_t index, jet::Buffer from, jet::Buffer start);
    void startRange(const JetPlan& plan, std::span<sqlite3_value*> values);
    void startKeys(const JetPlan& plan, std::span<sqlite3_value*> values);
    void stepScan();
    void stepIndex(bool first);
    [[nodiscard]] bool isPast() const noexcept;
    void keepUp();

    JetMount& mount_;
    std::string name_;
    jet::Reading reading_;
    jet::Table* table_ = nullptr;
    std::uint64_t generation_ = 0, changes_ = 0;

    JetPlan plan_;
    bool atEnd_ = true;
    jet::Table::Found found_;
    std::optional<jet::Table::Scan> scan_;
    std::optional<jet::IndexTree::Cursor> entries_;
    std::size_t index_ = 0;
    jet::Buffer start_;    // of the keys that are wanted, or their greatest
    jet::Buffer current_;  // key and place of the current entry
    bool atNext_ = false;  // the entry behind the current one is the cursor's already
    std::string room_;
};

}  // namespace hx::sqlite
