// SPDX-License-Identifier: MIT
#include "editor_window.h"
#include "settings/cinit.h"

namespace hx::editor {
namespace {

using automation::Args;
using automation::Error;
using automation::Member;
using automation::MemberKind;
using automation::Variant;

struct ByName : EditorWindow {
    ByName() { open(); }
    Variant call(std::string_view name, const std::vector<Variant>& arguments = {}) {
        return window->get(name, arguments);
    }
    [[nodiscard]] std::int32_t numberOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    }
};

TEST_F(ByName, EveryOwnPropertyIsReadAndKeepsWhatItGave) {
    for (const Member& row : window->members().rows) {
        if (row.kind != MemberKind::property) continue;
        const Variant value = window->get(row.name);
        if (row.set == nullptr) {
            EXPECT_EQ(numberOf([&] { window->set(row.name, value); }), automation::errMemberNotFound) << row.name;
        } else {
            window->set(row.name, value);
            EXPECT_EQ(window->get(row.name), value) << row.name;
            EXPECT_EQ(numberOf([&] { window->set(row.name, Variant(automation::Null{})); }),
                      row.type == automation::VarType::string ? 0 : automation::errTypeMismatch)
                << row.name;
        }
        EXPECT_FALSE(row.doc.empty()) << row.name;
    }
}

TEST_F(ByName, EveryMethodRefusesAWrongNumberOfArguments) {
    const std::vector<Variant> many(4, Variant("x"));
    for (const Member& row : window->members().rows) {
        if (row.kind != MemberKind::method) continue;
        EXPECT_EQ(numberOf([&] { window->get(row.name, many); }), automation::errBadParamCount) << row.name;
        EXPECT_FALSE(row.doc.empty()) << row.name;
    }
}

TEST_F(ByName, ControlsAndThePropertiesOfTheFormAreReached) {
    for (const char* name : {"abr", "tbrfunc", "tdbRM", "sb", "pctrcpTabSplit"}) {
        EXPECT_TRUE(window->get(name).isObject()) << name;
    }
    EXPECT_EQ(window->get("WindowState"), Variant(std::int32_t{2}));
    EXPECT_EQ(window->get("Caption"), Variant("HelvixStudio Rezepteditor"));
    EXPECT_EQ(numberOf([&] { window->get("Nothing"); }), automation::errUnknownName);
}

TEST_F(ByName, TheOperationsRun) {
    call("SwitchGrids", {Variant("VARS1")});
    EXPECT_FALSE(grid().visible());
    call("MakeMyCaption", {Variant("RCPR1"), Variant("Mix")});
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Mix");
    window->set("NodeKey", Variant(mixKey));
    call("RefreshMembers");
    EXPECT_EQ(grid().rowCount(), 3);
    call("MenuSwitcher", {Variant(mixKey), Variant(true)});
    EXPECT_TRUE(tool("mnuRecipeEdit").visible());
    call("abr_ToolClick", {Variant("mnuOptionActualize")});
    call("mnuOption", {Variant(std::int16_t{2})});
    EXPECT_EQ(addIn.refreshes, 2);
    EXPECT_EQ(call("RecipeName", {Variant(mixKey)}), Variant("Mix"));
    grid().clearColumns();
    call("BindGrid");
    EXPECT_EQ(grid().columns().size(), 4U);
    call("RefreshSubRecipeNames");
    call("VerifyAdds");
    call("abr_Resize");
    call("mnuRecipeFunc", {Variant(std::int16_t{9})});
    call("mnuRecipeMember", {Variant(std::int16_t{9})});
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(ByName, TheSettingsAreReached) {
    const auto inits = std::dynamic_pointer_cast<settings::CInit>(window->get("inits").asObject());
    ASSERT_NE(inits, nullptr);
    EXPECT_EQ(inits->ReadAValueFromCInits("RequestOnDelete", Variant(false)), Variant(true));
    EXPECT_EQ(inits.get(), &window->inits());
}

TEST_F(ByName, SettingsThatOutliveTheWindowHaveNoWindow) {
    const auto inits = std::dynamic_pointer_cast<settings::CInit>(window->get("inits").asObject());
    ASSERT_NE(inits, nullptr);
    window->unload(forms::UnloadMode::byCode);
    window.reset();
    constexpr std::int32_t noObject = 91;
    EXPECT_EQ(numberOf([&] { inits->SetInitToControl("Me"); }), noObject);
}

TEST_F(ByName, AClickByNameOnAToolThatIsNotThereFails) {
    EXPECT_EQ(numberOf([&] { call("abr_ToolClick", {Variant("mnuNothing")}); }), automation::errBadIndex);
}

TEST_F(ByName, ACommandIsRunByItsNumber) {
    noteCommands();
    for (const char* procedure : {"mnuRecipeFunc", "mnuRecipeMember", "mnuOption"}) {
        call(procedure, {Variant(std::int16_t{7})});
    }
    EXPECT_EQ(commands, (Texts{"mnuRecipeFunc(7)", "mnuRecipeMember(7)", "mnuOption(7)"}));
}

}  // namespace
}  // namespace hx::editor
