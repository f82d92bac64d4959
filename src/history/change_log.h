// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"

namespace hx::history {

/// The rows that a unit of work has changed, in the order in which it did, in one piece of memory that can be written
/// to a file as it is.
class ChangeLog {
  public:
    ChangeLog() = default;
    /// What bytes() gave. That is believed only as it is read.
    explicit ChangeLog(std::string bytes) : bytes_(std::move(bytes)) {}

    void add(const ado::RowChange& change);
    /// Puts what another has recorded behind it.
    void add(const ChangeLog& other);

    struct Mark {
        std::size_t bytes = 0, tables = 0;
    };
    [[nodiscard]] Mark end() const noexcept { return {bytes_.size(), tables_.size()}; }
    /// Forgets what was recorded since.
    void cut(const Mark& mark);

    [[nodiscard]] bool empty() const noexcept { return bytes_.empty(); }
    [[nodiscard]] const std::string& bytes() const noexcept { return bytes_; }

  private:
    void addRow(std::span<const ado::StoredValue> row);
    void addNumber(std::uint64_t number);
    [[nodiscard]] std::size_t numberOf(std::string_view table);

    std::string bytes_;
    std::vector<std::string> tables_;  // by number; of those that add() has named
};

/// Reads a log from any of its changes on. What it gives is lent until the next call.
class ChangeReader {
  public:
    /// The log is lent.
    explicit ChangeReader(const ChangeLog& log) : bytes_(log.bytes()) {}

    /// Where the next change stands, for at().
    [[nodiscard]] std::size_t place() const noexcept { return at_; }
    /// Null at the end. Throws errFail when the bytes are no log.
    [[nodiscard]] const ado::RowChange* next();
    /// The change that stands at a place, without its table's name when next() has not come by; next() goes on behind.
    [[nodiscard]] const ado::RowChange& at(std::size_t place);

  private:
    [[nodiscard]] const ado::RowChange* read();
    [[nodiscard]] std::uint64_t number();
    [[nodiscard]] std::string_view text(std::uint64_t size);
    void readRow(std::vector<ado::StoredValue>& row);
    [[nodiscard]] ado::StoredValue value();

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::vector<std::string> tables_;
    std::vector<ado::StoredValue> before_, after_;
    std::uint64_t table_ = 0;  // of the change
    ado::RowChange change_;
};

}  // namespace hx::history
