// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "gui/find_fixture.h"
#include "studio/paste_dialog.h"
#include "studio/series_dialog.h"

namespace hx::gui {
namespace {

/// The menu "Recipe" of the studio.
class StudioRecipes : public StudioFind {
  protected:
    void select(const QStringList& paths) {
        click(paths.first());
        for (const QString& path : paths.mid(1)) {
            QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::ControlModifier,
                              tree().visualRect(node(path)).center());
            handleEvents();
        }
    }
    void trigger(const char* name) {
        ASSERT_TRUE(action(name).isEnabled()) << name;
        action(name).trigger();
        handleEvents();
    }
    [[nodiscard]] std::string recipes() {
        QStringList names;
        const QModelIndex root = node("Rezepte");
        for (int row = 0; row < tree().model()->rowCount(root); ++row)
            names << tree().model()->index(row, 0, root).data().toString();
        return names.join('|').toStdString();
    }
    [[nodiscard]] std::string lastStep() { return action("actionUndo").text().toStdString(); }
};

TEST_F(StudioRecipes, DuplicatesTheSelectedRecipesInOneStep) {
    showMembers();
    select({"Rezepte/Limonade", "Rezepte/Apfelschorle"});
    trigger("actionDuplicate");
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu|Limonade(2)|Apfelschorle(2)");
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade(2)"));
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_EQ(lastStep(), "&Rückgängig: 2 Rezepte dupliziert");
    trigger("actionUndo");
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu");
}

TEST_F(StudioRecipes, DuplicatesWithSubRecipes) {
    showMembers();
    select({"Rezepte/Meyer's Bräu"});
    trigger("actionDuplicateAll");
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu|Meyer's Bräu(2)|Limonade(2)|Apfelschorle(2)");
    click("Rezepte/Meyer's Bräu(2)/Unterrezepte");
    EXPECT_EQ(texts("Unterrezept"), (Texts{"Limonade(2)", "Apfelschorle(2)"}));
}

TEST_F(StudioRecipes, DeletesTheSelectedRecipesWhenTheUserSaysSo) {
    showMembers();
    select({"Rezepte/Limonade", "Rezepte/Apfelschorle"});
    {
        const BoxAnswers answers({"Nein"});
        trigger("actionDeleteRecipes");
        ASSERT_EQ(answers.shown().size(), 1U);
        EXPECT_EQ(answers.shown()[0].text, "2 Rezepte mit allen ihren Elementen löschen?");
    }
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu");
    const BoxAnswers answers({"Ja"});
    trigger("actionDeleteRecipes");
    EXPECT_EQ(recipes(), "Meyer's Bräu");
    EXPECT_EQ(stored(file, 1), Texts());
    trigger("actionUndo");
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu");
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(StudioRecipes, CommandsNeedARecipe) {
    showMembers();
    click("Rezepte");
    for (const char* name : {"actionDuplicate", "actionDuplicateAll", "actionDeleteRecipes", "actionReportSelected"})
        EXPECT_FALSE(action(name).isEnabled()) << name;
    EXPECT_TRUE(action("actionSeries").isEnabled());
    window().closeProject();
    EXPECT_FALSE(action("actionSeries").isEnabled());
}

TEST_F(StudioRecipes, ASeriesIsPreviewedAndMadeInOneStep) {
    showMembers();
    const NextModal<studio::SeriesDialog> next([](studio::SeriesDialog& dialog) {
        auto& name = find<QLineEdit>(dialog, "seriesName");
        EXPECT_EQ(name.text(), "Limonade");
        EXPECT_FALSE(find<QPushButton>(dialog, "createSeries").isEnabled());
        EXPECT_EQ(find<QLabel>(dialog, "seriesState").text().toStdString(),
                  "„Limonade“ braucht einen Zahlenbereich wie {1..12}.");
        name.setText("Tank {1..3}");
        auto& variables = find<QPlainTextEdit>(dialog, "seriesVariables");
        EXPECT_EQ(variables.toPlainText(), "Mischer.Zucker\nMischer.Wasser");
        variables.setPlainText("Tank{1..3}.Soll\nMischer.Wasser\n");
        const auto& preview = find<QTreeWidget>(dialog, "seriesPreview");
        ASSERT_EQ(preview.topLevelItemCount(), 3);
        EXPECT_EQ(preview.topLevelItem(2)->text(0), "Tank 3");
        EXPECT_EQ(preview.topLevelItem(2)->child(0)->text(0), "Tank3.Soll");
        find<QPushButton>(dialog, "createSeries").click();
    });
    ASSERT_TRUE(waitUntil([this] { return find<QToolButton>(window(), "problemsCount").isVisible(); }));
    trigger("actionSeries");
    EXPECT_EQ(recipes(), "Limonade|Apfelschorle|Meyer's Bräu|Tank 1|Tank 2|Tank 3");
    EXPECT_EQ(texts("Variable"), (Texts{"Tank1.Soll", "Mischer.Wasser"}));
    EXPECT_EQ(lastStep(), "&Rückgängig: Reihe von 3 Rezepten angelegt");
}

TEST_F(StudioRecipes, CopiesTheMarkedRowsAsTextAndAsATable) {
    showMembers();
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(action("actionCopyRows").isEnabled());
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(0, column("Variable")));
    QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&grid(), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->text().toStdString().substr(0, 14), "Mischer.Zucker");
    EXPECT_EQ(data->text().count('\n'), 2);
    EXPECT_TRUE(data->html().contains("<th>Variable</th>"));
    EXPECT_TRUE(data->html().contains("<td>Mischer.Wasser</td>"));
}

