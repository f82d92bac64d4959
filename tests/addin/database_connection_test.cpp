// SPDX-License-Identifier: MIT
#include "addin/database_connection.h"

#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

struct DatabaseConnection : testing::Test {
    bool connect(const std::string& path) {
        bool ok = false;
        ConnectToDataBase(studio.host.services(), *window, path, ok);
        return ok;
    }
    ado::Connection& connection() { return *window->dataEnvironment()->CnnRecipes; }

    Studio studio;
    std::shared_ptr<Connect> addIn = std::make_shared<Connect>(studio.host.services());
    std::shared_ptr<editor::frmtabgrid> window = std::make_shared<editor::frmtabgrid>(*addIn);
};

TEST_F(DatabaseConnection, GivesTheWindowADataEnvironmentWhenItHasNone) {
    ASSERT_EQ(window->dataEnvironment(), nullptr);
    EXPECT_TRUE(connect("D:\\Prj\\Plant.hxs"));
    ASSERT_NE(window->dataEnvironment(), nullptr);
    EXPECT_EQ(connection().state(), ado::adStateOpen);
}

TEST_F(DatabaseConnection, UsesTheDataEnvironmentThatTheWindowHas) {
    const auto data = std::make_shared<recipe::DataEnvironment>(studio.provider);
    window->setDataEnvironment(data);
    EXPECT_TRUE(connect("D:\\Prj\\Plant.hxs"));
    EXPECT_EQ(window->dataEnvironment(), data);
    EXPECT_EQ(data->CnnRecipes->state(), ado::adStateOpen);
}

TEST_F(DatabaseConnection, OpenedTwiceKeepsTheFirstConnection) {
    studio.memory.add("D:\\Prj\\Other.hxs");
    EXPECT_TRUE(connect("D:\\Prj\\Plant.hxs"));
    const std::string first = connection().connectionString();
    EXPECT_TRUE(connect("D:\\Prj\\Other.hxs"));
    EXPECT_EQ(connection().connectionString(), first);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(DatabaseConnection, OfAFileThatIsNoProjectShowsWhatTheProviderSays) {
    studio.faults.arm(1, support::FaultPlan::Kind::connect,
                      automation::Error(ado::dbErrUnspecified, "'notes.hxs' is no project."));
    EXPECT_FALSE(connect("D:\\Prj\\notes.hxs"));
    EXPECT_EQ(connection().state(), ado::adStateClosed);
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: 'notes.hxs' is no project."}));
}

TEST_F(DatabaseConnection, IsClosedWithItsRecordsetsAndTakenFromTheWindow) {
    connect("D:\\Prj\\Plant.hxs");
    const auto data = window->dataEnvironment();
    for (const auto& recordset : data->recordsets()) recordset->open();
    disconnectFromDataBase(*window);
    EXPECT_EQ(window->dataEnvironment(), nullptr);
    EXPECT_EQ(data->CnnRecipes->state(), ado::adStateClosed);
    for (const auto& recordset : data->recordsets()) EXPECT_EQ(recordset->state(), ado::adStateClosed);
}

TEST_F(DatabaseConnection, StoresAnEditThatIsPendingWhenItIsClosed) {
    const std::int32_t id = studio.addRecipe("Cola");
    connect("D:\\Prj\\Plant.hxs");
    const auto data = window->dataEnvironment();
    data->rsRecipes->open();
    data->rsRecipes->field("Name").setValue("Tee");
    disconnectFromDataBase(*window);
    EXPECT_EQ((*studio.database.table("TrcpRecipe").row(id))[1], automation::Variant("Tee"));
    EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
}

TEST_F(DatabaseConnection, ThatWasNeverOpenedIsTakenFromTheWindow) {
    window->setDataEnvironment(std::make_shared<recipe::DataEnvironment>(studio.provider));
    disconnectFromDataBase(*window);
    EXPECT_EQ(window->dataEnvironment(), nullptr);
    disconnectFromDataBase(*window);
    EXPECT_EQ(studio.boxes(), Texts{});
}

}  // namespace
}  // namespace hx::addin
