// SPDX-License-Identifier: MIT
#include "history/recording_provider.h"

#include <utility>

#include "ado/connection_string.h"
#include "automation/text.h"

namespace hx::history {

using ado::ColumnValue;
using ado::Key;

namespace {

/// Keeps what one session changes until its unit of work is done.
class Recorder : public ado::RowWatcher {
  public:
    void changed(const ado::RowChange& change) noexcept override {
        try {
            changes_.add(change);
        } catch (const std::exception&) {
            complete_ = false;
        }
    }
    void kept() noexcept override { kept_ = changes_.end(); }
    void dropped() noexcept override { changes_.cut(kept_); }
    void missed() noexcept override { complete_ = false; }

    void forget() noexcept {
        changes_.cut({});
        kept_ = {};
        complete_ = true;
    }
    [[nodiscard]] bool isComplete() const noexcept { return complete_; }
    [[nodiscard]] ChangeLog take() {
        changes_.cut(kept_);
        ChangeLog taken = std::exchange(changes_, ChangeLog());
        forget();
        return taken;
    }

  private:
    ChangeLog changes_;
    ChangeLog::Mark kept_;
    bool complete_ = true;
};

bool isQuery(std::string_view command, ado::CommandType type) {
    constexpr std::string_view select = "SELECT";
    return type != ado::adCmdText ||
           automation::equalIgnoreCase(automation::trim(command).substr(0, select.size()), select);
}

/// The session whose work is recorded; its rowsets share it.
class Recording {
  public:
    Recording(std::unique_ptr<ado::Session> inner, std::shared_ptr<History> history)
        : history_(std::move(history)), inner_(std::move(inner)) {
        isWatched_ = inner_->watch(&recorder_);
    }
    ~Recording() {
        if (isWatched_) (void)inner_->watch(nullptr);
    }
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    [[nodiscard]] ado::Session& inner() noexcept { return *inner_; }

    /// Carries a change out, which is a unit of work of its own outside of a transaction. Some of it may hold though it
    /// fails.
    template <class Action>
    auto change(const Action& action) {
        struct AtEnd {
            Recording& recording;
            ~AtEnd() {
                if (!recording.inTransaction_) recording.unitEnds();
            }
        };
        const AtEnd atEnd{*this};
        if (!inTransaction_) history_->willChange();
        return action();
    }
    void begin() {
        history_->willChange();
        inner_->beginTransaction();
        inTransaction_ = true;
    }
    void commit() {
        inner_->commit();
        inTransaction_ = false;
        unitEnds();
    }
    void rollback() {
        inTransaction_ = false;
        recorder_.forget();
        inner_->rollback();
    }

  private:
    // The change itself has been made: nothing that fails here may look as if it had not.
    void unitEnds() noexcept {
        try {
            const bool complete = recorder_.isComplete();
            ChangeLog changes = recorder_.take();
            if (complete) history_->record(std::move(changes), *inner_);
            else history_->forget();
        } catch (const std::exception&) {
            history_->forget();
        }
    }

    std::shared_ptr<History> history_;
    Recorder recorder_;
    std::unique_ptr<ado::Session> inner_;
    bool isWatched_ = false, inTransaction_ = false;
};

class RecordedRowset : public ado::Rowset {
  public:
    RecordedRowset(std::unique_ptr<ado::Rowset> inner, std::shared_ptr<Recording> recording)
        : recording_(std::move(recording)), inner_(std::move(inner)) {}

    [[nodiscard]] const std::vector<ado::Column>& columns() const override { return inner_->columns(); }
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion) override { return inner_->keys(criterion); }
    void read(std::span<const Key> keys, ado::ColumnMask mask, ado::RowSink& sink) override {
        inner_->read(keys, mask, sink);
    }
    void scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) override {
        inner_->scan(columns, receive);
    }
    void readStored(std::span<const Key> keys, const ado::StoredRowReceiver& receive) override {
        inner_->readStored(keys, receive);
    }
    Key insert(std::span<const ColumnValue> values) override {
        return recording_->change([&] { return inner_->insert(values); });
    }
    void insertAll(std::span<const std::size_t> columns, ado::RowSource& rows) override {
        recording_->change([&] { inner_->insertAll(columns, rows); });
    }
    void restore(std::span<const std::size_t> columns, const ado::StoredRowSource& rows) override {
        recording_->change([&] { inner_->restore(columns, rows); });
    }
    void rewrite(Key key, std::span<const std::size_t> columns, std::span<const ado::StoredValue> values) override {
        recording_->change([&] { inner_->rewrite(key, columns, values); });
    }
    [[nodiscard]] Key lastKey() override { return inner_->lastKey(); }
    void update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read) override {
        recording_->change([&] { inner_->update(key, values, read); });
    }
    void remove(Key key) override {
        recording_->change([&] { inner_->remove(key); });
    }

  private:
    std::shared_ptr<Recording> recording_;  // outlives the rowset
    std::unique_ptr<ado::Rowset> inner_;
};

class RecordedSession : public ado::Session {
  public:
    RecordedSession(std::unique_ptr<ado::Session> inner, std::shared_ptr<History> history)
        : recording_(std::make_shared<Recording>(std::move(inner), std::move(history))) {}

    [[nodiscard]] std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override {
        auto rowset = isQuery(command, type) ? inner().open(command, type)
                                             : recording_->change([&] { return inner().open(command, type); });
        if (!rowset) return nullptr;
        return std::make_unique<RecordedRowset>(std::move(rowset), recording_);
    }
    [[nodiscard]] std::optional<std::int64_t> othersChanges() override { return inner().othersChanges(); }
    void beginTransaction() override { recording_->begin(); }
    void commit() override { recording_->commit(); }
    void rollback() override { recording_->rollback(); }
    void requireUndamaged() override { inner().requireUndamaged(); }
    [[nodiscard]] std::vector<std::string> damages(int most, Check check) override {
        return inner().damages(most, check);
    }

  private:
    [[nodiscard]] ado::Session& inner() noexcept { return recording_->inner(); }

    std::shared_ptr<Recording> recording_;
};

}  // namespace

std::unique_ptr<ado::Session> RecordingProvider::connect(std::string_view connectionString) {
    auto session = provider_.connect(connectionString);
    std::shared_ptr<History> history = historyOf_(ado::connectionStringValue(connectionString, "Data Source"));
    if (history == nullptr || ado::connectionStringValue(connectionString, "Mode") == "Read") return session;
    return std::make_unique<RecordedSession>(std::move(session), std::move(history));
}

}  // namespace hx::history
