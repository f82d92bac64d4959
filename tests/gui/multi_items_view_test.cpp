// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "adapters/qt/text.h"
#include "dialogs/fmulti_select_items.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

using Names = std::vector<std::string>;

class MultiItemsViewTest : public DialogFixture {
  protected:
    std::shared_ptr<dialogs::FMultiSelectItems> dialog = std::make_shared<dialogs::FMultiSelectItems>(services, help);

    void SetUp() override {
        variables.list = {{"Tank.Füllstand", "REAL", "Höhe"},
                          {"Tank.Druck", "REAL", "bar"},
                          {"Mischer.Ein", "BOOL", "läuft"},
                          {"Mischer.Drehzahl", "REAL", "1/min"}};
    }
    [[nodiscard]] QTableView& list() { return find<QTableView>(windowOf(*dialog), "hxMI.list"); }
    [[nodiscard]] QLineEdit& searchField() { return find<QLineEdit>(windowOf(*dialog), "hxMI.search"); }
    [[nodiscard]] std::string count() { return qt::fromQt(find<QLabel>(windowOf(*dialog), "hxMI.count").text()); }
    [[nodiscard]] Names shown() {
        Names names;
        for (int row = 0; row < list().model()->rowCount(); ++row) names.push_back(text(row, 0));
        return names;
    }
    [[nodiscard]] std::string text(int row, int column) {
        return qt::fromQt(list().model()->index(row, column).data().toString());
    }
    [[nodiscard]] bool checked(int row) {
        return list().model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    [[nodiscard]] Names selected() { return dialog->hxMI->selectedItems().value_or(Names()); }
    void search(const char* words) {
        searchField().selectAll();
        QTest::keyClick(&searchField(), Qt::Key_Delete);
        type(searchField(), QString::fromUtf8(words));
    }
};

TEST_F(MultiItemsViewTest, ShowsTheVariablesWithTypeCommentAndCheckMarks) {
    dialog->hxMI->setSelectedItems(Names{"mischer.ein"});
    showDuring(*dialog, [this](QWidget&) {
        EXPECT_EQ(shown(), (Names{"Tank.Füllstand", "Tank.Druck", "Mischer.Ein", "Mischer.Drehzahl"}));
        EXPECT_EQ(text(1, 1), "REAL");
        EXPECT_EQ(text(1, 2), "bar");
        EXPECT_FALSE(checked(1));
        EXPECT_TRUE(checked(2));
        EXPECT_EQ(count(), "4 von 4, 1 ausgewählt");
    });
    EXPECT_EQ(selected(), Names{"mischer.ein"});
}

TEST_F(MultiItemsViewTest, WhatIsTypedFiltersAtOnce) {
    showDuring(*dialog, [this](QWidget&) {
        EXPECT_EQ(&focused(), &searchField());
        search("REAL -bar");
        EXPECT_EQ(shown(), (Names{"Tank.Füllstand", "Mischer.Drehzahl"}));
        EXPECT_EQ(count(), "2 von 4, 0 ausgewählt");
        search("HÖHE");
        EXPECT_EQ(shown(), Names{"Tank.Füllstand"});
        search("");
        EXPECT_EQ(shown().size(), 4U);
    });
}

TEST_F(MultiItemsViewTest, SpaceTogglesAllSelectedRowsAsTheCurrentOne) {
    dialog->hxMI->setSelectedItems(Names{"Tank.Druck"});
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Down);
        EXPECT_EQ(&focused(), &list());
        press(Qt::Key_Down, Qt::ShiftModifier);
        press(Qt::Key_Down, Qt::ShiftModifier);
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), (Names{"Tank.Druck", "Tank.Füllstand", "Mischer.Ein"}));
        EXPECT_EQ(count(), "4 von 4, 3 ausgewählt");
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), Names());
        EXPECT_EQ(dialog->hxMI->selectedItems(), std::nullopt);
    });
}

TEST_F(MultiItemsViewTest, SpaceTakesTheCurrentRowAloneWhenItIsNotSelected) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Down);
        press(Qt::Key_Down, Qt::ControlModifier);
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), Names{shown()[1]});
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), Names());
        press(Qt::Key_Down, Qt::ControlModifier);
        press(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(selected(), Names()) << "Ctrl+Space selects the row";
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), (Names{shown()[0], shown()[2]}));
    });
}

