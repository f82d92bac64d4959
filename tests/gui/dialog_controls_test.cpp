// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

constexpr std::int16_t altKey = 18;

/// A form with a control of each simple kind.
class Dialog : public forms::Form {
  public:
    explicit Dialog(forms::Screen& screen) : Form("dialog", screen) {
        move(0, 0, 6000, 4500);
        label = add<forms::Label>("label");
        text = add<forms::TextBox>("text");
        memo = add<forms::TextBox>("memo");
        memo->setMultiLine(true);
        list = add<forms::ComboBox>("list", forms::ComboBox::Style::dropDownList);
        combo = add<forms::ComboBox>("combo");
        check = add<forms::CheckBox>("check");
        frame = add<forms::Frame>("frame");
        first = add<forms::OptionButton>("option");
        second = add<forms::OptionButton>("option");
        first->setIndex(0);
        second->setIndex(1);
        first->setContainer(frame.get());
        second->setContainer(frame.get());
        tabs = add<forms::TabStrip>("tabs", std::size_t{2});
        onPage = add<forms::TextBox>("onPage");
        onPage->setContainer(&tabs->page(1));
        ok = add<forms::CommandButton>("cmdOk");
        cancel = add<forms::CommandButton>("cmdCancel");
        ok->setDefault(true);
        cancel->setCancel(true);
        label->setCaption("&Name");
        place();
    }
    std::shared_ptr<forms::Label> label;
    std::shared_ptr<forms::TextBox> text, memo, onPage;
    std::shared_ptr<forms::ComboBox> list, combo;
    std::shared_ptr<forms::CheckBox> check;
    std::shared_ptr<forms::Frame> frame;
    std::shared_ptr<forms::OptionButton> first, second;
    std::shared_ptr<forms::TabStrip> tabs;
    std::shared_ptr<forms::CommandButton> ok, cancel;

  private:
    void place() {
        double top = 0;
        for (const auto& control : controls()) control->move(0, top += 300, 2000, 300);
        first->move(100, 100, 1000, 200);
        second->move(100, 300, 1000, 200);
        onPage->move(150, 150, 1000, 300);
    }
};

class DialogControlsTest : public Desktop {
  protected:
    std::shared_ptr<Dialog> form = std::make_shared<Dialog>(screen);

    void SetUp() override {
        form->show();
        ASSERT_TRUE(activate(windowOf(*form)));
    }
    template <class W>
    [[nodiscard]] W& widget(const char* name) {
        return find<W>(windowOf(*form), name);
    }
};

TEST_F(DialogControlsTest, PlacesControlsInPixelsOfTheirContainer) {
    const auto& units = screen.units();
    EXPECT_EQ(widget<QLineEdit>("text").geometry(), QRect(0, units.pixels(600), units.pixels(2000), units.pixels(300)));
    EXPECT_EQ(widget<QRadioButton>("option(1)").parentWidget(), &widget<QGroupBox>("frame"));
    EXPECT_EQ(widget<QRadioButton>("option(1)").pos(), QPoint(units.pixels(100), units.pixels(300)));
    EXPECT_EQ(widget<QLineEdit>("onPage").parentWidget(), widget<QTabWidget>("tabs").widget(1));
}

TEST_F(DialogControlsTest, TextAndCaretGoBothWays) {
    auto& line = widget<QLineEdit>("text");
    line.setFocus();
    type(line, QString::fromUtf8("Süß"));
    EXPECT_EQ(form->text->text(), "Süß");
    EXPECT_EQ(form->text->selStart(), 3);
    form->text->setText("Kühlwasser");
    EXPECT_EQ(line.text(), QString::fromUtf8("Kühlwasser"));
    form->text->setSelStart(2);
    form->text->setSelLength(3);
    EXPECT_EQ(line.selectedText(), QString::fromUtf8("hlw"));
    form->text->setLocked(true);
    EXPECT_TRUE(line.isReadOnly());
    auto& memo = widget<QPlainTextEdit>("memo");
    memo.setFocus();
    type(memo, "abc");
    EXPECT_EQ(form->memo->text(), "abc");
    form->memo->setText("x\ny");
    EXPECT_EQ(memo.toPlainText(), "x\ny");
}

TEST_F(DialogControlsTest, AChangeHandlerMayCutWhatIsTyped) {
    form->text->changeEvent.connect([this] {
        if (form->text->text().size() > 2) {
            form->text->setText(form->text->text().substr(0, 2));
            form->text->setSelStart(2);
        }
    });
    auto& line = widget<QLineEdit>("text");
    line.setFocus();
    type(line, "rcp");
    EXPECT_EQ(line.text(), "rc");
    EXPECT_EQ(form->text->text(), "rc");
    EXPECT_EQ(line.cursorPosition(), 2);
}

TEST_F(DialogControlsTest, ListsGoBothWays) {
    for (const char* entry : {"eins", "zwei", "drei"}) {
        form->list->addItem(entry);
        form->combo->addItem(entry);
    }
    auto& list = widget<QComboBox>("list");
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.currentIndex(), -1);
    form->list->setListIndex(1);
    EXPECT_EQ(list.currentText(), "zwei");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(form->list->listIndex(), 2);
    auto& combo = widget<QComboBox>("combo");
    combo.setFocus();
    type(*combo.lineEdit(), "<ProjectDir>");
    EXPECT_EQ(form->combo->text(), "<ProjectDir>");
    form->combo->setText("D:\\Rezepte");
    EXPECT_EQ(combo.currentText(), "D:\\Rezepte");
    form->list->clear();
    EXPECT_EQ(list.count(), 0);
}

