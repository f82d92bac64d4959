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
    /// Opens the file and makes sure that it is a project; throws dbErrUnspecified.
    Session(const std::string& path, bool readOnly, const OpenOptions& options);

    [[nodiscard]] std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override;
    void beginTransaction() override { writes_->begin(); }
    void commit() override { writes_->commit(); }
    void rollback() override { writes_->rollback(); }

  private:
    void compareNamesBeyondAscii();
    [[nodiscard]] const TableInfo* findTable(std::string_view name);
    /// Null when there is no such table, or one whose rows have no keys.
    [[nodiscard]] std::unique_ptr<ado::Rowset> openTable(const TableSelect& select);

    std::shared_ptr<Writes> writes_;
    std::map<std::string, std::optional<TableInfo>, std::less<>> tables_;  // as of schemaVersion_
    std::int64_t schemaVersion_ = -1;
};

}  // namespace hx::sqlite
