// SPDX-License-Identifier: MIT
#include "support/memory_provider.h"

#include "ado/connection_string.h"
#include "support/memory_rowset.h"

namespace hx::support {

using automation::Error;

namespace {

class MemorySession : public ado::Session {
  public:
    MemorySession(MemoryDatabase& stored, bool readOnly) : stored_(stored), readOnly_(readOnly) {}
    ~MemorySession() override { MemorySession::rollback(); }

    std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override {
        if (type != ado::adCmdText) {
            MemoryCommand whole;
            whole.table = command;
            return std::make_unique<MemoryRowset>(database(), whole, &watcher_);
        }
        const MemoryCommand parsed = MemoryCommand::parse(command);
        auto rowset = std::make_unique<MemoryRowset>(database(), parsed, &watcher_);
        if (!parsed.deletes) return rowset;
        const ado::RowKeys doomed = rowset->keys(nullptr);
        for (std::size_t i = 0; i < doomed.size(); ++i) rowset->remove(doomed[i]);
        return nullptr;
    }
    [[nodiscard]] bool watch(ado::RowWatcher* watcher) override {
        watcher_ = watcher;
        return true;
    }
    void beginTransaction() override { kept_ = stored_; }
    void commit() override { kept_.reset(); }
    void rollback() override {
        if (kept_ && !readOnly_) stored_ = std::move(*kept_);
        kept_.reset();
    }

  private:
    MemoryDatabase& database() { return readOnly_ && kept_ ? *kept_ : stored_; }

    MemoryDatabase& stored_;
    bool readOnly_;
    ado::RowWatcher* watcher_ = nullptr;
    std::optional<MemoryDatabase>
        kept_;  // as of the transaction's beginning: what is read, or what a rollback restores
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
    const bool readOnly = ado::connectionStringValue(connectionString, "Mode") == "Read";
    return std::make_unique<MemorySession>(*found->second, readOnly);
}

}  // namespace hx::support
