// SPDX-License-Identifier: MIT
#include <QAction>
#include <QLabel>
#include <QTest>

#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

/// What the status line says of the place where the user is.
class StudioStatus : public StudioTest {
  protected:
    [[nodiscard]] std::string said() {
        handleEvents();
        QStringList texts;
        for (const char* name : {"statusRecipe", "statusRows", "statusStored"}) {
            const auto& label = find<QLabel>(window(), name);
            EXPECT_EQ(label.isVisible(), !label.text().isEmpty());
            texts << label.text();
        }
        return texts.join('|').toStdString();
    }
};

TEST_F(StudioStatus, NamesRecipeRowsAndMarkedOnes) {
    start();
    EXPECT_EQ(said(), "||");
    open(makeProject());
    EXPECT_EQ(said(), "||Alles gespeichert");
    click("Rezepte");
    EXPECT_EQ(said(), "||Alles gespeichert");
    click("Rezepte/Limonade");
    EXPECT_EQ(said(), "Limonade|2 Zeilen|Alles gespeichert");
    click("Rezepte/Apfelschorle");
    EXPECT_EQ(said(), "Apfelschorle|1 Zeile|Alles gespeichert");
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    EXPECT_EQ(said(), "Meyer's Bräu|2 Zeilen|Alles gespeichert");
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(said(), "Meyer's Bräu|2 Zeilen, 1 markiert|Alles gespeichert");
    find<QAction>(window(), "actionEnglish").trigger();
    EXPECT_EQ(said(), "Meyer's Bräu|2 rows|All stored");
    window().closeProject();
    EXPECT_EQ(said(), "||");
}

TEST_F(StudioStatus, TellsWhetherAllIsStored) {
    startAtMembers();
    typeInCell(0, "Variable", "Neu");
    EXPECT_EQ(said(), "Limonade|2 Zeilen|Zeile noch nicht gespeichert");
    QTest::keyClick(&find<QLineEdit>(grid(), "cellEditor"), Qt::Key_Return);
    EXPECT_EQ(said(), "Limonade|2 Zeilen|Zeile noch nicht gespeichert");
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(said(), "Limonade|2 Zeilen|Alles gespeichert, Änderungen: 1");
    find<QAction>(window(), "actionUndo").trigger();
    EXPECT_EQ(said(), "Limonade|2 Zeilen|Alles gespeichert");
}

}  // namespace
}  // namespace hx::gui
