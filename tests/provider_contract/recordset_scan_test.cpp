// SPDX-License-Identifier: MIT

// All rows of a recordset at once.
#include <array>

#include "automation/convert.h"
#include "store.h"

namespace hx::contract {

namespace {

class RecordsetScan : public ProviderContract {
  protected:
    static std::string rowsOf(Recordset& recordset,
                              std::initializer_list<std::string_view> fields = {"VarRecipe", "ID"}) {
        std::string text;
        recordset.scan(std::vector(fields), [&](std::span<const ado::StoredValue> values) {
            for (const ado::StoredValue& value : values)
                text += (value.isNumber() ? std::to_string(value.integer) : std::string(value.text)) + " ";
        });
        return text;
    }
};

TEST_P(RecordsetScan, GivesAllRowsWhereverItStandsAndStaysThere) {
    addVariables(7, 3);
    const auto recordset = members();
    EXPECT_EQ(rowsOf(*recordset), "V1 1 V2 2 V3 3 ");
    recordset->moveNext();
    EXPECT_EQ(rowsOf(*recordset, {"ID", "VarRecipe"}), "1 V1 2 V2 3 V3 ");
    EXPECT_EQ(recordset->absolutePosition(), 2);
    recordset->moveLast();
    recordset->moveNext();
    EXPECT_EQ(rowsOf(*recordset, {"VarRecipe"}), "V1 V2 V3 ");
    EXPECT_TRUE(recordset->eof());
}

TEST_P(RecordsetScan, GivesNothingWhenThereIsNoRow) { EXPECT_EQ(rowsOf(*members()), ""); }

TEST_P(RecordsetScan, GivesRowsInTheOrderOfTheCommandBeyondThoseReadTogether) {
    constexpr std::int64_t many = 2500;
    addVariables(7, many);
    const auto recordset = open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7 ORDER BY ID DESC");
    std::int64_t expected = many;
    recordset->scan(std::array<std::string_view, 2>{"VarRecipe", "ID"}, [&](std::span<const ado::StoredValue> values) {
        EXPECT_EQ(values[0].text, "V" + std::to_string(expected));
        EXPECT_EQ(values[1].integer, expected);
        --expected;
    });
    EXPECT_EQ(expected, 0);
}

TEST_P(RecordsetScan, GivesTheRowsOfTheFilterInTheOrderOfTheSorting) {
    addVariables(7, 4);
    const auto recordset = members();
    recordset->setFilter("ID > 1");
    EXPECT_EQ(rowsOf(*recordset), "V2 2 V3 3 V4 4 ");
    recordset->setFilter("");
    const std::size_t column = 2;
    ASSERT_EQ(recordset->columns().at(column).name, "VarRecipe");
    recordset->sortBy(
        column, [](const Variant& value) { return automation::toText(value); }, true);
    EXPECT_EQ(rowsOf(*recordset), "V4 4 V3 3 V2 2 V1 1 ");
    EXPECT_EQ(rowsOf(*recordset->clone()), "V4 4 V3 3 V2 2 V1 1 ");
}

TEST_P(RecordsetScan, GivesWhatIsStoredNow) {
    addVariables(7, 3);
    const auto recordset = members();
    EXPECT_EQ(recordset->recordCount(), 3);
    Recordset().open("DELETE * FROM TrcpRecipeMember WHERE ID = 2", connect());
    EXPECT_EQ(rowsOf(*recordset), "V1 1 V3 3 ");
}

TEST_P(RecordsetScan, WritesAPendingEditFirst) {
    addVariables(7, 1);
    const auto recordset = members();
    recordset->field("VarRecipe").setValue("Edited");
    EXPECT_EQ(rowsOf(*recordset), "Edited 1 ");
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "Edited");
}

TEST_P(RecordsetScan, FailsForAnUnknownFieldAndWhileClosed) {
    addVariables(7, 1);
    const auto recordset = members();
    EXPECT_EQ(errorNumber([&] { rowsOf(*recordset, {"Nothing"}); }), ado::adErrItemNotFound);
    EXPECT_EQ(recordset->absolutePosition(), 1);
    recordset->close();
    EXPECT_EQ(errorNumber([&] { rowsOf(*recordset); }), ado::adErrObjectClosed);
}

INSTANTIATE_TEST_SUITE_P(Provider, RecordsetScan, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
