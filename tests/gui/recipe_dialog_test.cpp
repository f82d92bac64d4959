// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "adapters/qt/choosers/item_dialog.h"
#include "adapters/qt/text.h"
#include "dialogs/frecipe.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

class RecipeDialogTest : public DialogFixture {
  protected:
    std::shared_ptr<dialogs::FRecipe> dialog = std::make_shared<dialogs::FRecipe>(services, texts, help);

    void SetUp() override { variables.list = {{"Linie.Laden", "BOOL", ""}, {"Linie.Faktor", "REAL", "Sollfaktor"}}; }

    template <class W>
    [[nodiscard]] W& widget(const char* name) {
        return find<W>(windowOf(*dialog), name);
    }
    void goToPage(int page) { widget<QTabWidget>("tab").setCurrentIndex(page); }
    /// The names of the controls that the tabulator key visits, from the one with the keyboard on.
    [[nodiscard]] static std::vector<std::string> tabRound() {
        std::vector<std::string> visited;
        const QWidget* first = &focused();
        do {
            visited.push_back(qt::fromQt(focused().objectName()));
            press(Qt::Key_Tab);
        } while (&focused() != first && visited.size() < 40);
        return visited;
    }
};

TEST_F(RecipeDialogTest, TypedTextsReachTheFields) {
    showDuring(*dialog, [this](QWidget&) {
        EXPECT_EQ(focused().objectName(), "txtName");
        type(focused(), QString::fromUtf8("Süßmost"));
        auto& path = widget<QComboBox>("cboFilePath");
        path.setFocus();
        type(focused(), "<Pro");
        EXPECT_EQ(dialog->cboFilePath->text(), "<Pro") << "nothing is completed behind the back of the dialog";
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_EQ(dialog->txtName->text(), "Süßmost");
    EXPECT_EQ(dialog->cboFilePath->text(), "<ProjectDir>");
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(RecipeDialogTest, EnterIsOkEverywhere) {
    for (const char* name : {"txtComment", "cmdChooseItem(0)", "cmdCancel", "chkEnabled"}) {
        showDuring(*dialog, [&](QWidget&) {
            widget<QWidget>(name).setFocus();
            press(Qt::Key_Return);
            EXPECT_FALSE(dialog->visible()) << name;
        });
        EXPECT_FALSE(dialog->cancelled()) << name;
        dialog->setCancelled(true);
    }
}

TEST_F(RecipeDialogTest, EnterDoesNothingWhileOkIsDisabled) {
    dialog->cmdOk->setEnabled(false);
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Return);
        EXPECT_TRUE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(RecipeDialogTest, EscapeCancelAndTheFrameCancel) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
    dialog->setCancelled(false);
    showDuring(*dialog, [this](QWidget&) { widget<QPushButton>("cmdCancel").click(); });
    EXPECT_TRUE(dialog->cancelled());
    showDuring(*dialog, [this](QWidget& window) {
        type(focused(), "kept");
        window.close();
        EXPECT_FALSE(dialog->loaded());
    });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_EQ(dialog->txtName->text(), "kept");
}

TEST_F(RecipeDialogTest, TheTabulatorVisitsTheControlsOfTheShownPageOnly) {
    dialog->optRecipeAbsrel[1]->setValue(true);
    showDuring(*dialog, [this](QWidget&) {
        EXPECT_EQ(tabRound(), (std::vector<std::string>{"txtName", "txtRecipeName", "cmdChooseItem(0)",
                                                        "txtDescription", "cmdChooseItem(1)", "cboFilePath",
                                                        "cmdChoosePath", "txtFileExtension", "txtComment", "chkEnabled",
                                                        "cmdOk", "cmdCancel", "cmdHelp", "qt_tabwidget_tabbar"}));
        goToPage(1);
        widget<QLineEdit>("txtVarLoad").setFocus();
        EXPECT_EQ(tabRound(),
                  (std::vector<std::string>{
                      "txtVarLoad", "cmdChooseItem(2)", "txtVarSave", "cmdChooseItem(3)", "txtVarRead",
                      "cmdChooseItem(4)", "txtVarWrite", "cmdChooseItem(5)", "optRecipeAbsrel(1)", "txtStandardValue",
                      "txtVarSetValue", "cmdChooseItem(6)", "cmdOk", "cmdCancel", "cmdHelp", "qt_tabwidget_tabbar"}));
        goToPage(2);
        widget<QCheckBox>("chkWriteThru").setFocus();
        EXPECT_EQ(tabRound(),
                  (std::vector<std::string>{"chkWriteThru", "chkSaveThru", "chkSaveSubRecipes", "chkSaveChanges",
                                            "chkCryptEngine", "cmdOk", "cmdCancel", "cmdHelp", "qt_tabwidget_tabbar"}));
        EXPECT_FALSE(dialog->txtName->tabStop());
        EXPECT_TRUE(dialog->chkWriteThru->tabStop());
    });
}

TEST_F(RecipeDialogTest, ThePagesAreReachedByKeyboard) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(dialog->tab->tab(), 1);
        EXPECT_EQ(focused().objectName(), "txtVarLoad");
        press(Qt::Key_F1);
        EXPECT_EQ(host.record.help.size(), 1U);
        widget<QTabWidget>("tab").tabBar()->setFocus();
        press(Qt::Key_Right);
        EXPECT_EQ(dialog->tab->tab(), 2);
        EXPECT_TRUE(widget<QCheckBox>("chkCryptEngine").isVisible());
        EXPECT_FALSE(widget<QLineEdit>("txtName").isVisible());
    });
}

