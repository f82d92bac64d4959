// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "adapters/sqlite/functions.h"
#include "adapters/sqlite/lock_wait.h"
#include "adapters/sqlite/row_watch.h"
#include "adapters/sqlite/statement.h"
#include "automation/error.h"
#include "automation/sentence.h"

struct sqlite3;

namespace hx::sqlite {

/// Name and version of the library, "SQLite 3.40.1".
[[nodiscard]] std::string libraryVersion();

/// How a file is opened.
struct OpenOptions {
    automation::Language language = automation::Language::english;  ///< of the errors' descriptions
    LockWait::Milliseconds lockWait{2000};                          ///< for a lock that another program holds
    LockWait::Sleep sleep = {};                                     ///< none: the thread sleeps
    /// Whether a session refuses a name that differs from another's only in the case of letters beyond ASCII. It looks
    /// at all names with the same beginning: who writes very many compares them himself.
    bool comparesNames = true;
    bool keepsChangesInMemory = false;  ///< until a transaction ends, however many they are
    bool readOnly = false;              ///< nothing is written beside the file either, where that can be helped
};

class JetMount;

/// An open project: a SQLite file, or a Jet database, which is mounted in a connection to nothing. Every failure is an
/// automation::Error that names the file: dbErrDuplicate, dbErrIntegrity, dbErrNoTable, dbErrBadCommand, else
/// dbErrUnspecified.
class Database {
  public:
    /// Opens an existing file for reading and writing (for reading when it is write-protected). Writes are on the disk
    /// when a statement, or the transaction around it, returns. Nothing is read yet.
    explicit Database(const std::string& path, const OpenOptions& options = {});
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    /// Null unless the project is a Jet database.
    [[nodiscard]] JetMount* jet() const noexcept { return jet_.get(); }

    /// A statement ready to be bound and run; the last used ones are kept. Reset it after use (ResetGuard).
    [[nodiscard]] Statement& prepared(const std::string& sql);
    /// Runs one or several statements that give no rows.
    void execute(const std::string& sql);
    /// The integer in the first column of the first row, 0 when there is none.
    [[nodiscard]] std::int64_t number(const std::string& sql);

    /// Asked now and then while a statement runs; true ends the statement with an error.
    void interruptWhen(std::function<bool()> asked);
    /// Tells who watches each row that a statement changes; null: nobody.
    void watch(ado::RowWatcher* watcher);
    /// A statement that writes has run to its end, or has failed.
    void statementEnds(bool done) const noexcept;

    /// How many steps of SQLite's machine one row of a statement may take: beyond them the statement ends with an
    /// error. By itself a connection allows so many that only work without end, which a file can ask for, reaches it.
    void limitWork(std::int64_t steps);
    /// The steps are counted from here.
    void beginWork() const noexcept { work_->done = 0; }
    /// Lets the connection keep more pages of the file in memory, or as few as before, the rest being given back.
    void useLargeCache(bool large) noexcept;

    /// Copies everything, as it is at one moment, into a file that is empty. Only a flush is left to make it safe.
    void copyTo(const std::string& path);

    /// Runs a statement that hands its rows to the function hx_keys.
    [[nodiscard]] Collection collect(Statement& statement);

    [[nodiscard]] bool inTransaction() const noexcept;
    /// Whether a transaction is meant to be open from now on: SQLite takes it back by itself after some errors.
    void expectTransaction(bool expected);
    /// The transaction is lost by the error.
    void loseTransaction(const automation::Error& error);
    /// The error that an expected transaction was lost by; nothing while it is there.
    [[nodiscard]] const std::optional<std::string>& lostBy() const noexcept { return lostBy_; }
    [[nodiscard]] std::int64_t lastInsertedKey() const noexcept;
    [[nodiscard]] std::int64_t changedRows() const noexcept;

    /// An error that says the sentence in the connection's language.
    [[nodiscard]] automation::Error error(std::int32_t number, const automation::Sentence& sentence,
                                          std::initializer_list<std::string_view> names = {}) const;
    /// What the user calls a column; its own name when he does not know it.
    [[nodiscard]] std::string_view nameOf(std::string_view column) const;
    [[noreturn]] void fail(int code) const;
    void check(int code) const;
    [[nodiscard]] sqlite3* handle() const noexcept { return handle_.get(); }
    [[nodiscard]] LockWait& lockWait() const noexcept { return *lockWait_; }

  private:
    struct Closer {
        void operator()(sqlite3* handle) const noexcept;
    };
    void open();
    struct Work {
        std::int64_t most = 0, done = 0;
        std::function<bool()> interrupted;
    };
    using Statements = std::list<std::pair<std::string, Statement>>;

    std::string path_;
    automation::Language language_;
    std::unique_ptr<Work> work_;  // SQLite holds its address
    std::unique_ptr<LockWait> lockWait_;
    std::unique_ptr<JetMount> jet_;
    std::unique_ptr<sqlite3, Closer> handle_;
    std::unique_ptr<RowWatch> watch_;
    std::unique_ptr<Collection*> collecting_;  // where hx_keys appends to
    Statements statements_;                    // the last used one first
    std::unordered_map<std::string_view, Statements::iterator> bySql_;
    bool expectsTransaction_ = false;
    mutable std::optional<std::string> lostBy_;
};

/// Ends the use of a statement.
class ResetGuard {
  public:
    explicit ResetGuard(Statement& statement) : statement_(statement) {}
    ~ResetGuard() { statement_.reset(); }
    ResetGuard(const ResetGuard&) = delete;
    ResetGuard& operator=(const ResetGuard&) = delete;

  private:
    Statement& statement_;
};

}  // namespace hx::sqlite
