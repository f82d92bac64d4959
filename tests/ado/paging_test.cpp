// SPDX-License-Identifier: MIT

// What a recordset asks of its provider: keys when first needed, pages of rows, the columns that are used.
#include <gtest/gtest.h>
#include <vector>

#include "ado/criterion.h"
#include "ado/recordset.h"

namespace hx::ado {

namespace {

using automation::Variant;

struct Read {
    std::size_t first;
    std::size_t count;
    ColumnMask mask;
    friend bool operator==(const Read&, const Read&) = default;
};

struct Log {
    int keysRead = 0;
    std::vector<Read> reads;
};

constexpr Key rowCount = 100000;
constexpr std::size_t columnCount = 8;

std::vector<Column> manyColumns() {
    std::vector<Column> columns = {{"ID", adInteger, 4, true, false}};
    for (std::size_t i = 1; i < columnCount; ++i) {
        columns.push_back({"C" + std::to_string(i), adVarWChar, 50, false, true});
    }
    return columns;
}

// Rows 1 to 100,000 that are made when they are asked for.
class CountedRowset : public Rowset {
  public:
    explicit CountedRowset(Log& log) : log_(log), columns_(manyColumns()) {}

    const std::vector<Column>& columns() const override { return columns_; }
    RowKeys keys(const Criterion* criterion) override {
        ++log_.keysRead;
        RowKeys keys;
        if (criterion != nullptr) {
            keys.append(static_cast<Key>(criterion->value.isString() ? 70001 : criterion->value.asDouble()));
            return keys;
        }
        for (Key key = 1; key <= rowCount; ++key) keys.append(key);
        return keys;
    }
    void read(std::span<const Key> keys, ColumnMask mask, RowSink& sink) override {
        log_.reads.push_back({static_cast<std::size_t>(keys.front() - 1), keys.size(), mask});
        for (std::size_t i = 0; i < keys.size(); ++i) {
            std::vector<Variant> row(columnCount);
            for (std::size_t c = 1; c < columnCount; ++c) {
                if ((mask & columnBit(c)) != 0) row[c] = std::to_string(keys[i]) + "/" + std::to_string(c);
            }
            sink.row(i, row);
        }
    }
    Key insert(std::span<const ColumnValue>) override { return ++lastKey_; }
    void update(Key, std::span<const ColumnValue>, std::span<const ColumnValue>) override {}
    void remove(Key) override {}

  private:
    Log& log_;
    std::vector<Column> columns_;
    Key lastKey_ = rowCount;
};

class CountedProvider : public Provider {
  public:
    explicit CountedProvider(Log& log) : log_(log) {}
    std::unique_ptr<Session> connect(std::string_view) override {
        class CountedSession : public Session {
          public:
            explicit CountedSession(Log& log) : log_(log) {}
            std::unique_ptr<Rowset> open(std::string_view, CommandType) override {
                return std::make_unique<CountedRowset>(log_);
            }
            void beginTransaction() override {}
            void commit() override {}
            void rollback() override {}

          private:
            Log& log_;
        };
        return std::make_unique<CountedSession>(log_);
    }

  private:
    Log& log_;
};

class Paging : public testing::Test {
  protected:
    Paging() {
        connection_->open("");
        recordset_->open("T", connection_);
    }

