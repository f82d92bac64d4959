// SPDX-License-Identifier: MIT
#include "history/daily_copies.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "automation/error.h"
#include "history/recording_provider.h"
#include "support/temporary_folder.h"

namespace hx::history {
namespace {

using Names = std::vector<std::string>;

struct KeepingDailyCopies : testing::Test {
    KeepingDailyCopies() { sqlite::createProject(project); }

    Names copies() const {
        Names names;
        for (const auto& copy : DailyCopies(provider, project).copies()) names.push_back(copy.filename().string());
        return names;
    }
    std::int64_t recipesIn(const std::string& file) {
        return static_cast<std::int64_t>(provider.connect("Data Source=\"" + file + "\";Mode=Read;")
                                             ->open("TrcpRecipe", ado::adCmdTable)
                                             ->keys(nullptr)
                                             .size());
    }
    static void addRecipe(ado::Provider& to, const std::string& file, const std::string& name) {
        const auto rows = to.connect("Data Source=\"" + file + "\";")->open("TrcpRecipe", ado::adCmdTable);
        const ado::ColumnValue value{1, name};
        (void)rows->insert({&value, 1});
    }
    DailyCopies keeping(DailyCopies::Limits limits = {}) {
        return {provider, project, [this] { return today; }, limits};
    }

    support::TemporaryFolder folder;
    const std::string project = folder.file("line.hxs");
    mutable sqlite::Provider provider;
    std::string today = "2026-11-22";
};

TEST_F(KeepingDailyCopies, TheProjectIsCopiedAsItWasBeforeTheFirstChangeOfADay) {
    addRecipe(provider, project, "Cola");
    DailyCopies daily = keeping();
    daily.beforeChange();
    addRecipe(provider, project, "Limo");
    daily.beforeChange();
    EXPECT_EQ(copies(), (Names{"line.hxs.2026-11-22"}));
    EXPECT_EQ(recipesIn(project + ".2026-11-22"), 1);
    today = "2026-11-23";
    daily.beforeChange();
    EXPECT_EQ(copies(), (Names{"line.hxs.2026-11-22", "line.hxs.2026-11-23"}));
    EXPECT_EQ(recipesIn(project + ".2026-11-23"), 2);
}

TEST_F(KeepingDailyCopies, ACopyOfTheDayThatIsThereStays) {
    keeping().beforeChange();
    addRecipe(provider, project, "Cola");
    keeping().beforeChange();
    EXPECT_EQ(recipesIn(project + ".2026-11-22"), 0);
}

TEST_F(KeepingDailyCopies, TheOldestGoBeyondTheTenth) {
    DailyCopies daily = keeping();
    for (int day = 10; day < 22; ++day) {
        today = "2026-11-" + std::to_string(day);
        daily.beforeChange();
    }
    const Names names = copies();
    ASSERT_EQ(names.size(), 10U);
    EXPECT_EQ(names.front(), "line.hxs.2026-11-12");
    EXPECT_EQ(names.back(), "line.hxs.2026-11-21");
}

TEST_F(KeepingDailyCopies, TheOldestGoWhileAllAreTooLarge) {
    const std::uintmax_t size = std::filesystem::file_size(project);
    DailyCopies daily = keeping({.copies = 10, .bytes = 2 * size});
    for (int day = 10; day < 14; ++day) {
        today = "2026-11-" + std::to_string(day);
        daily.beforeChange();
    }
    EXPECT_EQ(copies(), (Names{"line.hxs.2026-11-12", "line.hxs.2026-11-13"}));
}

TEST_F(KeepingDailyCopies, AProjectThatIsLargerThanAllMayBeIsNotCopied) {
    DailyCopies daily = keeping({.copies = 10, .bytes = 100});
    EXPECT_THROW(daily.beforeChange(), automation::Error);
    EXPECT_NO_THROW(daily.beforeChange());  // told once a day
    EXPECT_EQ(copies(), Names{});
}

TEST_F(KeepingDailyCopies, FilesOfOtherNamesAreNoneOfThem) {
    const Names others = {"line.hxs.2026-11-2",   "line.hxs.bak",        "line.hxs.2026_11_22",
                          "other.hxs.2026-11-01", "line.hxs.2026-11-0x", "line.hxs.2026-11-011"};
    for (const std::string& name : others) std::ofstream(folder.file(name)) << "mine";
    std::filesystem::create_directory(folder.file("line.hxs.2026-11-01"));
    keeping({.copies = 0, .bytes = 1U << 30U}).beforeChange();
    EXPECT_EQ(copies(), (Names{"line.hxs.2026-11-22"}));
    for (const std::string& name : others) EXPECT_TRUE(std::filesystem::exists(folder.file(name))) << name;
}

TEST_F(KeepingDailyCopies, WhatKeepsTheCopyFromBeingMadeIsToldAndLeavesNothing) {
    std::filesystem::create_directory(folder.file("line.hxs.2026-11-22-journal"));
    std::filesystem::remove(project);
    DailyCopies daily = keeping();
    EXPECT_THROW(daily.beforeChange(), automation::Error);
    EXPECT_EQ(copies(), Names{});
}

TEST_F(KeepingDailyCopies, TheDateIsTheUsers) {
    const std::string date = DailyCopies::localDate();
    ASSERT_EQ(date.size(), 10U);
    EXPECT_EQ(date[4], '-');
    EXPECT_EQ(date.substr(0, 2), "20");
}

TEST_F(KeepingDailyCopies, HistoryAsksBeforeEachChangeAndNotBeforeItReads) {
    const auto history = std::make_shared<History>(provider, project, folder.file("cache"));
    RecordingProvider recording(provider, [&](const std::string&) { return history; });
    int asked = 0;
    history->beforeChange = [&] { ++asked; };
    const auto session = recording.connect("Data Source=\"" + project + "\";");
    const auto rows = session->open("TrcpRecipe", ado::adCmdTable);
    (void)session->open(" select * from TrcpRecipe", ado::adCmdText)->keys(nullptr);
    EXPECT_EQ(asked, 0);
    const ado::ColumnValue value{1, automation::Variant("Cola")};
    (void)rows->insert({&value, 1});
    EXPECT_EQ(asked, 1);
    session->beginTransaction();
    EXPECT_EQ(asked, 2);
    rows->remove(1);
    session->rollback();
    EXPECT_EQ(asked, 2);
    (void)session->open("DELETE * FROM TrcpRecipe", ado::adCmdText);
    EXPECT_EQ(asked, 3);
    history->beforeChange = [&] {
        ++asked;
        throw std::runtime_error("no room");
    };
    history->undo();
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(recipesIn(project), 1);
}

}  // namespace
}  // namespace hx::history
