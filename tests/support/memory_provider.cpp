#include "support/memory_provider.h"

#include "ado/connection_string.h"
#include "support/memory_rowset.h"

namespace hx::support {

using automation::Error;

namespace {

class MemorySession : public ado::Session {
  public:
    explicit MemorySession(MemoryDatabase& database) : database_(database) {}
    ~MemorySession() override {
        if (before_) database_ = std::move(*before_);
    }

    std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override {
        if (type != ado::adCmdText) {
            MemoryCommand whole;
            whole.table = command;
            return std::make_unique<MemoryRowset>(database_, whole);
        }
        const MemoryCommand parsed = MemoryCommand::parse(command);
        auto rowset = std::make_unique<MemoryRowset>(database_, parsed);
        if (!parsed.deletes) return rowset;
        const ado::RowKeys doomed = rowset->keys(nullptr);
        for (std::size_t i = 0; i < doomed.size(); ++i) rowset->remove(doomed[i]);
        return nullptr;
    }
    void beginTransaction() override { before_ = database_; }
    void commit() override { before_.reset(); }
    void rollback() override {
        if (before_) database_ = std::move(*before_);
        before_.reset();
    }

  private:
    MemoryDatabase& database_;
    std::optional<MemoryDatabase> before_;  // what a rollback restores
};

}  // namespace

MemoryDatabase& MemoryProvider::add(const std::string& path, MemoryDatabase database) {
    auto& slot = databases_[path];
    slot = std::make_unique<MemoryDatabase>(std::move(database));
    return *slot;
}

std::unique_ptr<ado::Session> MemoryProvider::connect(std::string_view connectionString) {
    const std::string path = ado::connectionStringValue(connectionString, "Data Source");
    const auto found = databases_.find(path);
    if (found == databases_.end()) throw Error(ado::dbErrUnspecified, "Could not find file '" + path + "'.");
    return std::make_unique<MemorySession>(*found->second);
}

}  // namespace hx::support
