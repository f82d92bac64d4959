// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/jet/database.h"
#include "adapters/sqlite/jet_storage.h"

struct sqlite3;

namespace hx::sqlite {

/// A Jet project in a connection of SQLite: its tables are tables there, which statements read and change, and a
/// transaction of the connection is one of the project.
class JetMount {
  public:
    /// Opens the project and mounts its tables. The connection is one to nothing, and lives longer; `wait` is lent.
    JetMount(sqlite3* connection, const std::string& path, LockWait& wait, automation::Language language,
             bool readOnly);
    ~JetMount();
    JetMount(const JetMount&) = delete;
    JetMount& operator=(const JetMount&) = delete;

    [[nodiscard]] jet::Database& project() noexcept { return *project_; }

    /// Of the commands that begin and end transactions, what belongs to the project; others are none of its business.
    void before(std::string_view command);
    /// The table, within a Reading. Throws dbErrNoTable.
    [[nodiscard]] jet::Table& table(std::string_view name);
    /// The variable list is a table even of a project that has none: without rows, and made with the first.
    [[nodiscard]] bool isMissing(std::string_view name);
    void makeMissing();
    /// The last number that the table has given.
    [[nodiscard]] ado::Key lastCounter(std::string_view table);
    /// Why a name that is no table cannot be opened; nothing when the project does not know it either.
    [[nodiscard]] std::optional<automation::Error> unavailable(std::string_view name);

    /// Carries out a change of rows, in the transaction that is under way or one of its own. What a rule refuses is
    /// told as SQLite would. Whether the transaction is lost by an error, isLost() tells.
    template <class Change>
    auto change(Change&& change) {
        const bool own = !project_->pages().isWriting();
        if (own) project_->pages().beginWrite();
        try {
            auto result = change();
            if (own) project_->pages().commit();
            tellEnd(true);
            return result;
        } catch (...) {
            if (own || project_->pages().isFailed()) project_->pages().rollback();
            tellEnd(false);
            throw explained(std::current_exception());
        }
    }

    /// The error that a statement has ended with, when it was the project's.
    void keep(std::exception_ptr failure) noexcept { failure_ = std::move(failure); }
    [[nodiscard]] std::exception_ptr takeFailure() noexcept { return std::exchange(failure_, nullptr); }
    /// What is said to the user of an error of the project.
    [[nodiscard]] automation::Error explained(const std::exception_ptr& failure) const;
    [[nodiscard]] static bool isDamage(const std::exception_ptr& failure);
    [[nodiscard]] std::vector<std::string> damages(int most);
    /// Throws when a file of up to so many bytes is damaged, or a larger one where the recipes are.
    void requireUndamaged(std::int64_t checkedWhole);
    void tellEnd(bool done) noexcept;
    /// Copies the whole file, as it is at one moment.
    void copyTo(const std::string& path);

  private:
    friend class JetTransaction;

    void mountTables(sqlite3* connection);

    std::string path_;
    automation::Language language_;
    JetStorage storage_;
    std::unique_ptr<jet::Database> project_;
    std::unique_ptr<jet::Reading> reading_;  // of a transaction that reads
    std::exception_ptr failure_;
    bool statementWrites_ = false;  // a statement outside of transactions has begun one
};

}  // namespace hx::sqlite
