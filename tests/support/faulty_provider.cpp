// SPDX-License-Identifier: MIT
#include "support/faulty_provider.h"

#include <utility>

namespace hx::support {

using ado::Key;
using Kind = FaultPlan::Kind;

void FaultPlan::arm(int nth, Kind kind, automation::Error error) {
    nth_ = nth;
    count_ = 0;
    fired_ = false;
    lasting_ = false;
    kind_ = kind;
    error_ = std::move(error);
}

void FaultPlan::armFrom(int nth, Kind kind, automation::Error error) {
    arm(nth, kind, std::move(error));
    lasting_ = true;
}

void FaultPlan::pass(Kind kind) {
    if (kind_ != Kind::any && kind_ != kind) return;
    ++count_;
    if (lasting_ ? nth_ == 0 || count_ < nth_ : count_ != nth_) return;
    fired_ = true;
    if (instead) return instead();
    throw automation::Error(error_);
}

namespace {

class FaultyRowset : public ado::Rowset {
  public:
    FaultyRowset(std::unique_ptr<ado::Rowset> inner, FaultPlan& plan) : inner_(std::move(inner)), plan_(plan) {}

    [[nodiscard]] const std::vector<ado::Column>& columns() const override { return inner_->columns(); }
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion) override {
        plan_.pass(Kind::keys);
        return inner_->keys(criterion);
    }
    void read(std::span<const Key> keys, ado::ColumnMask mask, ado::RowSink& sink) override {
        plan_.pass(Kind::read);
        inner_->read(keys, mask, sink);
    }
    Key insert(std::span<const ado::ColumnValue> values) override {
        plan_.pass(Kind::insert);
        return inner_->insert(values);
    }
    void update(Key key, std::span<const ado::ColumnValue> values, std::span<const ado::ColumnValue> read) override {
        plan_.pass(Kind::update);
        inner_->update(key, values, read);
    }
    void remove(Key key) override {
        plan_.pass(Kind::remove);
        inner_->remove(key);
    }
    [[nodiscard]] Key lastKey() override { return inner_->lastKey(); }

  private:
    std::unique_ptr<ado::Rowset> inner_;
    FaultPlan& plan_;
};

class FaultySession : public ado::Session {
  public:
    FaultySession(std::unique_ptr<ado::Session> inner, FaultPlan& plan) : inner_(std::move(inner)), plan_(plan) {}

    std::unique_ptr<ado::Rowset> open(std::string_view command, ado::CommandType type) override {
        plan_.pass(Kind::open);
        auto rowset = inner_->open(command, type);
        if (!rowset) return nullptr;
        return std::make_unique<FaultyRowset>(std::move(rowset), plan_);
    }
    [[nodiscard]] std::optional<std::int64_t> othersChanges() override { return inner_->othersChanges(); }
    [[nodiscard]] bool watch(ado::RowWatcher* watcher) override { return inner_->watch(watcher); }
    void beginTransaction() override {
        plan_.pass(Kind::begin);
        inner_->beginTransaction();
    }
    void commit() override {
        plan_.pass(Kind::commit);
        inner_->commit();
    }
    void rollback() override {
        plan_.pass(Kind::rollback);
        inner_->rollback();
    }

  private:
    std::unique_ptr<ado::Session> inner_;
    FaultPlan& plan_;
};

}  // namespace

std::unique_ptr<ado::Session> FaultyProvider::connect(std::string_view connectionString) {
    plan_.pass(Kind::connect);
    return std::make_unique<FaultySession>(inner_.connect(connectionString), plan_);
}

}  // namespace hx::support