TEST_F(MultiItemsViewTest, AllRowsThatAreFoundCanBeCheckedTogether) {
    showDuring(*dialog, [this](QWidget&) {
        search("tank");
        press(Qt::Key_Down);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), (Names{"Tank.Füllstand", "Tank.Druck"}));
    });
}

TEST_F(MultiItemsViewTest, AClickOnTheCheckMarkTogglesIt) {
    showDuring(*dialog, [this](QWidget&) {
        const QRect row = list().visualRect(list().model()->index(2, 0));
        const QPoint mark(row.left() + 10, row.center().y());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, mark);
        EXPECT_EQ(selected(), Names{"Mischer.Ein"});
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, mark);
        EXPECT_EQ(selected(), Names());
    });
}

TEST_F(MultiItemsViewTest, OnlyTheCheckedOnesCanBeShown) {
    dialog->hxMI->setSelectedItems(Names{"Tank.Druck", "Mischer.Ein"});
    showDuring(*dialog, [this](QWidget& window) {
        pressMnemonic(Qt::Key_N);
        EXPECT_TRUE(find<QCheckBox>(window, "hxMI.onlyChecked").isChecked());
        EXPECT_EQ(shown(), (Names{"Tank.Druck", "Mischer.Ein"}));
        EXPECT_EQ(count(), "2 von 4, 2 ausgewählt");
        search("läuft");
        EXPECT_EQ(shown(), Names{"Mischer.Ein"});
        list().setCurrentIndex(list().model()->index(0, 0));
        list().setFocus();
        press(Qt::Key_Space);
        EXPECT_EQ(shown(), Names{"Mischer.Ein"}) << "stays until the next search, so that it can be checked again";
        search("");
        EXPECT_EQ(shown(), Names{"Tank.Druck"});
    });
}

TEST_F(MultiItemsViewTest, ACheckedNameThatIsNoVariableAnyMoreIsShownAsMissingAndStays) {
    dialog->hxMI->setSelectedItems(Names{"Alt.Weg", "Tank.Druck"});
    showDuring(*dialog, [this](QWidget& window) {
        ASSERT_EQ(shown().front(), "Alt.Weg");
        EXPECT_TRUE(checked(0));
        EXPECT_EQ(text(0, 2), "fehlt in der Variablenliste");
        EXPECT_TRUE(list().model()->index(0, 0).data(Qt::FontRole).value<QFont>().italic());
        EXPECT_EQ(count(), "5 von 5, 2 ausgewählt, davon 1 nicht in der Variablenliste");
        search("fehlt");
        EXPECT_EQ(shown(), Names{"Alt.Weg"});
        find<QPushButton>(window, "cmdOk").click();
    });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(selected(), (Names{"Alt.Weg", "Tank.Druck"}));
}

TEST_F(MultiItemsViewTest, AMissingNameThatIsUncheckedCanBeCheckedAgain) {
    dialog->hxMI->setSelectedItems(Names{"Alt.Weg"});
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), Names());
        EXPECT_EQ(count(), "5 von 5, 0 ausgewählt");
        EXPECT_EQ(shown().front(), "Alt.Weg");
        press(Qt::Key_Space);
        EXPECT_EQ(selected(), Names{"Alt.Weg"});
    });
}

TEST_F(MultiItemsViewTest, AMissingNameIsShownOnceAlsoWhenItIsSelectedTwice) {
    dialog->hxMI->setSelectedItems(Names{"Alt.Weg", "alt.weg"});
    showDuring(*dialog, [this](QWidget&) { EXPECT_EQ(shown().size(), 5U); });
    EXPECT_EQ(selected(), (Names{"Alt.Weg", "alt.weg"}));
}

TEST_F(MultiItemsViewTest, ASelectionThatComesWhileItIsShownIsFollowed) {
    showDuring(*dialog, [this](QWidget&) {
        dialog->hxMI->setSelectedItems(Names{"Neu.Weg", "Tank.Druck"});
        EXPECT_EQ(shown().front(), "Neu.Weg");
        EXPECT_TRUE(checked(0));
        EXPECT_TRUE(checked(2));
        EXPECT_EQ(count(), "5 von 5, 2 ausgewählt, davon 1 nicht in der Variablenliste");
    });
}