    Log log_;
    CountedProvider provider_{log_};
    std::shared_ptr<Connection> connection_ = std::make_shared<Connection>(provider_);
    std::shared_ptr<Recordset> recordset_ = std::make_shared<Recordset>();
};

TEST_F(Paging, OpeningReadsNothing) {
    EXPECT_EQ(log_.keysRead, 0);
    EXPECT_TRUE(log_.reads.empty());
}

TEST_F(Paging, AFilterSetAfterOpeningReadsOnlyItsOwnKeys) {
    recordset_->setFilter("ID = 7");
    EXPECT_EQ(recordset_->recordCount(), 1);
    EXPECT_EQ(recordset_->field("C1").value(), Variant("7/1"));
    EXPECT_EQ(log_.keysRead, 1);
    EXPECT_EQ(log_.reads, (std::vector<Read>{{6, 1, columnBit(1)}}));
}

TEST_F(Paging, CountingReadsKeysButNoRow) {
    EXPECT_EQ(recordset_->recordCount(), rowCount);
    EXPECT_EQ(recordset_->recordCount(), rowCount);
    EXPECT_EQ(log_.keysRead, 1);
    EXPECT_TRUE(log_.reads.empty());
}

TEST_F(Paging, AWalkReadsEachPageOnceWithTheColumnsThatAreUsed) {
    Field& one = recordset_->field("C1");
    Field& two = recordset_->field("C2");
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(one.value(), Variant(std::to_string(i + 1) + "/1"));
        EXPECT_EQ(two.value(), Variant(std::to_string(i + 1) + "/2"));
        recordset_->moveNext();
    }
    const ColumnMask both = columnBit(1) | columnBit(2);
    EXPECT_EQ(log_.reads,
              (std::vector<Read>{{0, 128, columnBit(1)}, {0, 128, both}, {128, 128, both}, {256, 128, both}}));
}

TEST_F(Paging, TheKeyColumnNeedsNoRow) {
    EXPECT_EQ(recordset_->field("ID").value(), Variant(1));
    EXPECT_TRUE(log_.reads.empty());
}

TEST_F(Paging, WhoeverUsesManyColumnsGetsAllAtOnce) {
    for (std::size_t column = 1; column < columnCount; ++column) {
        EXPECT_EQ(recordset_->valueAt(0, column), Variant("1/" + std::to_string(column)));
    }
    EXPECT_EQ(log_.reads.size(), 5U);  // with none to know that the row exists, then with 1, 2, 3 and all columns
    EXPECT_EQ(log_.reads.back().mask, ~ColumnMask{0});
}

TEST_F(Paging, ClonesShareKeysAndPages) {
    EXPECT_EQ(recordset_->field("C1").value(), Variant("1/1"));
    const auto copy = recordset_->clone();
    EXPECT_EQ(copy->field("C1").value(), Variant("1/1"));
    EXPECT_EQ(copy->recordCount(), rowCount);
    EXPECT_EQ(log_.keysRead, 1);
    EXPECT_EQ(log_.reads.size(), 1U);
}

TEST_F(Paging, FewPagesAreKept) {
    for (std::size_t page = 0; page < 9; ++page) (void)recordset_->valueAt(page * 128, 0);
    EXPECT_EQ(log_.reads.size(), 9U);
    (void)recordset_->valueAt(8 * 128, 0);
    (void)recordset_->valueAt(1 * 128, 0);
    EXPECT_EQ(log_.reads.size(), 9U);
    (void)recordset_->valueAt(0, 0);
    EXPECT_EQ(log_.reads.size(), 10U);
}

TEST_F(Paging, ASearchFarAheadAsksTheProvider) {
    recordset_->find("C1='70001/1'");
    EXPECT_EQ(recordset_->absolutePosition(), 70001);
    EXPECT_EQ(log_.keysRead, 2);
    EXPECT_EQ(log_.reads.size(), 4U);
}

TEST_F(Paging, ASearchForTheKeyReadsOnlyItsPage) {
    recordset_->find("ID=70001");
    EXPECT_EQ(recordset_->absolutePosition(), 70001);
    EXPECT_EQ(log_.keysRead, 1);
    EXPECT_EQ(log_.reads.size(), 1U);
}

TEST_F(Paging, StoringRowsReadsNothing) {
    const std::vector<std::pair<std::string, Variant>> values = {{"C1", "x"}};
    for (int i = 0; i < 10; ++i) recordset_->addNew(values);
    recordset_->addNew();
    recordset_->field("C1").setValue("y");
    recordset_->update();
    EXPECT_EQ(log_.keysRead, 0);
    EXPECT_TRUE(log_.reads.empty());
    EXPECT_EQ(recordset_->recordCount(), rowCount + 11);
    EXPECT_EQ(recordset_->field("ID").value(), Variant(static_cast<std::int32_t>(rowCount + 11)));
}

}  // namespace

}  // namespace hx::ado
