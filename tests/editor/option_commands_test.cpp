// SPDX-License-Identifier: MIT
#include <array>

#include "editor/record_count.h"
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Error;
using automation::Variant;

struct OptionCommands : EditorWindow {
    OptionCommands() { open(); }
};

TEST_F(OptionCommands, StatisticWritesTheCountsIntoTheStatusLine) {
    show(mixKey);
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(window->sb->panel(1).text(), "Func:Statistik");
    EXPECT_EQ(window->sb->panel(2).text(), "Rezepte:3");
    EXPECT_EQ(window->sb->panel(3).text(), "Rezeptelemente6");
}

TEST_F(OptionCommands, StatisticSpeaksEnglishButForItsName) {
    useLanguage(english);
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(window->sb->panel(1).text(), "Func:Statistik");
    EXPECT_EQ(window->sb->panel(2).text(), "Recipes3");
    EXPECT_EQ(window->sb->panel(3).text(), "Recipe Members6");
}

TEST_F(OptionCommands, StatisticSetsTheCountsAgainEachTime) {
    window->abr->click("mnuOptionStatistik");
    addMember(syrup, "Sugar.Temp");
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(window->sb->panel(2).text(), "Rezepte:3");
    EXPECT_EQ(window->sb->panel(3).text(), "Rezeptelemente7");
}

TEST_F(OptionCommands, StatisticLeavesTheTablesClosedAndTheGridAsItIs) {
    show(mixKey);
    grid().setRow(2);
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
    EXPECT_EQ(data->rsRecipeMembers->state(), ado::adStateClosed);
    EXPECT_EQ(grid().row(), 2);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
}

TEST_F(OptionCommands, StatisticShowsTheHourglassMeanwhile) {
    host.record.pointers.clear();
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
}

TEST_F(OptionCommands, TheNumbersWithoutACommandDoNothing) {
    const Texts before = {window->sb->panel(1).text(), window->sb->panel(2).text()};
    host.record.pointers.clear();
    for (const auto number : std::to_array<std::int16_t>({1, 3, 4, 8, -1})) window->commands().mnuOption(number);
    EXPECT_EQ((Texts{window->sb->panel(1).text(), window->sb->panel(2).text()}), before);
    EXPECT_EQ(addIn.refreshes, 0);
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_TRUE(host.record.components.empty());
    EXPECT_TRUE(host.record.pointers.empty());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(OptionCommands, StatisticWithoutADatabaseIsReported) {
    window->setDataEnvironment(nullptr);
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

TEST_F(OptionCommands, StatisticReportsADatabaseThatCannotBeRead) {
    const std::string before = window->sb->panel(2).text();
    faults.arm(1, support::FaultPlan::Kind::open);
    window->abr->click("mnuOptionStatistik");
    ASSERT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuOption");
    EXPECT_EQ(window->sb->panel(2).text(), before);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
}

TEST_F(OptionCommands, TellsInTheUsersLanguageThatMemoryOrTheDatabaseIsMissing) {
    host.screen.setLanguage(automation::Language::german);
    faults.instead = [] { throw std::bad_alloc(); };
    faults.arm(1, support::FaultPlan::Kind::open);
    window->abr->click("mnuOptionStatistik");
    window->setDataEnvironment(nullptr);
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(messages(), (Texts{"-2147024882: Der Speicher reicht nicht aus.",
                                 "-2147467259: Der Editor hat jetzt keine Datenbank"}));
}

TEST_F(OptionCommands, CountingOpensCountsAndCloses) {
    EXPECT_EQ(countRecords(*data->rsRecipes), 3);
    EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
}

TEST_F(OptionCommands, CountingAnOpenRecordsetCountsAllItsRecords) {
    data->rsRecipeMembers->open();
    data->rsRecipeMembers->setFilter("ParentID = " + std::to_string(syrup));
    EXPECT_EQ(countRecords(*data->rsRecipeMembers), 6);
    EXPECT_EQ(data->rsRecipeMembers->state(), ado::adStateClosed);
}

TEST_F(OptionCommands, CountingStoresAPendingEditFirst) {
    data->rsRecipeMembers->open();
    data->rsRecipeMembers->field("VarRecipe").setValue(Variant("Tank.Pressure"));
    EXPECT_EQ(countRecords(*data->rsRecipeMembers), 6);
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(OptionCommands, CountingThatFailsClosesTheRecordset) {
    faults.arm(1, support::FaultPlan::Kind::keys);
    EXPECT_THROW((void)countRecords(*data->rsRecipes), Error);
    EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
}

TEST_F(OptionCommands, TheServerConfigurationGetsTheSecondPathAndTheWindow) {
    host.components.standIn("HXRecipeServerConfig.Connect");
    window->abr->click("mnuOptionConfiguration");
    ASSERT_EQ(host.record.componentCalls.size(), 1U);
    const forms::ComponentCall& call = host.record.componentCalls[0];
    EXPECT_EQ(call.component, "HXRecipeServerConfig.Connect");
    EXPECT_EQ(call.member, "Show");
    EXPECT_EQ(call.arguments, (std::vector<Variant>{Variant("/plant/second.hxs"), Variant(window->handle())}));
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(OptionCommands, AServerConfigurationThatIsNotInstalledGivesNumberAndDescription) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    window->abr->click("mnuOptionConfiguration");
    EXPECT_EQ(messages(), (Texts{"-2147221164\r\nClass not registered: HXRecipeServerConfig.Connect"}));
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
    EXPECT_EQ(host.record.messages[0].title, forms::message::defaultTitle);
    EXPECT_TRUE(busy);
    EXPECT_FALSE(addIn.busyFlag);
}

TEST_F(OptionCommands, TheReportGetsItsSubjectThePathAndTheWindow) {
    host.components.standIn("HXProjectReport.Connect");
    window->abr->click("mnuOptionReport");
    ASSERT_EQ(host.record.componentCalls.size(), 1U);
    const forms::ComponentCall& call = host.record.componentCalls[0];
    EXPECT_EQ(call.member, "Show");
    EXPECT_EQ(call.arguments,
              (std::vector<Variant>{Variant("HXRecipe"), Variant("/plant/line.hxs"), Variant(window->handle())}));
}

/// A report that tells when it ends.
struct Report : automation::Dispatch {
    explicit Report(bool& flag) : alive(flag) { alive = true; }
    ~Report() override { alive = false; }
    Variant get(std::string_view, automation::Args) override { throw Error(7, "No paper"); }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"Report", {}};
        return table;
    }
    bool& alive;
};

TEST_F(OptionCommands, TheReportIsReleasedAlsoWhenItFails) {
    bool alive = false;
    host.components.provide("HXProjectReport.Connect", [&] { return std::make_shared<Report>(alive); });
    window->abr->click("mnuOptionReport");
    EXPECT_FALSE(alive);
    EXPECT_EQ(messages(), (Texts{"7: No paper"}));
    EXPECT_EQ(host.record.messages[0].title, "mnuOption");
}

TEST_F(OptionCommands, AReportThatIsNotInstalledGivesNumberAndDescription) {
    window->abr->click("mnuOptionReport");
    EXPECT_EQ(messages(), (Texts{"-2147221164\r\nClass not registered: HXProjectReport.Connect"}));
}

TEST_F(OptionCommands, AReportMayRefreshTheView) {
    host.components.standIn("HXProjectReport.Connect", [this](std::string_view, automation::Args) {
        window.reset();
        return Variant();
    });
    const auto bar = window->abr;
    bar->click("mnuOptionReport");
    EXPECT_EQ(window, nullptr);
}

}  // namespace
}  // namespace hx::editor
