// SPDX-License-Identifier: MIT

// What a session tells of the rows that it changes, and putting rows back.
#include "store.h"

namespace hx::contract {

namespace {

std::string textOf(const ado::StoredValue& value) {
    return value.isNumber() ? std::to_string(value.integer) : std::string(value.text);
}

/// Writes down what it is told, one change a text.
class Listener : public ado::RowWatcher {
  public:
    void changed(const ado::RowChange& change) noexcept override {
        heard_.push_back(std::string(change.table) + " " + std::to_string(change.key) + ":" + rowOf(change.before) +
                         " >" + rowOf(change.after));
    }
    void kept() noexcept override {
        for (std::string& text : heard_) told.push_back(std::move(text));
        heard_.clear();
    }
    void dropped() noexcept override { heard_.clear(); }
    void missed() noexcept override { told.emplace_back("missed"); }

    std::vector<std::string> told;

  private:
    static std::string rowOf(std::span<const ado::StoredValue> row) {
        std::string text;
        for (const ado::StoredValue& value : row) text += " " + textOf(value);
        return text;
    }
    std::vector<std::string> heard_;
};

using Texts = std::vector<std::string>;

/// A session that tells, where the store can.
class Watch : public ProviderContract {
  protected:
    Watch() : session_(store_->provider().connect(connectionString())) {
        addVariables(7, 2);
        tells_ = session_->watch(&listener_);
    }
    ~Watch() override { (void)session_->watch(nullptr); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    static std::size_t columnOf(const ado::Rowset& rows, std::string_view name) {
        for (std::size_t i = 0; i < rows.columns().size(); ++i) {
            if (rows.columns()[i].name == name) return i;
        }
        throw std::out_of_range(std::string(name));
    }
    std::unique_ptr<ado::Rowset> members() { return session_->open("TrcpRecipeMember", ado::adCmdTable); }
    ado::Key add(const std::string& variable, std::optional<std::int32_t> key = {}) {
        const auto rows = members();
        std::vector<ado::ColumnValue> values = {{columnOf(*rows, "ParentID"), 7},
                                                {columnOf(*rows, "VarRecipe"), variable}};
        if (key) values.push_back({columnOf(*rows, "ID"), *key});
        return rows->insert(values);
    }
    void rename(ado::Key key, const std::string& variable) {
        const auto rows = members();
        const ado::ColumnValue value{columnOf(*rows, "VarRecipe"), variable};
        rows->update(key, {&value, 1}, {});
    }
    void expect(const Texts& told) const { EXPECT_EQ(listener_.told, tells_ ? told : Texts{}); }

    Listener listener_;
    std::unique_ptr<ado::Session> session_;
    bool tells_ = false;
};

TEST_P(Watch, RowsThatComeChangeAndGoAreToldWithAllTheirColumns) {
    EXPECT_EQ(add("V3"), 3);
    rename(1, "W");
    members()->remove(2);
    expect(
        {"TrcpRecipeMember 3: > 3 7 V3 0", "TrcpRecipeMember 1: 1 7 V1 0 > 1 7 W 0", "TrcpRecipeMember 2: 2 7 V2 0 >"});
}

TEST_P(Watch, ACommandTellsEachOfItsRows) {
    EXPECT_EQ(session_->open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 7", ado::adCmdText), nullptr);
    expect({"TrcpRecipeMember 1: 1 7 V1 0 >", "TrcpRecipeMember 2: 2 7 V2 0 >"});
}

TEST_P(Watch, AChangeThatIsRefusedIsNotTold) {
    EXPECT_EQ(errorNumber([&] { add("V1"); }), ado::dbErrDuplicate);
    EXPECT_EQ(errorNumber([&] { rename(1, "V2"); }), ado::dbErrDuplicate);
    EXPECT_EQ(errorNumber([&] { members()->remove(9); }), ado::dbErrDeletedRow);
    expect({});
}

TEST_P(Watch, WhatOthersChangeIsNotToldAndNothingIsAfterItsEnd) {
    addVariables(8, 1);
    (void)session_->watch(nullptr);
    add("V3");
    EXPECT_EQ(listener_.told, Texts{});
}

TEST_P(Watch, RowsAreReadAsTheyAreStored) {
    const std::vector<ado::Key> keys = {2, 5, 1};
    std::string text;
    members()->readStored(keys, [&](std::span<const ado::StoredValue> row) {
        for (const ado::StoredValue& value : row) text += textOf(value) + " ";
    });
    EXPECT_EQ(text, "2 7 V2 0 1 7 V1 0 ");
}

TEST_P(Watch, RowsComeBackUnderTheirKeys) {
    add("V3");
    for (const ado::Key key : {2, 3}) members()->remove(key);
    const std::array<ado::StoredValue, 4> row = {ado::StoredValue::of(2), ado::StoredValue::of(7),
                                                 ado::StoredValue{ado::StoredValue::Kind::text, 0, 0, "V2"},
                                                 ado::StoredValue::of(0)};
    bool given = false;
    const auto once = [&](std::span<ado::StoredValue> values) {
        std::ranges::copy(row, values.begin());
        return !std::exchange(given, true);
    };
    const auto rows = members();
    rows->restore(ado::allColumns(*rows), once);
    EXPECT_EQ(stored("TrcpRecipeMember", "ID"), "1,2");
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2");
    given = false;
    EXPECT_EQ(errorNumber([&] { rows->restore(ado::allColumns(*rows), once); }), ado::dbErrDuplicate);
    EXPECT_EQ(add("V4"), 4);
}

TEST_P(Watch, RowsAreStoredByTheColumnsThatAreNamed) {
    const auto rows = members();
    const std::array columns = {columnOf(*rows, "VarRecipe"), columnOf(*rows, "ParentID")};
    std::array values = {ado::StoredValue{ado::StoredValue::Kind::text, 0, 0, "V8"}, ado::StoredValue::of(7)};
    bool given = false;
    rows->restore(columns, [&](std::span<ado::StoredValue> row) {
        std::ranges::copy(values, row.begin());
        return !std::exchange(given, true);
    });
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2,V8");
    EXPECT_EQ(stored("TrcpRecipeMember", "ChildID"), "0,0,0");  // the table's default
    values[0].text = "V9";
    rows->rewrite(3, columns, values);
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2,V9");
    values[0].text = "V1";
    EXPECT_EQ(errorNumber([&] { rows->rewrite(3, columns, values); }), ado::dbErrDuplicate);
    EXPECT_EQ(errorNumber([&] { rows->rewrite(4, columns, values); }), ado::dbErrDeletedRow);
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2,V9");
}

TEST_P(Watch, TheLastKeyIsRememberedWhenItsRowIsGone) {
    EXPECT_EQ(members()->lastKey(), 2);
    members()->remove(2);
    EXPECT_EQ(members()->lastKey(), 2);
}

TEST_P(Watch, ARowCanBeGivenAKeyThatIsFree) {
    EXPECT_EQ(add("V9", 9), 9);
    EXPECT_EQ(errorNumber([&] { add("V10", 9); }), ado::dbErrDuplicate);
    EXPECT_EQ(add("V10"), 10);
}

INSTANTIATE_TEST_SUITE_P(Provider, Watch, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
