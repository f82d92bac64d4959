// SPDX-License-Identifier: MIT
#include "store.h"

#include <chrono>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "automation/convert.h"
#include "history/recording_provider.h"
#include "support/faulty_provider.h"
#include "support/jet_judge.h"
#include "support/memory_provider.h"
#include "support/temporary_folder.h"

namespace hx::contract {

namespace {

constexpr const char* memoryPath = "plant.hxs";

class MemoryStore : public Store {
  public:
    MemoryStore() { provider_.add(memoryPath); }
    ado::Provider& provider() override { return provider_; }
    std::string path() const override { return memoryPath; }

  private:
    support::MemoryProvider provider_;
};

/// A project file in a folder of its own.
template <sqlite::ProjectFormat format>
class FileStore : public Store {
  public:
    FileStore() { sqlite::createProject(path(), format); }
    ado::Provider& provider() override { return provider_; }
    std::string path() const override { return folder_.file("plant.hxs"); }
    bool knowsCaseOfAllLetters() const override { return !isJet(); }
    bool isJet() const override { return format == sqlite::ProjectFormat::jet; }

  private:
    // One connection after the other: whoever waits would wait for ever.
    static sqlite::OpenOptions withoutWaiting() {
        sqlite::OpenOptions options;
        options.lockWait = std::chrono::milliseconds(0);
        return options;
    }

    support::TemporaryFolder folder_;
    sqlite::Provider provider_{withoutWaiting};
};

using SqliteStore = FileStore<sqlite::ProjectFormat::sqlite>;
using JetStore = FileStore<sqlite::ProjectFormat::jet>;

/// A store whose faults never fire: passing everything on must change nothing.
template <class Inner>
class WrappedStore : public Store {
  public:
    ado::Provider& provider() override { return provider_; }
    std::string path() const override { return inner_.path(); }
    bool knowsCaseOfAllLetters() const override { return inner_.knowsCaseOfAllLetters(); }
    bool isJet() const override { return inner_.isJet(); }

  private:
    Inner inner_;
    support::FaultPlan plan_;
    support::FaultyProvider provider_{inner_.provider(), plan_};
};

/// A store whose changes are recorded: passing everything on must change nothing.
template <class Inner>
class RecordedStore : public Store {
  public:
    ado::Provider& provider() override { return provider_; }
    std::string path() const override { return inner_.path(); }
    bool knowsCaseOfAllLetters() const override { return inner_.knowsCaseOfAllLetters(); }
    bool isJet() const override { return inner_.isJet(); }

  private:
    Inner inner_;
    support::TemporaryFolder cache_;
    std::shared_ptr<history::History> history_ =
        std::make_shared<history::History>(inner_.provider(), inner_.path(), cache_.path());
    history::RecordingProvider provider_{inner_.provider(), [this](const std::string&) { return history_; }};
};

}  // namespace

const std::vector<StoreKind>& storeKinds() {
    static const std::vector<StoreKind> kinds = {
        {"Memory", [] { return std::make_unique<MemoryStore>(); }},
        {"Sqlite", [] { return std::make_unique<SqliteStore>(); }},
        {"Jet", [] { return std::make_unique<JetStore>(); }},
        {"RecordedJet", [] { return std::make_unique<RecordedStore<JetStore>>(); }},
        {"FaultySqlite", [] { return std::make_unique<WrappedStore<SqliteStore>>(); }},
        {"RecordedMemory", [] { return std::make_unique<RecordedStore<MemoryStore>>(); }},
        {"RecordedSqlite", [] { return std::make_unique<RecordedStore<SqliteStore>>(); }},
        {"FaultyMemory", [] { return std::make_unique<WrappedStore<MemoryStore>>(); }},
    };
    return kinds;
}

void ProviderContract::TearDown() {
    connection_.reset();
    if (store_->isJet()) {
        EXPECT_EQ(support::differenceFromMdbExport(store_->provider(), store_->path()), "");
    }
}

std::string ProviderContract::connectionString() const {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + store_->path() + ";Mode=Read|Write|Share Deny None;";
}

std::shared_ptr<ado::Connection> ProviderContract::connect() const {
    auto connection = std::make_shared<ado::Connection>(store_->provider());
    connection->open(connectionString(), "", "", -1);
    return connection;
}

std::shared_ptr<Recordset> ProviderContract::open(const std::string& source) const {
    auto recordset = std::make_shared<Recordset>();
    recordset->open(source, connection_);
    return recordset;
}

void ProviderContract::addRecipes(const std::vector<std::string>& names) const {
    const auto recordset = recipes();
    for (const std::string& name : names) recordset->addNew(Values{{"Name", name}});
}

void ProviderContract::addVariables(std::int32_t recipe, std::int32_t count) const {
    connection_->beginTrans();
    const auto recordset = members();
    for (std::int32_t i = 1; i <= count; ++i) {
        recordset->addNew(Values{{"VarRecipe", "V" + std::to_string(i)}, {"ParentID", recipe}, {"ChildID", 0}});
    }
    connection_->commitTrans();
}

std::string ProviderContract::stored(const std::string& source, const std::string& name) const {
    Recordset recordset;
    recordset.open(source, connect());
    return column(recordset, name);
}

std::string column(Recordset& recordset, const std::string& name) {
    std::string text;
    if (recordset.recordCount() > 0) recordset.moveFirst();
    for (bool first = true; !recordset.eof(); recordset.moveNext()) {
        if (!first) text += ",";
        first = false;
        text += automation::toText(recordset.field(name).value());
    }
    return text;
}

}  // namespace hx::contract
