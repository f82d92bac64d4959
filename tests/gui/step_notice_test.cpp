// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <filesystem>

#include "adapters/sqlite/provider.h"
#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// What the status line says of a step that has done more than was meant, and the copy of the day.
class StepNotice : public StudioMacroTest {
  protected:
    StepNotice() : file_(startAtMembers()) { handleEvents(); }

    [[nodiscard]] bool isTold() { return find<QWidget>(window(), "stepNotice").isVisible(); }
    [[nodiscard]] std::string told() {
        return isTold() ? find<QLabel>(window(), "stepNoticeText").text().toStdString() : std::string();
    }
    void takeBack() {
        QTest::mouseClick(&find<QPushButton>(window(), "stepNoticeUndo"), Qt::LeftButton);
        handleEvents();
    }
    void deleteRecipe(const QString& name, const char* yes = "Ja") {
        click((host().wording().isEnglish() ? "Recipes/" : "Rezepte/") + name);
        const BoxAnswers answers({yes});
        QTest::keyClick(&tree(), Qt::Key_Delete, Qt::ControlModifier);
        handleEvents();
        EXPECT_EQ(answers.shown().size(), 1U);
    }
    [[nodiscard]] Texts copies() const {
        Texts names;
        for (const QString& name : QFileInfo(file_).dir().entryList({"*.hxs.*"}, QDir::Files))
            names.push_back(name.toStdString());
        return names;
    }

    const QString file_;
};

TEST_F(StepNotice, ADeletedRecipeThatOthersIncludeIsToldAndTakenBack) {
    EXPECT_FALSE(isTold());
    deleteRecipe("Limonade");
    EXPECT_EQ(told(), "„Limonade“ wurde gelöscht. Elemente, die es noch als Unterrezept nennen: 1.");
    takeBack();
    EXPECT_TRUE(node("Rezepte/Limonade").isValid());
    EXPECT_EQ(stored(file_, 1).size(), 2U);
    EXPECT_FALSE(isTold());
}

TEST_F(StepNotice, ADeletedRecipeThatNobodyIncludesIsNoSurprise) {
    deleteRecipe("Meyer's Bräu");
    EXPECT_FALSE(isTold());
}

TEST_F(StepNotice, TheNextStepEndsIt) {
    deleteRecipe("Limonade");
    ASSERT_TRUE(isTold());
    click("Rezepte/Apfelschorle");
    edit(0, "Variable", "Neu");
    click("Rezepte");
    EXPECT_EQ(stored(file_, 2)[0], "Neu");
    EXPECT_FALSE(isTold()) << told();
}

TEST_F(StepNotice, SaysItInTheLanguageOfTheStudio) {
    window().chooseLanguage(qt::Wording::english);
    deleteRecipe("Limonade", "Yes");
    EXPECT_EQ(told(), "“Limonade” was deleted. Members that still name it as a sub-recipe: 1.");
    EXPECT_EQ(find<QPushButton>(window(), "stepNoticeUndo").text(), "Undo");
}

TEST_F(StepNotice, ALongNameDoesNotWidenTheWindow) {
    sqlite::Provider provider;
    const auto rows =
        provider.connect("Data Source=\"" + file_.toStdString() + "\";")->open("TrcpRecipe", ado::adCmdTable);
    const ado::ColumnValue name{1, automation::Variant(std::string(255, 'W'))};
    rows->update(1, {&name, 1}, {});
    const int before = window().minimumSizeHint().width();
    deleteRecipe("Limonade");
    ASSERT_TRUE(isTold());
    handleEvents();
    EXPECT_LT(window().minimumSizeHint().width(), before + 300);
}

TEST_F(StepNotice, AMacroIsNoSurprise) {
    const BoxAnswers answers({"Ja"});
    run("editor.abr.Click('mnuRecipeDelete')");
    EXPECT_FALSE(isTold());
}

TEST_F(StepNotice, TheProjectIsCopiedBeforeItsFirstChange) {
    EXPECT_EQ(copies(), Texts{});
    const Texts before = stored(file_, 1);
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    ASSERT_EQ(copies().size(), 1U);
    const QString copy = QFileInfo(file_).dir().filePath(QString::fromStdString(copies()[0]));
    EXPECT_TRUE(copy.startsWith(file_ + QStringLiteral(".20")));
    EXPECT_EQ(stored(copy, 1), before);
    EXPECT_EQ(stored(file_, 1)[0], "Neu");
}

TEST_F(StepNotice, NoCopyIsKeptWhenTheUserWantsNone) {
    ASSERT_TRUE(action("actionDailyCopies").isChecked());
    action("actionDailyCopies").trigger();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(stored(file_, 1)[0], "Neu");
    EXPECT_EQ(copies(), Texts{});
    quit();
    start();
    EXPECT_FALSE(action("actionDailyCopies").isChecked());
}

TEST_F(StepNotice, ACopyThatCannotBeKeptIsToldAndStopsNothing) {
    const QString copy = file_ + QStringLiteral(".") + QDate::currentDate().toString(Qt::ISODate);
    std::filesystem::create_symlink("nowhere/else", copy.toStdString());
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(stored(file_, 1)[0], "Neu");
    const QString told = window().statusBar()->currentMessage();
    EXPECT_TRUE(told.startsWith("Es wurde keine Kopie des Projekts aufbewahrt: ")) << told.toStdString();
}

}  // namespace
}  // namespace hx::gui
