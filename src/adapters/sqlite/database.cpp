// SPDX-License-Identifier: MIT
#include "adapters/sqlite/database.h"

#include <filesystem>
#include <sqlite3.h>

#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/project_schema.h"
#include "adapters/sqlite/sqlite_error.h"
#include "automation/restore.h"
#include "hosting/file_bytes.h"

namespace hx::sqlite {

namespace {

constexpr int interruptSteps = 10000;  // of SQLite's machine between two questions
constexpr int mostTextLength = 64 << 20;
constexpr std::size_t keptStatements = 48;
// For one row, or all that a statement without rows does: a hundred times what the largest projects ask for.
constexpr std::int64_t usualWork = 10'000'000'000;

// A connection serves one thread, so it needs no mutex. SQLITE_OPEN_CREATE is left out on purpose.
constexpr int openFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;

// EXTRA also makes the deletion of the journal durable: after a power failure a finished write is never undone.
constexpr const char* settings =
    "PRAGMA synchronous=EXTRA;"
    "PRAGMA foreign_keys=OFF;"
    "PRAGMA temp_store=MEMORY;"
    "PRAGMA mmap_size=0;"
    "PRAGMA cell_size_check=ON;";

// Reading needs little. A transaction that changes many rows goes to all indexes at random: with few pages in memory it
// reads and writes each of them many times.
constexpr const char* smallCache = "PRAGMA cache_size=-2000";
constexpr const char* largeCache = "PRAGMA cache_size=-32000";

}  // namespace

std::string libraryVersion() { return std::string("SQLite ") + sqlite3_libversion(); }

void Database::Closer::operator()(sqlite3* handle) const noexcept { sqlite3_close_v2(handle); }

Database::Database(const std::string& path, const OpenOptions& options)
    : path_(path),
      language_(options.language),
      work_(std::make_unique<Work>()),
      lockWait_(std::make_unique<LockWait>(options.lockWait, options.sleep)),
      collecting_(std::make_unique<Collection*>(nullptr)) {
    open();
    sqlite3* const handle = this->handle();
    lockWait_->serve(handle);
    check(sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr));
    check(sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr));
    check(sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr));
    check(sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr));  // temporary ones, our own, still run
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, mostTextLength);
    sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
    check(registerFunctions(handle, collecting_.get()));
    limitWork(usualWork);
    execute(settings);
    useLargeCache(false);
    if (options.keepsChangesInMemory) execute("PRAGMA cache_spill=OFF");
    if (beginsLikeJet(path)) jet_ = std::make_unique<JetMount>(handle, path, *lockWait_, language_, options.readOnly);
}

// What decides how a project is opened is how it begins. SQLite's connection to a Jet project is one to nothing.
void Database::open() {
    sqlite3* handle = nullptr;
    // An absolute name is never taken for a URI or for a database in memory.
    const std::string name =
        beginsLikeJet(path_) ? ":memory:" : std::filesystem::absolute(hosting::fileSystemPath(path_)).string();
    const int code = sqlite3_open_v2(name.c_str(), &handle, openFlags, nullptr);
    handle_.reset(handle);
    check(code);
}

Database::~Database() = default;

Statement& Database::prepared(const std::string& sql) {
    if (const auto found = bySql_.find(sql); found != bySql_.end()) {
        statements_.splice(statements_.begin(), statements_, found->second);
        return found->second->second;
    }
    Statement statement(*this, sql);
    if (statements_.size() >= keptStatements) {
        bySql_.erase(statements_.back().first);
        statements_.pop_back();
    }
    statements_.emplace_front(sql, std::move(statement));
    bySql_.emplace(statements_.front().first, statements_.begin());
    return statements_.front().second;
}

void Database::execute(const std::string& sql) {
    lockWait_->begin(false);
    beginWork();
    if (jet_) jet_->before(sql);
    check(sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr));
}

std::int64_t Database::number(const std::string& sql) {
    Statement& statement = prepared(sql);
    const ResetGuard guard(statement);
    return statement.step() ? statement.key(0) : 0;
}

