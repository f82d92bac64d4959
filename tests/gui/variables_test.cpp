// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <set>

#include "gui/explorer_fixture.h"
#include "gui/variables_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

TEST_F(StudioVariables, AreShownByANodeOfTheirOwnAndMakeRoomForTheEditor) {
    showVariables();
    EXPECT_TRUE(tree().hasFocus());
    EXPECT_EQ(status(), "3 Variablen");
    EXPECT_EQ(documents().activeSubWindow()->windowTitle().toStdString(), "Variablen");
    click("Rezepte/Limonade");
    EXPECT_FALSE(variables().isVisible());
    EXPECT_TRUE(grid().isVisible());
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_TRUE(tree().hasFocus());
    action("actionVariables").trigger();
    EXPECT_TRUE(variables().hasFocus());
    EXPECT_EQ(tree().currentIndex(), node("Variablen"));
    quit();
}

TEST_F(StudioVariables, GetTheKeyboardByADoubleClickOrEnter) {
    showVariables();
    doubleClick("Variablen");
    EXPECT_TRUE(variables().hasFocus());
    click("Rezepte");
    tree().setFocus();
    QTest::keyClick(&tree(), Qt::Key_End);
    while (tree().currentIndex() != node("Variablen")) QTest::keyClick(&tree(), Qt::Key_Up);
    EXPECT_TRUE(tree().hasFocus());
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_TRUE(variables().hasFocus());
}

class ExplorerOwnNode : public ExplorerTest {};

TEST_F(ExplorerOwnNode, IsNoneOfTheAddIns) {
    std::vector<bool> chosen;
    explorer.addOwnNode("OWN", "Variablen", {});
    explorer.ownChosen = [&](bool into) { chosen.push_back(into); };
    handleEvents();
    showTree();
    tree.expandAll();
    addIn.heard.clear();
    click("OWN");
    click("OWN", Qt::RightButton);
    QTest::keyClick(&tree, Qt::Key_Return);
    QTest::keyClick(&tree, Qt::Key_X);
    EXPECT_EQ(addIn.heard, std::vector<std::string>{});
    EXPECT_EQ(chosen.back(), true);
    EXPECT_EQ(chosen.front(), false);
    EXPECT_EQ(explorer.childKeys("", 9), std::vector<std::string>{"RCPE0"});
    EXPECT_EQ(explorer.selectedNode().key, "");
    EXPECT_THROW((void)explorer.eventOf("OWN"), automation::Error);
}

