// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "adapters/sqlite/jet_sql.h"
#include "adapters/sqlite/writes.h"

namespace hx::sqlite {

/// An open project file.
class Session : public ado::Session {
  public:
    /// Opens the file and makes sure that it is a project; throws dbErrUnspecified, also when there is no such file or
    /// it cannot be one (a folder, a pipe).
    explicit Session(const std::string& path, bool readOnly = false, const OpenOptions& options = {});

    [[nodiscard]] std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override;
    [[nodiscard]] std::optional<std::int64_t> othersChanges() override;
    void beginTransaction() override { writes_->begin(readOnly_); }
    void commit() override { writes_->commit(); }
    void rollback() override { writes_->rollback(); }
    [[nodiscard]] bool watch(ado::RowWatcher* watcher) override {
        writes_->database().watch(watcher);
        return true;
    }
    void requireUndamaged() override;
    [[nodiscard]] std::vector<std::string> damages(int most, Check check) override;

    [[nodiscard]] Database& database() { return writes_->database(); }

  private:
    void compareNamesBeyondAscii();
    [[nodiscard]] const TableInfo* findTable(std::string_view name);
    /// Null when there is no such table, or one whose rows have no keys.
    [[nodiscard]] std::unique_ptr<ado::Rowset> openTable(const TableSelect& select);

    std::shared_ptr<Writes> writes_;
    bool readOnly_;
    std::map<std::string, std::optional<TableInfo>, std::less<>> tables_;  // as of schemaVersion_
    std::int64_t schemaVersion_ = -1;
};

}  // namespace hx::sqlite