TEST_F(DialogControlsTest, CheckBoxesAndOptionsGoBothWays) {
    auto& check = widget<QCheckBox>("check");
    QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    EXPECT_EQ(form->check->value(), forms::CheckState::checked);
    form->check->setValue(forms::CheckState::greyed);
    EXPECT_EQ(check.checkState(), Qt::PartiallyChecked);
    form->check->setValue(forms::CheckState::unchecked);
    EXPECT_EQ(check.checkState(), Qt::Unchecked);

    auto& second = widget<QRadioButton>("option(1)");
    QTest::mouseClick(&second, Qt::LeftButton, {}, QPoint(8, second.height() / 2));
    EXPECT_TRUE(form->second->value());
    EXPECT_FALSE(form->first->value());
    form->first->setValue(true);
    EXPECT_TRUE(widget<QRadioButton>("option(0)").isChecked());
    EXPECT_FALSE(second.isChecked());
    form->first->setValue(false);
    EXPECT_FALSE(widget<QRadioButton>("option(0)").isChecked());
}

TEST_F(DialogControlsTest, TabsGoBothWays) {
    auto& tabs = widget<QTabWidget>("tabs");
    form->tabs->setTabCaption(1, "Optionen");
    EXPECT_EQ(tabs.tabText(1), "Optionen");
    int clicks = 0;
    form->tabs->clickEvent.connect([&] { ++clicks; });
    tabs.setCurrentIndex(1);
    EXPECT_EQ(form->tabs->tab(), 1);
    EXPECT_EQ(clicks, 1);
    form->tabs->setTab(0);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(DialogControlsTest, ALabelNamesItsFieldAndGivesItsMnemonic) {
    EXPECT_EQ(widget<QLineEdit>("text").accessibleName(), "Name");
    EXPECT_EQ(widget<QLabel>("label").buddy(), &widget<QLineEdit>("text"));
}

TEST_F(DialogControlsTest, EnterAndEscapePressTheButtonsThatAreMeant) {
    std::vector<std::string> clicks;
    form->ok->clickEvent.connect([&] { clicks.push_back("ok"); });
    form->cancel->clickEvent.connect([&] { clicks.push_back("cancel"); });
    auto& line = widget<QLineEdit>("text");
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_Return);
    QTest::keyClick(&line, Qt::Key_Escape);
    form->ok->setEnabled(false);
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(clicks, (std::vector<std::string>{"ok", "cancel"}));
    QTest::mouseClick(&widget<QPushButton>("cmdCancel"), Qt::LeftButton);
    EXPECT_EQ(clicks.back(), "cancel");
    EXPECT_EQ(clicks.size(), 3u);
}

TEST_F(DialogControlsTest, TheFormSeesKeysFirstWhenItPreviewsThem) {
    form->setKeyPreview(true);
    std::vector<std::string> heard;
    form->keyDownEvent.connect([&](forms::KeyEvent& key) {
        if (key.code != altKey) heard.push_back("form " + std::to_string(key.code));
        if (key.code == forms::key::f6) key.swallow();
    });
    form->text->keyDownEvent.connect([&](forms::KeyEvent& key) {
        if (key.code != altKey) heard.push_back("text " + std::to_string(key.code));
    });
    auto& line = widget<QLineEdit>("text");
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_F6, Qt::AltModifier);
    QTest::keyClick(&line, Qt::Key_F1);
    EXPECT_EQ(heard, (std::vector<std::string>{"form 117", "form 112", "text 112"}));
}

TEST_F(DialogControlsTest, FocusGoesBothWays) {
    form->memo->setFocus();
    std::vector<bool> focus;
    form->text->focusEvent.connect([&](bool has) { focus.push_back(has); });
    form->text->setFocus();
    EXPECT_TRUE(widget<QLineEdit>("text").hasFocus());
    form->combo->setFocus();
    EXPECT_EQ(focus, (std::vector<bool>{true, false}));
    EXPECT_TRUE(form->combo->hasFocus());
}

TEST_F(DialogControlsTest, SendsKeysAsIfTyped) {
    form->text->setFocus();
    std::vector<std::int16_t> keys;
    form->text->keyDownEvent.connect([&](forms::KeyEvent& key) { keys.push_back(key.code); });
    screen.sendKeys(*form, "{F1}ab\xC3\xBC{BACKSPACE}\xC3\xBC{HOME}{DEL}{F13}");
    EXPECT_EQ(keys, (std::vector<std::int16_t>{112, 65, 66, 8, 36, 46, 124})) << "the key of a \"ü\" has no code";
    EXPECT_EQ(form->text->text(), "b\xC3\xBC");
}

TEST_F(DialogControlsTest, AModalFormReturnsWhenItIsHidden) {
    form->hide();
    bool shown = false;
    const Once next([&] { return windowOf(*form).isVisible(); },
                    [&] {
                        shown = windowOf(*form).isModal();
                        form->hide();
                    });
    form->showModal(0);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(windowOf(*form).isVisible());
}

TEST_F(DialogControlsTest, AModalFormReturnsWhenItEnds) {
    form->hide();
    const Once next([&] { return windowOf(*form).isVisible(); }, [&] { windowOf(*form).close(); });
    form->showModal(0);
    EXPECT_FALSE(form->loaded());
}

}  // namespace
}  // namespace hx::gui