TEST_F(StudioRecipes, KeysInAnOpenCellAndInTheExplorerStayTheirs) {
    showMembers();
    QGuiApplication::clipboard()->setText("wichtig");
    QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "wichtig");
    QLineEdit& cell = typeInCell(0, "Variable", "Neu");
    cell.selectAll();
    QTest::keyClick(&cell, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Neu");
    QGuiApplication::clipboard()->setText("Anders");
    QTest::keyClick(&cell, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cell.text(), "Anders");
}

TEST_F(StudioRecipes, PastedLinesAreShownBeforeTheyAreAdded) {
    showMembers();
    ASSERT_TRUE(waitUntil([this] { return find<QToolButton>(window(), "problemsCount").isVisible(); }));
    QGuiApplication::clipboard()->setText("Mischer.Apfelsaft\tREAL\nmischer.wasser\nUnbekannt\n");
    grid().setFocus();
    const NextModal<studio::PasteDialog> next([](studio::PasteDialog& dialog) {
        const auto& list = find<QTreeWidget>(dialog, "pastedVariables");
        QStringList lines;
        for (int row = 0; row < list.topLevelItemCount(); ++row)
            lines << list.topLevelItem(row)->text(0) + ": " + list.topLevelItem(row)->text(1);
        EXPECT_EQ(lines.join('|').toStdString(),
                  "Mischer.Apfelsaft: wird hinzugefügt|mischer.wasser: ist schon da|Unbekannt: nicht in der Liste");
        EXPECT_EQ(find<QLabel>(dialog, "pasteState").text().toStdString(), "1 von 3 Zeilen werden hinzugefügt.");
        find<QCheckBox>(dialog, "pasteUnknown").click();
        find<QPushButton>(dialog, "addPasted").click();
    });
    QTest::keyClick(&grid(), Qt::Key_V, Qt::ControlModifier);
    handleEvents();
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser", "Mischer.Apfelsaft", "Unbekannt"}));
    EXPECT_EQ(lastStep(), "&Rückgängig: 2 Variablen eingefügt");
    trigger("actionUndo");
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

}  // namespace
}  // namespace hx::gui
