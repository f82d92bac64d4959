// SPDX-License-Identifier: MIT

// Whatever the disk does: a transaction is stored whole or not at all, and what was reported as stored is.
#include <filesystem>
#include <gtest/gtest.h>

#include "samples.h"
#include "sqlite/fault_disk.h"
#include "support/error_of.h"

namespace hx::jet {

namespace {

using Fault = sqlite::FaultDisk::Fault;
using Texts = std::vector<std::string>;

ado::StoredValue text(const std::string& text) { return {ado::StoredValue::Kind::text, 0, 0, text}; }

// Replaces all settings by others, some of which do not go into the pages that there are.
void replaceSettings(Database& database) {
    database.pages().beginWrite();
    Table& table = *database.table("HostSettings");
    std::vector<Place> places;
    {
        Table::Scan scan(table);
        for (Table::Found found; scan.next(found);) places.push_back(found.place);
    }
    for (const Place place : places) (void)table.remove(place);
    for (int i = 0; i < 80; ++i) {
        const std::string key = "key " + std::to_string(i), value(200, 'v');
        const std::optional<ado::StoredValue> row[] = {text(key), text(value)};
        (void)table.insert(row);
    }
    database.pages().commit();
}

Texts settingsIn(const std::string& path) {
    Opened opened(path);
    EXPECT_EQ(damagesOf(*opened), Texts());
    return textsOf(*opened, "HostSettings", "Key");
}

class DurabilityOf : public testing::TestWithParam<Fault> {};

TEST_P(DurabilityOf, ATransaction) {
    const Sample sample("brauerei.hxs");
    const Texts before = settingsIn(sample.path());
    { replaceSettings(*Opened(sample.path())); }
    const Texts after = settingsIn(sample.path());
    ASSERT_NE(before, after);
    int faults = 0;
    for (int nth = 1;; ++nth) {
        sample.reset();
        bool fired = false, reported = false;
        {
            const sqlite::FaultDisk disk(GetParam(), nth);
            reported = support::errorOf([&] { replaceSettings(*Opened(sample.path())); }).number() != 0;
            fired = disk.fired();
        }
        const Texts found = settingsIn(sample.path());
        EXPECT_TRUE(found == before || found == after) << nth;
        EXPECT_TRUE(reported || found == after) << "lost after operation " << nth;
        std::error_code none;  // there may be one to which nothing was written
        const auto left = std::filesystem::file_size(sample.path() + "-journal", none);
        EXPECT_TRUE(none || left == 0) << nth;
        if (!fired) break;
        ++faults;
    }
    EXPECT_GE(faults, 10);
}

INSTANTIATE_TEST_SUITE_P(Disk, DurabilityOf, testing::Values(Fault::full, Fault::broken, Fault::powerCut),
                         testing::PrintToStringParamName());

}  // namespace

}  // namespace hx::jet