TEST_F(StudioVariables, AreChangedInTheirCells) {
    showVariables();
    typeIn(1, 1, "LREAL");
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|LREAL||1", "Mischer.Wasser|REAL|in Liter|1"}));
    EXPECT_EQ(step(), "&Rückgängig: Variable „Mischer.Apfelsaft“ in der Liste geändert");
    typeIn(1, 2, "trüb");
    EXPECT_TRUE(
        comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|LREAL|trüb|1", "Mischer.Wasser|REAL|in Liter|1"}));
    undo();
    undo();
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Mischer.Wasser|REAL|in Liter|1"}));
}

TEST_F(StudioVariables, AreRenamedInAllRecipesToo) {
    showVariables();
    {
        const BoxAnswers answers({"Ja"});
        typeIn(2, 0, "Wasser.Menge");
        ASSERT_EQ(answers.shown().size(), 1U);
        EXPECT_EQ(answers.shown()[0].text,
                  "Ein Rezept verwendet die Variable „Mischer.Wasser“.\n\nSoll sie auch dort „Wasser.Menge“ heißen?");
    }
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Wasser.Menge|REAL|in Liter|1"}));
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Wasser.Menge"}));
    EXPECT_EQ(step(), "&Rückgängig: Variable „Mischer.Wasser“ umbenannt in „Wasser.Menge“");
    undo();
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Mischer.Wasser|REAL|in Liter|1"}));
}

TEST_F(StudioVariables, AreRenamedInTheListAloneOrNotAtAll) {
    showVariables();
    {
        const BoxAnswers answers({"Abbrechen"});
        typeIn(2, 0, "Wasser");
        EXPECT_EQ(answers.shown().size(), 1U);
    }
    EXPECT_EQ(rows().at(2), "Mischer.Wasser|REAL|in Liter|1");
    {
        const BoxAnswers answers({"Nein"});
        typeIn(2, 0, "Wasser");
    }
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Wasser|REAL|in Liter|0"}));
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    const BoxAnswers told;
    typeIn(2, 0, "datei.limonade");
    ASSERT_EQ(told.shown().size(), 1U);
    EXPECT_EQ(told.shown()[0].text, "„Wasser“ kann nicht „datei.limonade“ werden: diesen Namen gibt es schon.");
}

TEST_F(StudioVariables, AreAdded) {
    showVariables();
    const NextModal<QDialog> next([](QDialog& dialog) {
        auto& name = find<QLineEdit>(dialog, "newName");
        auto& ok = *find<QDialogButtonBox>(dialog, "").button(QDialogButtonBox::Ok);
        EXPECT_FALSE(ok.isEnabled());
        type(name, "mischer.wasser");
        EXPECT_FALSE(ok.isEnabled());
        name.clear();
        type(name, "Band.Tempo");
        type(find<QLineEdit>(dialog, "newType"), "REAL");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QTest::keyClick(&variables(), Qt::Key_Insert);
    EXPECT_TRUE(comeRows({"Band.Tempo|REAL||0", "Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1",
                          "Mischer.Wasser|REAL|in Liter|1"}));
    EXPECT_EQ(variables().currentIndex().row(), 0);
    EXPECT_EQ(step(), "&Rückgängig: Variable „Band.Tempo“ in die Liste aufgenommen");
}

TEST_F(StudioVariables, AreDeletedWhenTheUserKnowsThatTheyAreUsed) {
    showVariables();
    execute("INSERT INTO ThxVariable (Name) VALUES ('Leer')");
    typeIn(1, 1, "INT");
    ASSERT_TRUE(waitUntil([this] { return rows().size() == 4; }));
    select(1, 1);
    QTest::keyClick(&variables(), Qt::Key_Delete);
    EXPECT_TRUE(waitUntil([this] { return rows().size() == 3; }));
    const BoxAnswers answers({"Nein", "Ja"});
    select(0, 1);
    QTest::keyClick(&variables(), Qt::Key_Delete);
    EXPECT_EQ(rows().size(), 3U);
    QTest::keyClick(&variables(), Qt::Key_Delete);
    EXPECT_TRUE(comeRows({"Mischer.Wasser|REAL|in Liter|1"}));
    ASSERT_EQ(answers.shown().size(), 2U);
    EXPECT_EQ(answers.shown()[0].text,
              "Von diesen 2 Variablen werden 2 in Rezepten verwendet.\n\nTrotzdem aus der Liste löschen?");
    EXPECT_EQ(step(), "&Rückgängig: 2 Variablen aus der Liste gelöscht");
    undo();
    EXPECT_TRUE(waitUntil([this] { return rows().size() == 3; }));
}

TEST_F(StudioVariables, AreFilteredAndOrdered) {
    showVariables();
    auto& names = find<QLineEdit>(window(), "filterName");
    QTest::keyClick(&variables(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(names.hasFocus());
    type(names, "mischer");
    EXPECT_EQ(status(), "2 von 3");
    type(find<QLineEdit>(window(), "filterComment"), "-liter");
    EXPECT_EQ(rows(), Texts{"Mischer.Apfelsaft|REAL||1"});
    QTest::keyClick(&names, Qt::Key_Escape);
    EXPECT_EQ(rows(), (Texts{"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1"}));
    find<QLineEdit>(window(), "filterComment").clear();
    type(find<QLineEdit>(window(), "filterUses"), "0");
    EXPECT_EQ(rows(), Texts{});
    find<QLineEdit>(window(), "filterUses").clear();
    variables().sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(rows().front(), "Datei.Limonade|STRING||1");
    variables().sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(rows().front(), "Mischer.Wasser|REAL|in Liter|1");
}

TEST_F(StudioVariables, AreCopiedAndPastedAsATable) {
    showVariables();
    select(1, 2);
    QTest::keyClick(&variables(), Qt::Key_C, Qt::ControlModifier);
    QClipboard& clipboard = *QApplication::clipboard();
    EXPECT_EQ(clipboard.text().toStdString(), "Mischer.Apfelsaft\tREAL\t\nMischer.Wasser\tREAL\tin Liter\n");
    EXPECT_NE(clipboard.mimeData()->html().indexOf("<td>Mischer.Wasser</td><td>REAL</td><td>in Liter</td>"), -1);
    clipboard.setText("Neu\tINT\tfrisch\nmischer.wasser\tINT\tin Liter\n");
    QTest::keyClick(&variables(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Mischer.Wasser|INT|in Liter|1",
                          "Neu|INT|frisch|0"}));
    EXPECT_EQ(window().statusBar()->currentMessage().toStdString(), "Variablen: 1 neu, 1 geändert, 0 unverändert");
    undo();
    EXPECT_TRUE(waitUntil([this] { return rows().size() == 3; }));
    const BoxAnswers told;
    clipboard.setText("A\tINT\nA\tREAL\n");
    QTest::keyClick(&variables(), Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(told.shown().size(), 1U);
    EXPECT_EQ(told.shown()[0].text,
              "Zwischenablage, Zeile 2: „Name“: \"A\" steht auch in Zeile 1, mit anderem Typ oder Kommentar");
    EXPECT_EQ(rows().size(), 3U);
}

TEST_F(StudioVariables, TellWhereTheyAreUsed) {
    showVariables();
    select(2, 2);
    QTest::keyClick(&variables(), Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_TRUE(comes("whereUsedList", {"Rezepte, die sie enthalten (1)", "  Limonade|Variable",
                                        "Über Unterrezepte (1)", "  Meyer's Bräu|über Limonade"}));
}

// What is being typed is the user's, whatever comes meanwhile.
TEST_F(StudioVariables, KeepWhatIsBeingTyped) {
    showVariables();
    QLineEdit& line = typing(1, 2, "trüb");
    execute("INSERT INTO ThxVariable (Name) VALUES ('Mischer.Zucker')");  // which was a problem
    auto& problems = find<QAbstractButton>(window(), "problemsCount");
    const QString before = problems.text();
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&window(), &activation);
    ASSERT_TRUE(waitUntil([&] { return problems.text() != before; }));
    EXPECT_EQ(line.text().toStdString(), "trüb");
    window().closeProject();
    handleEvents();
    sqlite::Database database(qt::fromQt(file));
    sqlite::Statement comment(database, "SELECT Comment FROM ThxVariable WHERE Name = 'Mischer.Apfelsaft'");
    ASSERT_TRUE(comment.step());
    EXPECT_EQ(comment.text(0), "trüb");
}

TEST_F(StudioVariables, SpeakBothLanguages) {
    showVariables();
    action("actionEnglish").trigger();
    handleEvents();
    EXPECT_TRUE(node("Variables").isValid());
    EXPECT_EQ(variables().accessibleName().toStdString(), "Variable list");
    EXPECT_EQ(variables().model()->headerData(3, Qt::Horizontal).toString().toStdString(), "Recipes");
    EXPECT_EQ(find<QLineEdit>(window(), "filterType").accessibleName().toStdString(), "Filter: Type");
    EXPECT_EQ(status(), "3 variables");
}

TEST_F(StudioVariables, HaveAMenuWhoseKeysAreUnique) {
    showVariables();
    for (const char* language : {"actionEnglish", "actionGerman"}) {
        action(language).trigger();
        const auto keysOf = [](const QList<QAction*>& actions) {
            std::multiset<QString> keys;
            for (const QAction* one : actions) {
                const auto at = one->text().indexOf('&');
                if (!one->isSeparator()) keys.insert(at < 0 ? QString() : one->text().mid(at + 1, 1).toLower());
            }
            return keys;
        };
        for (const auto& actions : {window().menuBar()->actions(), find<QMenu>(window(), "menuVariables").actions()}) {
            const auto keys = keysOf(actions);
            EXPECT_EQ(std::set<QString>(keys.begin(), keys.end()).size(), keys.size()) << language;
            EXPECT_FALSE(keys.contains(QString())) << language;
        }
    }
}

}  // namespace
}  // namespace hx::gui
