// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFontDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "gui/desktop.h"

namespace hx::gui {
namespace {

namespace message = forms::message;
using message::Answer;

class ScreenTest : public Desktop {
  protected:
    /// Lets the box's buttons be read, then presses a key.
    Answer ask(std::int32_t style, Qt::Key key, std::vector<std::string>* buttons = nullptr) {
        const NextModal<QMessageBox> next([key, buttons](QMessageBox& box) {
            for (const QAbstractButton* button : box.buttons()) {
                const bool isDefault = button == box.defaultButton();
                if (buttons != nullptr) buttons->push_back(button->text().toStdString() + (isDefault ? "*" : ""));
            }
            QTest::keyClick(&box, key);
        });
        return screen.messageBox("Text", style, "Titel");
    }
};

TEST_F(ScreenTest, AMessageBoxHasButtonsInTheStudiosLanguage) {
    std::vector<std::string> german, english;
    EXPECT_EQ(ask(message::yesNo | message::defaultButton2, Qt::Key_Return, &german), Answer::no);
    wording.setLanguage(qt::Wording::english);
    EXPECT_EQ(ask(message::okCancel, Qt::Key_Return, &english), Answer::ok);
    std::ranges::sort(german);
    std::ranges::sort(english);
    EXPECT_EQ(german, (std::vector<std::string>{"&Ja", "&Nein*"}));
    EXPECT_EQ(english, (std::vector<std::string>{"Cancel", "OK*"}));
}

TEST_F(ScreenTest, EscapeAnswersWhatTheStyleHas) {
    EXPECT_EQ(ask(message::ok, Qt::Key_Escape), Answer::ok);
    EXPECT_EQ(ask(message::yesNo, Qt::Key_Escape), Answer::no);
    EXPECT_EQ(ask(message::okCancel, Qt::Key_Escape), Answer::cancel);
    EXPECT_EQ(ask(message::yesNoCancel, Qt::Key_Escape), Answer::cancel);
}

TEST_F(ScreenTest, AMessageBoxShowsItsTitleAndText) {
    const BoxAnswers answers({"OK"});
    screen.messageBox("-2147467259: Fehler", message::ok, "ConnectToDataBase");
    screen.messageBox("<b>kein HTML</b>", message::ok, "");
    ASSERT_EQ(answers.shown().size(), 2u);
    EXPECT_EQ(answers.shown()[0], (ShownBox{"ConnectToDataBase", "-2147467259: Fehler", "OK"}));
    EXPECT_EQ(answers.shown()[1].title, "HXRecipeEditor");
}

TEST_F(ScreenTest, ThePointerIsAnHourglassUntilItIsTheStandardAgain) {
    screen.setPointer(forms::Pointer::hourglass);
    screen.setPointer(forms::Pointer::hourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    screen.setPointer(forms::Pointer::standard);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ScreenTest, AFontIsChosenOrLeftAsItWas) {
    forms::Font::Values font{.name = "Arial", .size = 8.25};
    const NextModal<QFontDialog> cancelled([](QFontDialog& dialog) {
        dialog.setCurrentFont(QFont("DejaVu Sans", 12, QFont::Bold));
        dialog.reject();
    });
    EXPECT_FALSE(screen.chooseFont(font));
    EXPECT_EQ(font, (forms::Font::Values{.name = "Arial", .size = 8.25}));
    const NextModal<QFontDialog> accepted([](QFontDialog& dialog) {
        dialog.setCurrentFont(QFont("DejaVu Sans", 12, QFont::Bold));
        dialog.accept();
    });
    EXPECT_TRUE(screen.chooseFont(font));
    EXPECT_EQ(font.name, "DejaVu Sans");
    EXPECT_EQ(font.size, 12);
    EXPECT_EQ(font.weight, 700);
}

TEST_F(ScreenTest, TwipsFollowTheDisplay) {
    EXPECT_DOUBLE_EQ(screen.twipsPerPixel(), 1440 / QGuiApplication::primaryScreen()->logicalDotsPerInchX());
}

}  // namespace
}  // namespace hx::gui
