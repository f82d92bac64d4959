// SPDX-License-Identifier: MIT
#include "history/change_log.h"

#include <gtest/gtest.h>
#include <limits>

#include "support/error_of.h"

namespace hx::history {
namespace {

using ado::StoredValue;
using Kind = StoredValue::Kind;
using Row = std::vector<StoredValue>;

StoredValue textValue(std::string_view text) { return {Kind::text, 0, 0, text}; }
StoredValue real(double number) { return {Kind::real, 0, number, {}}; }

bool same(std::span<const StoredValue> a, std::span<const StoredValue> b) {
    return std::ranges::equal(a, b, [](const StoredValue& x, const StoredValue& y) { return x.isSameAs(y); });
}

const Row hostile = {StoredValue::of(std::numeric_limits<std::int64_t>::min()),
                     StoredValue::of(std::numeric_limits<std::int64_t>::max()),
                     StoredValue::of(-1),
                     real(0.1),
                     real(-std::numeric_limits<double>::infinity()),
                     real(std::numeric_limits<double>::quiet_NaN()),
                     StoredValue(),
                     textValue(""),
                     textValue(std::string_view("a\0b\xFF„ü", 9)),
                     StoredValue{Kind::bytes, 0, 0, std::string_view("\0\x01", 2)}};

TEST(ChangeLog, GivesBackWhatWasPutInToIt) {
    ChangeLog log;
    log.add({"T", 7, {}, hostile});
    log.add({"Umläut", -3, hostile, {}});
    log.add({"T", std::numeric_limits<std::int64_t>::max(), hostile, Row{StoredValue::of(1)}});
    ChangeReader reader(log);
    const ado::RowChange* change = reader.next();
    ASSERT_NE(change, nullptr);
    EXPECT_EQ(change->table, "T");
    EXPECT_EQ(change->key, 7);
    EXPECT_TRUE(change->before.empty());
    EXPECT_TRUE(same(change->after, hostile));
    const std::size_t second = reader.place();
    change = reader.next();
    EXPECT_EQ(change->table, "Umläut");
    EXPECT_EQ(change->key, -3);
    EXPECT_TRUE(same(change->before, hostile));
    EXPECT_TRUE(change->after.empty());
    change = reader.next();
    EXPECT_EQ(change->table, "T");
    EXPECT_EQ(change->after.size(), 1U);
    EXPECT_EQ(reader.next(), nullptr);
    EXPECT_EQ(reader.at(second).key, -3);
    EXPECT_EQ(ChangeReader(log).at(second).key, -3);
}

TEST(ChangeLog, ForgetsWhatCameAfterAMark) {
    ChangeLog log;
    log.add({"A", 1, {}, hostile});
    const auto mark = log.end();
    const std::string before = log.bytes();
    log.add({"B", 2, {}, hostile});
    log.cut(mark);
    EXPECT_EQ(log.bytes(), before);
    log.add({"B", 3, {}, hostile});
    ChangeReader reader(log);
    EXPECT_EQ(reader.next()->table, "A");
    EXPECT_EQ(reader.next()->table, "B");
}

TEST(ChangeLog, TakesAnotherOneIn) {
    ChangeLog first, second;
    first.add({"A", 1, {}, hostile});
    second.add({"B", 2, hostile, {}});
    second.add({"A", 3, hostile, {}});
    first.add(second);
    ChangeReader reader(first);
    std::string read;
    while (const auto* change = reader.next()) read += std::string(change->table) + std::to_string(change->key) + " ";
    EXPECT_EQ(read, "A1 B2 A3 ");
}

TEST(ChangeLog, DamagedBytesAreRefusedWhereverTheyAreCut) {
    ChangeLog log;
    log.add({"Table", 7, hostile, hostile});
    const std::string bytes = log.bytes();
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        const ChangeLog cut(bytes.substr(0, size));
        ChangeReader reader(cut);
        const auto error = support::errorOf([&] {
            while (reader.next() != nullptr) continue;
        });
        if (size == 7) continue;  // the name of the table alone
        EXPECT_EQ(error.number(), automation::errFail) << size;
    }
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        std::string changed = bytes;
        changed[at] = static_cast<char>(0xFF);
        const ChangeLog damaged(changed);
        ChangeReader reader(damaged);
        (void)support::errorOf([&] {  // an error or other changes, but an end
            while (reader.next() != nullptr) continue;
        });
    }
}

}  // namespace
}  // namespace hx::history