TEST_F(MultiItemsViewTest, LettersTypedInTheListGoToTheSearch) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Down);
        type(list(), "misch");
        EXPECT_EQ(&focused(), &searchField());
        EXPECT_EQ(searchField().text(), "misch");
        EXPECT_EQ(shown(), (Names{"Mischer.Ein", "Mischer.Drehzahl"}));
    });
}

TEST_F(MultiItemsViewTest, TheCurrentRowStaysCurrentWhileItIsFound) {
    showDuring(*dialog, [this](QWidget&) {
        list().setCurrentIndex(list().model()->index(3, 0));
        search("mischer");
        EXPECT_EQ(list().currentIndex().data().toString(), "Mischer.Drehzahl");
        search("tank");
        EXPECT_FALSE(list().currentIndex().isValid());
    });
}

TEST_F(MultiItemsViewTest, AnEmptyListOfVariablesIsSaid) {
    variables.list.clear();
    showDuring(*dialog, [this](QWidget&) { EXPECT_EQ(count(), "Die Variablenliste des Projekts ist leer."); });
}

TEST_F(MultiItemsViewTest, VariablesThatCannotBeReadAreAnErrorOfTheOpeningAndLeaveNothing) {
    variables.error = automation::Error(automation::errFail, "no list");
    EXPECT_THROW(dialog->load(), automation::Error);
    EXPECT_FALSE(dialog->loaded());
    variables.error.reset();
    showDuring(*dialog, [this](QWidget&) { EXPECT_EQ(shown().size(), 4U); });
}

TEST_F(MultiItemsViewTest, TheTabKeyGoesFromTheSearchToTheListAndTheButtons) {
    showDuring(*dialog, [](QWidget&) {
        std::vector<std::string> visited;
        for (int i = 0; i < 6; ++i) {
            visited.push_back(focused().objectName().toStdString());
            press(Qt::Key_Tab);
        }
        EXPECT_EQ(visited, (Names{"hxMI.search", "hxMI.onlyChecked", "hxMI.list", "cmdOk", "cmdCancel", "cmdHelp"}));
        EXPECT_EQ(focused().objectName(), "hxMI.search");
    });
}

TEST_F(MultiItemsViewTest, EnterIsOkAndEscapeIsCancelAlsoInTheList) {
    dialog->setCancelled(true);
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(selected(), Names{"Tank.Füllstand"});
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_EQ(selected(), Names{"Tank.Füllstand"});
}

TEST_F(MultiItemsViewTest, ClosingByTheFrameCountsAsOk) {
    showDuring(*dialog, [this](QWidget& window) {
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        window.close();
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->loaded());
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(selected(), Names{"Tank.Füllstand"});
}

TEST_F(MultiItemsViewTest, F1AndTheButtonOpenTheHelpOfTheDialog) {
    showDuring(*dialog, [this](QWidget& window) {
        press(Qt::Key_F1);
        ASSERT_EQ(host.record.help.size(), 1U);
        EXPECT_EQ(host.record.help[0].context, resources::help_context::itemsDialog);
        find<QPushButton>(window, "cmdHelp").click();
        ASSERT_EQ(host.record.help.size(), 2U);
        EXPECT_EQ(host.record.help[1].context, resources::help_context::itemsDialog);
    });
}

TEST_F(MultiItemsViewTest, TheListGrowsWithTheDialog) {
    showDuring(*dialog, [this](QWidget& window) {
        const int before = list().height();
        window.resize(window.width() + 50, window.height() + 100);
        handleEvents();
        EXPECT_EQ(list().height(), before + 100);
        EXPECT_EQ(cutTexts(window), Names());
    });
}

TEST_F(MultiItemsViewTest, TheListSpeaksTheStudiosLanguageTheDialogGerman) {
    useEnglish();
    dialog->hxMI->setSelectedItems(Names{"Alt.Weg"});
    showDuring(*dialog, [this](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "Rezeptelemente");
        EXPECT_EQ(text(0, 2), "missing in the variable list");
        EXPECT_EQ(count(), "5 of 5, 1 checked, 1 of them not in the variable list");
        EXPECT_EQ(find<QPushButton>(window, "cmdCancel").text(), "Abbrechen");
    });
}

}  // namespace
}  // namespace hx::gui
