// SPDX-License-Identifier: MIT
#include "gui/add_ins.h"

namespace hx::gui {
namespace {

TEST_F(AddInsTest, AFileThatIsNoModuleIsAnErrorOfItsOwn) {
    write("Broken.so", "no module");
    const auto [number, text] = errorOf("Broken.Connect");
    EXPECT_EQ(static_cast<std::uint32_t>(number), 0x8007007Eu);
    EXPECT_NE(text.find("Broken.so"), std::string::npos) << text;
}

TEST_F(AddInsTest, ALibraryWithoutTheEntryIsNone) {
    ASSERT_TRUE(QFile::copy(HX_SOME_LIBRARY, folder.filePath("Other.so")));
    const auto [number, text] = errorOf("Other.Connect");
    EXPECT_EQ(static_cast<std::uint32_t>(number), 0x8007007Fu);
    EXPECT_EQ(text,
              "The file " + qt::fromQt(folder.filePath("Other.so")) + " is no add-in module: it has no hxCreateObject");
}

TEST_F(AddInsTest, AModuleThatDoesNotKnowTheClassSaysSo) {
    const auto [number, text] = errorOf("HXRecipeEditor.Nothing", QStringLiteral(HX_MODULE_FOLDER));
    EXPECT_EQ(static_cast<std::uint32_t>(number), 0x80040154u);
    EXPECT_EQ(text, "The module " HX_MODULE_FOLDER "/HXRecipeEditor.so does not know the class HXRecipeEditor.Nothing");
}

}  // namespace
}  // namespace hx::gui
