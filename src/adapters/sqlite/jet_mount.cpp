// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_mount.h"

#include <fstream>
#include <sqlite3.h>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "adapters/sqlite/jet_module.h"
#include "adapters/sqlite/jet_project.h"
#include "adapters/sqlite/sentences.h"
#include "adapters/sqlite/sqlite_error.h"
#include "adapters/sqlite/table_info.h"
#include "automation/text.h"
#include "hosting/file_bytes.h"

namespace hx::sqlite {

using automation::Error;

namespace {

bool isMountable(const jet::Table& table) { return !table.definition().columns.empty(); }

}  // namespace

JetMount::JetMount(sqlite3* connection, const std::string& path, LockWait& wait, automation::Language language,
                   bool readOnly)
    : path_(path), language_(language), storage_(path, wait, language) {
    try {
        project_ = std::make_unique<jet::Database>(storage_, readOnly);
        mountTables(connection);
    } catch (const jet::Damaged&) {
        throw DamagedFile(explained(std::current_exception()));
    }
}

JetMount::~JetMount() = default;

void JetMount::mountTables(sqlite3* connection) {
    if (JetModule::install(connection, *this) != SQLITE_OK) throw std::bad_alloc();
    const jet::Reading reading(project_->pages());
    std::vector<std::string> names = project_->tableNames();
    if (isMissing(variableTable)) names.emplace_back(variableTable);
    for (const std::string& name : names) {
        if (!isMissing(name) && !isMountable(*project_->table(name))) continue;
        const std::string sql = "CREATE VIRTUAL TABLE IF NOT EXISTS " + quotedName(name) + " USING " + JetModule::name;
        const int code = sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr);
        if (const auto failure = takeFailure()) std::rethrow_exception(failure);
        if (code != SQLITE_OK) throw errorOf(code, sqlite3_errmsg(connection), path_, language_);
    }
}

jet::Table& JetMount::table(std::string_view name) {
    if (jet::Table* const table = project_->table(name)) return *table;
    throw Error(ado::dbErrNoTable, sentence::noTable, {name});
}

bool JetMount::isMissing(std::string_view name) {
    return automation::equalIgnoreCase(name, variableTable) && project_->table(name) == nullptr;
}

void JetMount::makeMissing() { jet::addTable(*project_, variableTablePlan()); }

ado::Key JetMount::lastCounter(std::string_view name) {
    const jet::Reading reading(project_->pages());
    return isMissing(name) ? 0 : table(name).lastCounter();
}

std::optional<Error> JetMount::unavailable(std::string_view name) {
    const jet::Reading reading(project_->pages());
    const jet::Catalog::Entry* const entry = project_->catalog().find(name);
    if (entry == nullptr) return std::nullopt;
    if (entry->kind == jet::Catalog::Kind::linked) {
        return Error(ado::dbErrNoTable, jet::sentence::isLinked, {entry->name, entry->where});
    }
    if (entry->kind == jet::Catalog::Kind::query)
        return Error(ado::dbErrNoTable, jet::sentence::isQuery, {entry->name});
    return std::nullopt;
}

void JetMount::before(std::string_view command) {
    jet::Pages& pages = project_->pages();
    if (command == "BEGIN IMMEDIATE") {
        pages.beginWrite();
    } else if (command == "BEGIN") {
        reading_ = std::make_unique<jet::Reading>(pages);
    } else if (command == "COMMIT") {
        if (pages.isWriting()) pages.commit();
        reading_.reset();
    } else if (command == "ROLLBACK") {
        pages.rollback();
        reading_.reset();
    }
}

Error JetMount::explained(const std::exception_ptr& failure) const {
    try {
        std::rethrow_exception(failure);
    } catch (const jet::Damaged& damage) {
        return {ado::dbErrUnspecified,
                automation::say(language_, sentence::damagedSo, {path_, damage.description(language_)})};
    } catch (const jet::Refused& refused) {
        return errorOf(SQLITE_CONSTRAINT, refused.description(), path_, language_);
    } catch (const Error& error) {
        return error;
    } catch (const std::exception&) {
        return automation::caughtError();
    }
}

bool JetMount::isDamage(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const jet::Damaged&) {
        return true;
    } catch (...) {
        return false;
    }
}

std::vector<std::string> JetMount::damages(int most) {
    std::vector<std::string> texts;
    for (const Error& damage : project_->damages(most)) texts.push_back(damage.description(language_));
    return texts;
}

void JetMount::requireUndamaged(std::int64_t checkedWhole) {
    const jet::Reading reading(project_->pages());
    const auto refuse = [this](const Error& damage) {
        throw Error(ado::dbErrUnspecified,
                    automation::say(language_, sentence::damagedSo, {path_, damage.description(language_)}));
    };
    if (std::int64_t{project_->pages().count()} * jet::pageSize > checkedWhole) return;
    for (const Error& damage : project_->damages(1)) refuse(damage);
}

void JetMount::copyTo(const std::string& path) {
    jet::Pages& pages = project_->pages();
    const jet::Reading reading(pages);
    std::ofstream copy(hosting::fileSystemPath(path), std::ios::binary | std::ios::trunc);
    for (std::uint32_t page = 0; page < pages.count(); ++page) {
        copy.write(reinterpret_cast<const char*>(pages.read(page).data()), jet::pageSize);
    }
    copy.close();
    if (copy.fail()) throw errorOf(SQLITE_IOERR, {}, path, language_);
}

void JetMount::tellEnd(bool done) noexcept {
    ado::RowWatcher* const watcher = project_->watcher();
    if (watcher == nullptr) return;
    if (done) watcher->kept();
    else watcher->dropped();
}

}  // namespace hx::sqlite
