// SPDX-License-Identifier: MIT

// All rows of a command in one pass, as they are stored.
#include <array>
#include <gmock/gmock.h>

#include "store.h"

namespace hx::contract {

namespace {

using Kind = ado::StoredValue::Kind;
using Row = std::span<const ado::StoredValue>;

class Scan : public ProviderContract {
  protected:
    std::unique_ptr<ado::Session> session() { return store_->provider().connect(connectionString()); }
    static std::string textOf(const ado::StoredValue& value) {
        switch (value.kind) {
            case Kind::null: return "null";
            case Kind::integer: return std::to_string(value.integer);
            case Kind::real: return std::to_string(value.real);
            case Kind::text: return "'" + std::string(value.text) + "'";
            case Kind::bytes: return "bytes";
        }
        return "";
    }
    /// The values of these columns, rows in brackets.
    static std::string rowsOf(ado::Session& session, const std::string& command,
                              std::initializer_list<std::string_view> names) {
        const auto rows = session.open(command, ado::adCmdText);
        std::vector<std::size_t> columns;
        for (const std::string_view name : names) {
            const auto at = std::ranges::find(rows->columns(), name, &ado::Column::name);
            columns.push_back(static_cast<std::size_t>(at - rows->columns().begin()));
        }
        std::string text;
        rows->scan(columns, [&](Row row) {
            text += "[";
            for (const ado::StoredValue& value : row) text += textOf(value) + " ";
            text.back() = ']';
        });
        return text;
    }
};

TEST_P(Scan, GivesTheColumnsThatAreAskedForInTheirOrder) {
    recipes()->addNew(
        Values{{"Name", "Cola"}, {"StandardValue", 1.5}, {"Enabled", true}, {"Comment", Variant(automation::Null{})}});
    const auto reading = session();
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipe", {"StandardValue", "Name", "ID", "Comment"}),
              "[1.500000 'Cola' 1 null]");
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipeMember", {"ID"}), "");
}

TEST_P(Scan, TellsYesFromNo) {
    recipes()->addNew(Values{{"Name", "Cola"}, {"Enabled", true}, {"SaveChanges", false}});
    const auto rows = session()->open("SELECT * FROM TrcpRecipe", ado::adCmdText);
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < rows->columns().size(); ++i) {
        if (rows->columns()[i].name == "Enabled" || rows->columns()[i].name == "SaveChanges") columns.push_back(i);
    }
    ASSERT_EQ(columns.size(), 2U);
    rows->scan(columns, [&](Row row) {
        EXPECT_TRUE(row[0].isTrue());
        EXPECT_FALSE(row[1].isTrue());
    });
}

TEST_P(Scan, KeepsToTheConditionAndTheOrderHoweverManyRowsThereAre) {
    constexpr std::int32_t many = 2500;
    addVariables(6, 3);
    addVariables(7, many);
    std::int64_t expected = many;
    const auto rows =
        session()->open("SELECT VarRecipe FROM TrcpRecipeMember WHERE ParentID = 7 ORDER BY ID DESC", ado::adCmdText);
    rows->scan(std::array{std::size_t{0}}, [&](Row row) {
        EXPECT_EQ(row[0].text, "V" + std::to_string(expected));
        --expected;
    });
    EXPECT_EQ(expected, 0);
}

TEST_P(Scan, PassesOnWhatItsReceiverThrows) {
    addVariables(7, 3);
    const auto reading = session();
    const auto rows = reading->open("SELECT * FROM TrcpRecipeMember", ado::adCmdText);
    int seen = 0;
    const auto scan = [&] {
        rows->scan(std::array{std::size_t{0}}, [&](Row) {
            if (++seen == 2) throw automation::Error(automation::errFail, "enough");
        });
    };
    EXPECT_EQ(descriptionOf(scan), "enough");
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipeMember", {"VarRecipe"}), "['V1']['V2']['V3']");
}

TEST_P(Scan, OfATransactionThatReadsIsAsOfOneMoment) {
    addVariables(7, 2);
    const auto reading = store_->provider().connect("Data Source=" + store_->path() + ";Mode=Read;");
    reading->beginTransaction();
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipeMember", {"VarRecipe"}), "['V1']['V2']");
    // Who writes meanwhile is kept out, or is not seen.
    const Values late = {{"ParentID", 7}, {"VarRecipe", "late"}};
    const int number = errorNumber([&] { members()->addNew(late); });
    EXPECT_THAT(number, testing::AnyOf(0, ado::dbErrUnspecified));
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipeMember", {"VarRecipe"}), "['V1']['V2']");
    reading->rollback();
    if (number != 0) members()->addNew(late);
    EXPECT_EQ(rowsOf(*reading, "SELECT * FROM TrcpRecipeMember", {"VarRecipe"}), "['V1']['V2']['late']");
}

INSTANTIATE_TEST_SUITE_P(Provider, Scan, testing::ValuesIn(storeKinds()),
                         [](const auto& suite) { return suite.param.name; });

}  // namespace

}  // namespace hx::contract
