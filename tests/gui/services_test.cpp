// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "adapters/qt/choosers/item_dialog.h"
#include "adapters/qt/help/qt_help_viewer.h"
#include "adapters/qt/screen/qt_item_selection.h"
#include "adapters/qt/screen/qt_path_selection.h"
#include "adapters/qt/text.h"
#include "gui/desktop.h"
#include "studio/studio_host.h"

namespace hx::gui {
namespace {

class FewVariables : public qt::VariableSource {
  public:
    [[nodiscard]] qt::VariableList variables() const override {
        return std::vector<qt::Variable>{
            {"Mischer.Drehzahl", "REAL", "1/min"}, {"Mischer.Ein", "BOOL", "läuft"}, {"Tank.Füllstand", "REAL", ""}};
    }
};

class ServicesTest : public Desktop {
  protected:
    QTemporaryDir folder;
    FewVariables variables;
    qt::QtItemSelection items{variables, windows, wording};

    /// Runs a choice while `action` acts on its dialog.
    std::string choose(const std::string& current, const std::function<void(qt::ItemDialog&)>& action) {
        const NextModal<qt::ItemDialog> next(action);
        return items.choose(0, current);
    }
};

TEST_F(ServicesTest, AVariableIsFoundByTypingAndChosenByEnter) {
    const auto chosen = choose("Mischer.Ein", [](qt::ItemDialog& dialog) {
        EXPECT_EQ(dialog.selected(), "Mischer.Ein");
        auto& search = find<QLineEdit>(dialog, "itemSearch");
        type(search, QString::fromUtf8("füll"));
        EXPECT_EQ(find<QTableView>(dialog, "itemList").model()->rowCount(), 1);
        QTest::keyClick(&search, Qt::Key_Return);
    });
    EXPECT_EQ(chosen, "Tank.Füllstand");
}

TEST_F(ServicesTest, TheChosenVariableStaysChosenWhileItIsFound) {
    const auto chosen = choose("Mischer.Ein", [](qt::ItemDialog& dialog) {
        auto& search = find<QLineEdit>(dialog, "itemSearch");
        type(search, "mischer");
        EXPECT_EQ(dialog.selected(), "Mischer.Ein");
        EXPECT_EQ(find<QLabel>(dialog, "itemCount").text(), "2 von 3");
        type(search, QString::fromUtf8(" -läuft"));
        EXPECT_EQ(dialog.selected(), "Mischer.Drehzahl");
        type(search, " nirgends");
        EXPECT_EQ(dialog.selected(), "");
        QTest::keyClick(&search, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "nothing is chosen, so Enter does nothing";
        search.clear();
        EXPECT_EQ(dialog.selected(), "Mischer.Drehzahl") << "as it was before";
        QTest::keyClick(&search, Qt::Key_Down);
        QTest::keyClick(&search, Qt::Key_Down);
        EXPECT_EQ(dialog.selected(), "Tank.Füllstand");
        QTest::keyClick(&search, Qt::Key_Return);
    });
    EXPECT_EQ(chosen, "Tank.Füllstand");
}

TEST_F(ServicesTest, ACancelledChoiceIsEmpty) {
    EXPECT_EQ(choose("Mischer.Ein", [](qt::ItemDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), "");
}

TEST_F(ServicesTest, AFolderOfTheProjectBeginsWithItsPlaceholder) {
    qt::QtPathSelection folders(windows, wording);
    folders.setProjectFolder("/plant/project");
    EXPECT_EQ(folders.shorten("/plant/project", ""), "<ProjectDir>");
    EXPECT_EQ(folders.shorten("/plant/project2", "<ProjectDir>\\rcp"), QDir::toNativeSeparators("/plant/project2"));
    EXPECT_EQ(folders.expand("<ProjectDir>\\rcp"), "/plant/project/rcp");
    EXPECT_EQ(folders.expand("/elsewhere"), "/elsewhere");
}

TEST_F(ServicesTest, AMissingHelpFileIsSaid) {
    qt::QtHelpViewer help(screen, windows, wording);
    const BoxAnswers answers({"OK"});
    help.showContext(0, "/nowhere\\helpfiles\\Rezeptsystem.chm", 100001);
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text,
              "Die Hilfedatei \"/nowhere\\helpfiles\\Rezeptsystem.chm\" wurde nicht gefunden.");
}

}  // namespace
}  // namespace hx::gui
