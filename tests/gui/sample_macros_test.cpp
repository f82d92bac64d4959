// SPDX-License-Identifier: MIT

// The sample macros in the studio, as they are copied from its menu and without arguments.
#include <QFile>
#include <QTest>

#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using testing::HasSubstr;

class SampleMacros : public StudioMacroTest {
  protected:
    SampleMacros() {
        start();
        QTest::qWait(1);
        action("actionSampleMacros").trigger();
        open(makeProject());
    }
    std::string runSample(const QString& name) {
        QFile file(folder.filePath("config/macros/samples/" + name + ".lua"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return run(file.readAll().toStdString());
    }
};

TEST_F(SampleMacros, CopyTheRecipeThatIsChosen) {
    EXPECT_THAT(runSample("copy_recipe"), HasSubstr("Choose a recipe in the explorer"));
    click("Rezepte");
    click("Rezepte/Limonade");
    EXPECT_THAT(runSample("copy_recipe"),
                HasSubstr("copied \"Limonade\" to \"Limonade (copy)\": 2 variables, 0 sub-recipes\n"));
    EXPECT_TRUE(node("Rezepte/Limonade (copy)").isValid());
    EXPECT_EQ(texts("Variable"), (std::vector<std::string>{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(SampleMacros, CreateTheFamilyOfTheListInTheProjectsFolder) {
    EXPECT_THAT(runSample("create_family"), HasSubstr("The list cannot be read"));
    QFile list(folder.filePath("recipes.csv"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    list.write("Name;Comment\nTee;heiß\nKaffee;\n");
    list.close();
    EXPECT_THAT(runSample("create_family"), HasSubstr("2 recipes created\n"));
    EXPECT_TRUE(node("Rezepte/Tee").isValid());
    EXPECT_TRUE(node("Rezepte/Kaffee").isValid());
}

TEST_F(SampleMacros, CheckTheProjectAndReportIt) {
    EXPECT_THAT(runSample("check_project"),
                testing::AllOf(HasSubstr("warning: Limonade, member 1: The variable \"Mischer.Zucker\" is not in"),
                               HasSubstr("error: Meyer's Bräu, member 5: The sub-recipe has no variable")));
    auto& found = find<QTreeView>(window(), "macroFound");
    EXPECT_TRUE(found.isVisible());
    const QAbstractItemModel& model = *found.model();
    const QModelIndex group = model.index(0, 0);
    const auto withoutFile = model.match(model.index(0, 0, group), Qt::DisplayRole, "Meyer's Bräu, member 5", 1);
    ASSERT_EQ(withoutFile.size(), 1);
    found.scrollTo(withoutFile[0]);
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, found.visualRect(withoutFile[0]).center());
    handleEvents();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
    EXPECT_EQ(grid().currentIndex().row(), 1);
    EXPECT_THAT(runSample("export_report"), HasSubstr("3 recipes written to recipes.md\n"));
    EXPECT_TRUE(QFile::exists(folder.filePath("recipes.md")));
    EXPECT_FALSE(found.isVisible());
}

TEST_F(SampleMacros, ShowWhatARuleWouldRename) {
    EXPECT_THAT(runSample("rename_variables"), HasSubstr("0 places would be renamed"));
}

}  // namespace
}  // namespace hx::gui