TEST_F(RecipeDialogTest, CtrlTabTurnsThePagesFromEveryControl) {
    showDuring(*dialog, [this](QWidget& window) {
        int tried = 0;
        for (int page = 0; page < 3; ++page) {
            for (QWidget* control : window.findChildren<QWidget*>()) {
                goToPage(page);
                handleEvents();
                if (!control->isVisible() || !control->isEnabled() || control->focusPolicy() == Qt::NoFocus) continue;
                control->setFocus();
                press(Qt::Key_Tab, Qt::ControlModifier);
                EXPECT_EQ(dialog->tab->tab(), (page + 1) % 3) << qt::fromQt(control->objectName());
                goToPage(page);
                control->setFocus();
                press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
                EXPECT_EQ(dialog->tab->tab(), (page + 2) % 3) << qt::fromQt(control->objectName());
                ++tried;
            }
        }
        EXPECT_GT(tried, 35);
    });
}

TEST_F(RecipeDialogTest, TheKeysOfTheDialogWorkOnTheTabsToo) {
    showDuring(*dialog, [this](QWidget&) {
        auto& bar = *widget<QTabWidget>("tab").tabBar();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(2).center());
        EXPECT_EQ(dialog->tab->tab(), 2);
        EXPECT_EQ(&focused(), &bar);
        press(Qt::Key_F1);
        EXPECT_EQ(host.record.help.size(), 1U);
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(RecipeDialogTest, MnemonicsActOnTheShownPage) {
    showDuring(*dialog, [this](QWidget&) {
        pressMnemonic(Qt::Key_A);
        EXPECT_EQ(dialog->chkEnabled->value(), forms::CheckState::checked);
        goToPage(1);
        pressMnemonic(Qt::Key_A);
        EXPECT_EQ(dialog->chkEnabled->value(), forms::CheckState::checked);
    });
}

TEST_F(RecipeDialogTest, AThirdCharacterOfTheExtensionIsCut) {
    showDuring(*dialog, [this](QWidget&) {
        auto& field = widget<QLineEdit>("txtFileExtension");
        field.setFocus();
        type(field, "rcp");
        EXPECT_EQ(field.text(), "rc");
        EXPECT_EQ(field.cursorPosition(), 2);
    });
    EXPECT_EQ(dialog->txtFileExtension->text(), "rc");
}

TEST_F(RecipeDialogTest, AbsoluteGreysTheFieldsAndRelativeOpensThem) {
    dialog->txtStandardValue->setText("0");
    dialog->optRecipeAbsrel[0]->setValue(true);
    showDuring(*dialog, [this](QWidget&) {
        goToPage(1);
        auto& factor = widget<QLineEdit>("txtStandardValue");
        const QColor face = factor.palette().color(QPalette::Disabled, QPalette::Base);
        EXPECT_FALSE(factor.isEnabled());
        EXPECT_EQ(face, QApplication::palette().color(QPalette::Button));
        widget<QRadioButton>("optRecipeAbsrel(1)").click();
        EXPECT_EQ(factor.text(), "1");
        EXPECT_TRUE(factor.isEnabled());
        EXPECT_EQ(factor.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
        widget<QLineEdit>("txtVarSetValue").setFocus();
        type(focused(), "Linie.Faktor");
        widget<QRadioButton>("optRecipeAbsrel(1)").setFocus();
        press(Qt::Key_Up);
        EXPECT_TRUE(dialog->optRecipeAbsrel[0]->value());
        EXPECT_EQ(factor.text(), "0");
        EXPECT_EQ(widget<QLineEdit>("txtVarSetValue").text(), "");
        EXPECT_EQ(factor.palette().color(QPalette::Disabled, QPalette::Base), face);
    });
}

TEST_F(RecipeDialogTest, AChosenVariableReplacesTheTextACancelledChoiceDoesNot) {
    dialog->txtVarLoad->setText("Linie.Laden");
    showDuring(*dialog, [this](QWidget&) {
        goToPage(1);
        auto& button = widget<QPushButton>("cmdChooseItem(2)");
        button.setFocus();
        inNextModal<qt::ItemDialog>([](qt::ItemDialog& choice) {
            EXPECT_EQ(choice.selected(), "Linie.Laden");
            QTest::keyClick(&choice, Qt::Key_Escape);
        });
        press(Qt::Key_Space);
        EXPECT_EQ(dialog->txtVarLoad->text(), "Linie.Laden");
        inNextModal<qt::ItemDialog>([](qt::ItemDialog& choice) {
            auto& search = find<QLineEdit>(choice, "itemSearch");
            type(search, "faktor");
            QTest::keyClick(&search, Qt::Key_Return);
        });
        button.click();
        EXPECT_EQ(widget<QLineEdit>("txtVarLoad").text(), "Linie.Faktor");
        EXPECT_EQ(dialog->txtVarSave->text(), "");
    });
}

TEST_F(RecipeDialogTest, VariablesThatCannotBeReadAreSaidAndTheFieldStays) {
    variables.error = automation::Error(automation::errFail, "no list");
    dialog->txtRecipeName->setText("kept");
    showDuring(*dialog, [this](QWidget&) {
        const BoxAnswers answers({"OK"});
        widget<QPushButton>("cmdChooseItem(0)").click();
        ASSERT_EQ(answers.shown().size(), 1U);
        EXPECT_EQ(answers.shown()[0].title, "FRecipe");
        EXPECT_NE(answers.shown()[0].text.find("no list"), std::string::npos);
    });
    EXPECT_EQ(dialog->txtRecipeName->text(), "kept");
}

TEST_F(RecipeDialogTest, AFolderOfTheProjectIsChosenWithItsPlaceholder) {
    QDir(project.path()).mkpath("Rezepte/Saft");
    dialog->cboFilePath->setText("<ProjectDir>\\Rezepte");
    showDuring(*dialog, [this](QWidget&) {
        inNextModal<QFileDialog>([this](QFileDialog& choice) {
            EXPECT_EQ(choice.directory().path(), project.path() + "/Rezepte");
            choice.setDirectory(project.path() + "/Rezepte/Saft");
            find<QLineEdit>(choice, "fileNameEdit").setText(project.path() + "/Rezepte/Saft");
            QMetaObject::invokeMethod(&choice, "accept");
        });
        widget<QPushButton>("cmdChoosePath").click();
        EXPECT_EQ(widget<QComboBox>("cboFilePath").currentText(), "<ProjectDir>\\Rezepte\\Saft");
        inNextModal<QFileDialog>([](QFileDialog& choice) { choice.reject(); });
        widget<QPushButton>("cmdChoosePath").click();
    });
    EXPECT_EQ(dialog->cboFilePath->text(), "<ProjectDir>\\Rezepte\\Saft");
}

TEST_F(RecipeDialogTest, HelpAndF1OpenTheHelpOfTheDialog) {
    showDuring(*dialog, [](QWidget& window) {
        press(Qt::Key_F1);
        find<QPushButton>(window, "cmdHelp").click();
    });
    ASSERT_EQ(host.record.help.size(), 2U);
    EXPECT_EQ(host.record.help[0].context, resources::help_context::recipeDialog);
    EXPECT_EQ(host.record.help[1].context, resources::help_context::recipeDialog);
}

TEST_F(RecipeDialogTest, NothingIsCutInEitherLanguageOnAnyPage) {
    for (const bool english : {false, true}) {
        if (english) useEnglish();
        for (const double points : {8.25, 14.0}) {
            const auto shown = std::make_shared<dialogs::FRecipe>(services, texts, help);
            shown->font().setSize(points);
            for (const auto& control : shown->controls()) control->font().setSize(points);
            showDuring(*shown, [&](QWidget& window) {
                EXPECT_EQ(window.windowTitle(), english ? "Recipe Definition" : "Rezeptdefinition");
                for (int page = 0; page < 3; ++page) {
                    find<QTabWidget>(window, "tab").setCurrentIndex(page);
                    handleEvents();
                    EXPECT_EQ(cutTexts(window), std::vector<std::string>()) << points << " points, page " << page;
                }
            });
        }
    }
}

TEST_F(RecipeDialogTest, EachFieldHasANameForScreenReaders) {
    showDuring(*dialog, [this](QWidget&) {
        EXPECT_EQ(widget<QLineEdit>("txtName").accessibleName(), "Name");
        EXPECT_EQ(widget<QComboBox>("cboFilePath").accessibleName(), "Rezeptdateipfad");
        EXPECT_EQ(widget<QPushButton>("cmdChooseItem(6)").accessibleName(), "Sollfaktorvariable auswählen");
        EXPECT_EQ(widget<QPushButton>("cmdChoosePath").accessibleName(), "Rezeptdateipfad auswählen");
    });
}

}  // namespace
}  // namespace hx::gui
