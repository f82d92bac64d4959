// SPDX-License-Identifier: MIT

// Many rows at once.
#include <array>

#include "automation/convert.h"
#include "store.h"

namespace hx::contract {

namespace {

class GetRows : public ProviderContract {
  protected:
    static std::string rowsOf(Recordset& recordset, std::int32_t rows,
                              std::initializer_list<std::string_view> fields = {"VarRecipe", "ID"}) {
        std::string text;
        recordset.getRows(rows, std::vector(fields), [&](std::span<const Variant> values) {
            for (const Variant& value : values) text += automation::toText(value) + " ";
        });
        return text;
    }
};

TEST_P(GetRows, GivesTheRestFromTheCurrentRowAndStandsBehindIt) {
    addVariables(7, 3);
    const auto recordset = members();
    recordset->moveNext();
    EXPECT_EQ(rowsOf(*recordset, ado::adGetRowsRest), "V2 2 V3 3 ");
    EXPECT_TRUE(recordset->eof());
    EXPECT_EQ(errorNumber([&] { rowsOf(*recordset, ado::adGetRowsRest); }), ado::adErrNoCurrentRecord);
}

TEST_P(GetRows, GivesNoMoreThanAsked) {
    addVariables(7, 4);
    const auto recordset = members();
    EXPECT_EQ(rowsOf(*recordset, 2), "V1 1 V2 2 ");
    EXPECT_EQ(recordset->field("VarRecipe").value(), Variant("V3"));
    EXPECT_EQ(rowsOf(*recordset, 0), "");
    EXPECT_EQ(rowsOf(*recordset, 9, {"VarRecipe"}), "V3 V4 ");
}

TEST_P(GetRows, GivesRowsInTheOrderOfTheCommandBeyondThoseReadTogether) {
    constexpr std::int32_t many = 2500;
    addVariables(7, many);
    const auto recordset = open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7 ORDER BY ID DESC");
    std::int32_t expected = many;
    recordset->getRows(ado::adGetRowsRest, std::array<std::string_view, 2>{"VarRecipe", "ID"},
                       [&](std::span<const Variant> values) {
                           EXPECT_EQ(values[0], Variant("V" + std::to_string(expected)));
                           EXPECT_EQ(values[1], Variant(expected));
                           --expected;
                       });
    EXPECT_EQ(expected, 0);
}

TEST_P(GetRows, LeavesOutWhatAnotherConnectionDeleted) {
    addVariables(7, 3);
    const auto recordset = members();
    EXPECT_EQ(recordset->recordCount(), 3);
    Recordset().open("DELETE * FROM TrcpRecipeMember WHERE ID = 2", connect());
    EXPECT_EQ(rowsOf(*recordset, ado::adGetRowsRest), "V1 1 V3 3 ");
}

TEST_P(GetRows, WritesAPendingEditFirst) {
    addVariables(7, 1);
    const auto recordset = members();
    recordset->field("VarRecipe").setValue("Edited");
    EXPECT_EQ(rowsOf(*recordset, ado::adGetRowsRest), "Edited 1 ");
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "Edited");
}

TEST_P(GetRows, FailsForAnUnknownFieldAndWhileClosed) {
    addVariables(7, 1);
    const auto recordset = members();
    EXPECT_EQ(errorNumber([&] { rowsOf(*recordset, 1, {"Nothing"}); }), ado::adErrItemNotFound);
    EXPECT_EQ(recordset->absolutePosition(), 1);
    recordset->close();
    EXPECT_EQ(errorNumber([&] { rowsOf(*recordset, 1); }), ado::adErrObjectClosed);
}

INSTANTIATE_TEST_SUITE_P(Provider, GetRows, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