void Database::interruptWhen(std::function<bool()> asked) { work_->interrupted = std::move(asked); }

void Database::watch(ado::RowWatcher* watcher) {
    watch_.reset();
    if (jet_) return jet_->project().watch(watcher);
    if (watcher != nullptr) watch_ = std::make_unique<RowWatch>(handle(), *watcher);
}

void Database::statementEnds(bool done) const noexcept {
    if (jet_) return jet_->tellEnd(done);
    if (!watch_) return;
    if (done) watch_->watcher().kept();
    else watch_->watcher().dropped();
}

void Database::limitWork(std::int64_t steps) {
    work_->most = steps;
    const auto ask = [](void* kept) {
        Work& work = *static_cast<Work*>(kept);
        work.done += interruptSteps;
        return work.done > work.most || (work.interrupted && work.interrupted()) ? 1 : 0;
    };
    sqlite3_progress_handler(handle(), interruptSteps, ask, work_.get());
}

// A cache that keeps its size costs time or memory, nothing else.
void Database::useLargeCache(bool large) noexcept {
    (void)sqlite3_exec(handle(), large ? largeCache : smallCache, nullptr, nullptr, nullptr);
}

void Database::copyTo(const std::string& path) {
    if (jet_) return jet_->copyTo(path);
    sqlite3* opened = nullptr;
    const std::string absolute = std::filesystem::absolute(hosting::fileSystemPath(path)).string();
    int code = sqlite3_open_v2(absolute.c_str(), &opened, openFlags, nullptr);
    const std::unique_ptr<sqlite3, Closer> copy(opened);
    if (code == SQLITE_OK)
        code = sqlite3_exec(opened, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;", nullptr, nullptr, nullptr);
    lockWait_->begin(false);
    beginWork();
    if (sqlite3_backup* backup = code == SQLITE_OK ? sqlite3_backup_init(opened, "main", handle(), "main") : nullptr) {
        (void)sqlite3_backup_step(backup, -1);
        code = sqlite3_backup_finish(backup);
    } else if (code == SQLITE_OK) {
        code = sqlite3_errcode(opened);
    }
    if (code == SQLITE_OK) return;
    const bool ours = code == SQLITE_BUSY || code == SQLITE_LOCKED || isDamage(code);
    throw errorOf(code, sqlite3_errstr(code), ours ? path_ : path, language_);
}

Collection Database::collect(Statement& statement) {
    Collection collection;
    const automation::Restore collecting(*collecting_, &collection);
    statement.step();
    return collection;
}

bool Database::inTransaction() const noexcept { return sqlite3_get_autocommit(handle()) == 0; }

void Database::expectTransaction(bool expected) {
    expectsTransaction_ = expected;
    lostBy_.reset();
}

void Database::loseTransaction(const automation::Error& error) {
    execute("ROLLBACK");
    if (expectsTransaction_ && !lostBy_) lostBy_ = error.description(language_);
}

std::int64_t Database::lastInsertedKey() const noexcept { return sqlite3_last_insert_rowid(handle()); }
std::int64_t Database::changedRows() const noexcept { return sqlite3_changes64(handle()); }

void Database::check(int code) const {
    if (code != SQLITE_OK) fail(code);
}

automation::Error Database::error(std::int32_t number, const automation::Sentence& sentence,
                                  std::initializer_list<std::string_view> names) const {
    return {number, automation::say(language_, sentence, names)};
}

std::string_view Database::nameOf(std::string_view column) const { return columnName(language_, column); }

void Database::fail(int code) const {
    const std::exception_ptr failure = jet_ ? jet_->takeFailure() : nullptr;
    const auto error =
        failure ? jet_->explained(failure)
                : errorOf(code, handle() == nullptr ? std::string_view() : sqlite3_errmsg(handle()), path_, language_);
    if (expectsTransaction_ && !inTransaction() && !lostBy_) lostBy_ = error.description();
    if (isDamage(code) || (failure && jet_->isDamage(failure))) throw DamagedFile(error);
    throw error;
}

}  // namespace hx::sqlite
