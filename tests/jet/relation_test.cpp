// SPDX-License-Identifier: MIT

// Lines have tanks, which hold them, and pumps, which go where they go.
#include <algorithm>
#include <gtest/gtest.h>

#include "ado/types.h"
#include "samples.h"
#include "support/error_of.h"

namespace hx::jet {

namespace {

using Texts = std::vector<std::string>;

class RelationTest : public testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(damagesOf(*opened_), Texts()); }

    /// The error of a change, or none when it was carried out.
    template <class Change>
    automation::Error change(Change&& change) {
        Pages& pages = opened_->pages();
        pages.beginWrite();
        const auto error = support::errorOf(change);
        if (pages.isFailed()) pages.rollback();
        else pages.commit();
        return error;
    }
    automation::Error add(const char* table, const std::optional<std::string>& line) {
        return change([&] {
            const std::optional<ado::StoredValue> values[] = {{}, text(line), text("new")};
            (void)opened_->table(table)->insert(values);
        });
    }
    automation::Error rename(const std::string& line, const std::string& name) {
        return change([&] {
            const std::optional<ado::StoredValue> values[] = {{}, text(name)};
            EXPECT_TRUE(opened_->table("HostLine")->update(place(line), values));
        });
    }
    automation::Error remove(const std::string& line) {
        return change([&] { EXPECT_TRUE(opened_->table("HostLine")->remove(place(line))); });
    }
    Texts lines(const char* table, const char* column = "Line") { return textsOf(*opened_, table, column); }
    std::ptrdiff_t pumpsOf(const char* line) { return std::ranges::count(lines("HostPump"), line); }

    Database& opened() { return *opened_; }

  private:
    static std::optional<ado::StoredValue> text(const std::optional<std::string>& text) {
        if (!text) return ado::StoredValue();
        return ado::StoredValue{ado::StoredValue::Kind::text, 0, 0, *text};
    }
    Place place(const std::string& line) {
        Table& table = *opened_->table("HostLine");
        Table::Scan rows(table);
        std::string room;
        for (Table::Found found; rows.next(found);) {
            if (table.value(found.row, 1, room).text == line) return found.place;
        }
        ADD_FAILURE() << "no line " << line;
        return {};
    }

    const Sample sample_{"beziehungen.hxs"};
    Opened opened_{sample_.path()};
};

TEST_F(RelationTest, ARowThatNamesNoOtherIsRefused) {
    const auto error = add("HostTank", "Ost");
    EXPECT_EQ(error.number(), ado::dbErrIntegrity);
    EXPECT_NE(error.description().find("\"HostLine\""), std::string::npos) << error.description();
    EXPECT_EQ(lines("HostTank").size(), 2U);
}

TEST_F(RelationTest, ARowThatNamesAnotherOrNoneIsStored) {
    EXPECT_EQ(add("HostTank", "West").number(), 0);
    EXPECT_EQ(add("HostTank", "NORD").number(), 0);  // as the index compares
    EXPECT_EQ(add("HostTank", std::nullopt).number(), 0);
    EXPECT_EQ(lines("HostTank").size(), 5U);
}

TEST_F(RelationTest, ARowThatOthersReferToStaysAsItIs) {
    for (const auto& error : {remove("Nord"), rename("Nord", "Ost")}) {
        EXPECT_EQ(error.number(), ado::dbErrIntegrity);
        EXPECT_NE(error.description().find("\"HostTank\""), std::string::npos) << error.description();
    }
    EXPECT_EQ(lines("HostLine", "Name"), (Texts{"Nord", "Süd", "West"}));
}

TEST_F(RelationTest, ARowTakesThoseAlongThatGoWithIt) {
    EXPECT_EQ(pumpsOf("Süd"), 150);
    EXPECT_EQ(remove("Süd").number(), 0);
    EXPECT_EQ(pumpsOf("Süd"), 0);
    EXPECT_EQ(pumpsOf("West"), 150);
    EXPECT_EQ(lines("HostLine", "Name"), (Texts{"Nord", "West"}));
}

TEST_F(RelationTest, ANewNameGoesToThoseThatFollowIt) {
    EXPECT_EQ(rename("West", "Südwest").number(), 0);
    EXPECT_EQ(pumpsOf("Südwest"), 150);
    EXPECT_EQ(pumpsOf("West"), 0);
}

TEST_F(RelationTest, WhatIsTakenBackTakesAllBack) {
    opened().pages().beginWrite();
    {
        Table& table = *opened().table("HostLine");
        EXPECT_TRUE(table.remove(*table.find(2)));
    }
    opened().pages().rollback();
    EXPECT_EQ(pumpsOf("Süd"), 150);
    EXPECT_EQ(lines("HostLine", "Name"), (Texts{"Nord", "Süd", "West"}));
}

}  // namespace

}  // namespace hx::jet
