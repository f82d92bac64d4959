// SPDX-License-Identifier: MIT
#include <objbase.h>

#include "gui/add_ins.h"

namespace hx::gui {
namespace {

TEST_F(AddInsTest, AFileThatIsNoServerIsAnErrorOfItsOwn) {
    write("Broken.dll", "no server");
    const auto [number, text] = errorOf("Broken.Connect");
    EXPECT_LT(number, 0);
    EXPECT_NE(text.find("Broken.dll describes no add-in"), std::string::npos) << text;
}

TEST_F(AddInsTest, ALibraryThatDescribesNoClassIsNone) {
    ASSERT_TRUE(QFile::copy(HX_SOME_LIBRARY, folder.filePath("Other.dll")));
    const auto [number, text] = errorOf("Other.Connect");
    EXPECT_LT(number, 0);
    EXPECT_NE(text.find("Other.dll describes no add-in"), std::string::npos) << text;
}

TEST_F(AddInsTest, AServerThatDoesNotKnowTheClassSaysSo) {
    const auto [number, text] = errorOf("HXRecipeEditor.Nothing", QStringLiteral(HX_MODULE_FOLDER));
    EXPECT_EQ(number, CO_E_CLASSSTRING) << text;
}

TEST_F(AddInsTest, AreFoundWithoutBeingRegistered) {
    CLSID id{};
    ASSERT_EQ(CLSIDFromProgID(L"HXRecipeEditor.Connect", &id), CO_E_CLASSSTRING) << "it is registered here";
    studio::StudioHost host(folder.path(), {QStringLiteral(HX_MODULE_FOLDER)});
    EXPECT_NE(host.components().create("HXRecipeEditor.Connect"), nullptr);
    EXPECT_NE(host.components().create("HXProjectReport.Connect"), nullptr);
    EXPECT_EQ(CLSIDFromProgID(L"HXRecipeEditor.Connect", &id), CO_E_CLASSSTRING) << "only while they are created";
}

}  // namespace
}  // namespace hx::gui
