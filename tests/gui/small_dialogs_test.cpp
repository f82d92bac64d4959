// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include "adapters/qt/choosers/item_dialog.h"
#include "dialogs/fconfig_editor.h"
#include "dialogs/fsub_recipe.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

class SubRecipeDialogTest : public DialogFixture {
  protected:
    std::shared_ptr<dialogs::FSubRecipe> dialog = std::make_shared<dialogs::FSubRecipe>(services, texts, help);

    void SetUp() override {
        variables.list = {{"Linie.Datei", "STRING", ""}};
        for (const char* name : {"Saft", "Schorle", "Tee"}) dialog->cmbChooseRecipe->addItem(name);
    }
};

TEST_F(SubRecipeDialogTest, ARecipeAndAVariableAreChosenByKeyboard) {
    showDuring(*dialog, [this](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "Unterrezept auswählen");
        EXPECT_EQ(focused().objectName(), "cmbChooseRecipe");
        type(focused(), "Sc");
        EXPECT_EQ(dialog->cmbChooseRecipe->text(), "Schorle");
        pressMnemonic(Qt::Key_D);
        EXPECT_EQ(focused().objectName(), "txtVarRecipe");
        type(focused(), "Linie");
        pressMnemonic(Qt::Key_U);
        EXPECT_EQ(focused().objectName(), "cmbChooseRecipe");
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(dialog->cmbChooseRecipe->listIndex(), 1);
    EXPECT_EQ(dialog->txtVarRecipe->text(), "Linie");
}

TEST_F(SubRecipeDialogTest, WhatIsMissingIsSaidAndTheDialogStays) {
    showDuring(*dialog, [this](QWidget&) {
        const BoxAnswers answers({"OK", "OK"});
        press(Qt::Key_Return);
        EXPECT_TRUE(dialog->visible());
        dialog->cmbChooseRecipe->setListIndex(0);
        press(Qt::Key_Return);
        EXPECT_TRUE(dialog->visible());
        ASSERT_EQ(answers.shown().size(), 2U);
        EXPECT_EQ(answers.shown()[0].text, texts.GetResource(511));
        EXPECT_EQ(answers.shown()[1].text, texts.GetResource(510));
        EXPECT_EQ(focused().objectName(), "txtVarRecipe");
    });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(SubRecipeDialogTest, TheChooserFillsTheFileName) {
    showDuring(*dialog, [](QWidget& window) {
        inNextModal<qt::ItemDialog>([](qt::ItemDialog& choice) {
            choice.select("linie.datei");
            QTest::keyClick(&choice, Qt::Key_Return);
        });
        find<QPushButton>(window, "cmdChooseItem").click();
    });
    EXPECT_EQ(dialog->txtVarRecipe->text(), "Linie.Datei");
}

TEST_F(SubRecipeDialogTest, EscapeAndTheFrameCancel) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
    showDuring(*dialog, [this](QWidget& window) {
        window.close();
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(SubRecipeDialogTest, NothingIsCutInEitherLanguage) {
    showDuring(*dialog, [](QWidget& window) { EXPECT_EQ(cutTexts(window), std::vector<std::string>()); });
    useEnglish();
    const auto english = std::make_shared<dialogs::FSubRecipe>(services, texts, help);
    showDuring(*english, [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "Select Sub Recipe");
        EXPECT_EQ(cutTexts(window), std::vector<std::string>());
    });
}

class ConfigDialogTest : public DialogFixture {
  protected:
    std::shared_ptr<dialogs::FConfigEditor> dialog = std::make_shared<dialogs::FConfigEditor>(services, help);

    /// Works on the font dialog that the button opens.
    void chooseFont(QWidget& window, const std::function<void(QFontDialog&)>& action) {
        inNextModal<QFontDialog>(action);
        find<QPushButton>(window, "cmdEditorFont").click();
    }
};

TEST_F(ConfigDialogTest, MnemonicsReachTheBoxesAndTheFont) {
    showDuring(*dialog, [this](QWidget&) {
        pressMnemonic(Qt::Key_L);
        EXPECT_EQ(dialog->chkDelQuestion->value(), forms::CheckState::checked);
        pressMnemonic(Qt::Key_S);
        EXPECT_EQ(dialog->chkShowStatusBar->value(), forms::CheckState::checked);
        pressMnemonic(Qt::Key_A);
        EXPECT_EQ(dialog->chkSaveOnExit->value(), forms::CheckState::checked);
        press(Qt::Key_Space);
        EXPECT_EQ(dialog->chkSaveOnExit->value(), forms::CheckState::unchecked);
        pressMnemonic(Qt::Key_E);
        EXPECT_EQ(focused().objectName(), "txtEditorFont");
        type(focused(), "x");
        EXPECT_EQ(dialog->txtEditorFont->text(), "") << "the name follows from the choice alone";
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(ConfigDialogTest, TheChosenFontIsShownByItsName) {
    showDuring(*dialog, [this](QWidget& window) {
        chooseFont(window, [](QFontDialog& choice) {
            EXPECT_EQ(choice.windowTitle(), "Schriftart auswählen");
            QFont font = choice.currentFont();
            font.setStyleName({});  // else it counts more than the weight
            font.setPointSize(20);
            font.setBold(true);
            font.setUnderline(true);
            choice.setCurrentFont(font);
            choice.accept();
        });
        handleEvents();
        const auto& field = find<QLineEdit>(window, "txtEditorFont");
        EXPECT_EQ(field.text(), QString::fromStdString(dialog->txtEditorFont->font().name()));
        EXPECT_EQ(field.font().pointSizeF(), 20);
        EXPECT_GE(field.height(), field.fontMetrics().height());
        EXPECT_EQ(cutTexts(window), std::vector<std::string>());
    });
    const forms::Font& font = dialog->txtEditorFont->font();
    EXPECT_EQ(font.size(), 20);
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.underline());
}

TEST_F(ConfigDialogTest, AFontThatIsLeftAsItIsKeepsNameAndSize) {
    showDuring(*dialog, [this](QWidget& window) {
        chooseFont(window, [](QFontDialog& choice) { choice.accept(); });
        EXPECT_EQ(dialog->txtEditorFont->font().name(), "Arial");
        EXPECT_EQ(dialog->txtEditorFont->font().size(), 8.25);
        chooseFont(window, [](QFontDialog& choice) { choice.reject(); });
        EXPECT_EQ(dialog->txtEditorFont->font().size(), 8.25);
        EXPECT_EQ(dialog->txtEditorFont->text(), "Arial");
    });
}

TEST_F(ConfigDialogTest, EscapeAndTheFrameCancel) {
    showDuring(*dialog, [this](QWidget&) {
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
    showDuring(*dialog, [this](QWidget& window) {
        window.close();
        EXPECT_FALSE(dialog->visible());
    });
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(ConfigDialogTest, HelpAndF1OpenTheHelpOfTheDialog) {
    showDuring(*dialog, [](QWidget& window) {
        press(Qt::Key_F1);
        pressMnemonic(Qt::Key_H);
        EXPECT_EQ(cutTexts(window), std::vector<std::string>());
    });
    ASSERT_EQ(host.record.help.size(), 2U);
    EXPECT_EQ(host.record.help[1].context, resources::help_context::configurationDialog);
}

class PathSelectionTest : public DialogFixture {};

TEST_F(PathSelectionTest, AFolderInTheProjectHasTheSeparatorsOfTheGivenText) {
    const QString sub = project.path() + "/Rezepte/Saft";
    EXPECT_EQ(folders.shorten(sub, "<ProjectDir>\\x"), "<ProjectDir>\\Rezepte\\Saft");
    EXPECT_EQ(folders.shorten(sub, "<ProjectDir>/x"), "<ProjectDir>/Rezepte/Saft");
    EXPECT_EQ(folders.shorten(sub, "<ProjectDir>"), "<ProjectDir>\\Rezepte\\Saft");
    EXPECT_EQ(folders.shorten(sub, ""), "<ProjectDir>\\Rezepte\\Saft");
}

TEST_F(PathSelectionTest, AFolderElsewhereIsAsTheSystemWritesIt) {
    for (const QString& folder : {QStringLiteral("/elsewhere/x"), project.path() + "2"}) {
        EXPECT_EQ(folders.shorten(folder, "<ProjectDir>\\x"), QDir::toNativeSeparators(folder));
        EXPECT_EQ(folders.shorten(folder, ""), QDir::toNativeSeparators(folder));
    }
}

TEST_F(PathSelectionTest, AFolderOfTheProjectThatIsReachedByALinkIsOneOfTheProject) {
    QTemporaryDir other;
    QDir(project.path()).mkpath("Rezepte");
    ASSERT_TRUE(QFile::link(project.path(), other.filePath("link")));
    EXPECT_EQ(folders.shorten(other.filePath("link/Rezepte"), ""), "<ProjectDir>\\Rezepte");
}

TEST_F(PathSelectionTest, StartsAtTheNearestFolderThatExists) {
    QDir(project.path()).mkpath("Rezepte");
    EXPECT_EQ(folders.startFolder("<projectdir>\\Rezepte"), project.path() + "/Rezepte");
    EXPECT_EQ(folders.startFolder("<ProjectDir>\\Rezepte\\fehlt\\noch"), project.path() + "/Rezepte");
    EXPECT_EQ(folders.startFolder(""), project.path());
    EXPECT_EQ(folders.startFolder("Q:\\Rezepte"), project.path()) << "no such disk";
    folders.setProjectFolder("");
    EXPECT_EQ(folders.startFolder("<ProjectDir>"), QDir::homePath());
}

TEST_F(PathSelectionTest, TheGivenFolderKeepsItsSpellingAndACancelledChoiceItsText) {
    for (const bool accepts : {true, false}) {
        inNextModal<QFileDialog>([&](QFileDialog& choice) {
            EXPECT_EQ(choice.windowTitle(), "Ordner auswählen");
            find<QLineEdit>(choice, "fileNameEdit").setText(project.path());
            accepts ? static_cast<void>(QMetaObject::invokeMethod(&choice, "accept")) : choice.reject();
        });
        EXPECT_EQ(folders.choose(0, "<projectdir>\\"), "<projectdir>\\");
    }
}

}  // namespace
}  // namespace hx::gui
