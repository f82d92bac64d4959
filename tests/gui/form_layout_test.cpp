// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

/// A dialog with two pages, of which the second has a frame.
class Paged : public forms::Form {
  public:
    explicit Paged(forms::Screen& screen, bool grows = false) : Form("FPaged", screen) {
        tab->setTabCaption(0, "Erste");
        tab->setTabCaption(1, "Zweite");
        addRow({.field = tab.get(), .grows = grows});
        addLine(tab->page(0), "&Kurz", "Short");
        addLine(tab->page(0), "Eine viel längere Beschriftung", "Long", add<forms::CommandButton>("cmdLong"));
        check->setCaption("&Häkchen");
        addRow({.container = &tab->page(0), .field = check.get()});
        frame->setCaption("Rahmen");
        addRow({.container = &tab->page(1), .field = frame.get()});
        addLine(*frame, "Im Rahmen", "Framed");
        extension = addLine(tab->page(0), "&Endung", "Extension", nullptr, 2);
        ok->setCaption("OK");
        ok->setDefault(true);
        cancel->setCaption("Abbrechen");
        cancel->setCancel(true);
        help->setCaption("&Hilfe");
        addButtons({ok.get(), cancel.get()}, help.get());
        move(0, 0, 150, 150);
        std::int16_t last = 100;
        for (forms::Control* control :
             std::initializer_list<forms::Control*>{check.get(), ok.get(), cancel.get(), help.get()}) {
            control->setTabIndex(last++);
        }
    }
    std::shared_ptr<forms::TextBox> addLine(forms::Control& container, const char* caption, const std::string& name,
                                            const std::shared_ptr<forms::CommandButton>& button = nullptr,
                                            int characters = 0) {
        const auto label = add<forms::Label>("lbl" + name);
        label->setCaption(caption);
        auto field = add<forms::TextBox>("txt" + name);
        field->move(5, 5, 10, 10);
        if (button) button->setCaption("...");
        addRow({.container = &container,
                .label = label.get(),
                .field = field.get(),
                .button = button.get(),
                .characters = characters});
        return field;
    }
    std::shared_ptr<forms::TabStrip> tab = add<forms::TabStrip>("tab", std::size_t{2});
    std::shared_ptr<forms::CheckBox> check = add<forms::CheckBox>("chk");
    std::shared_ptr<forms::Frame> frame = add<forms::Frame>("fra");
    std::shared_ptr<forms::CommandButton> ok = add<forms::CommandButton>("cmdOk");
    std::shared_ptr<forms::CommandButton> cancel = add<forms::CommandButton>("cmdCancel");
    std::shared_ptr<forms::CommandButton> help = add<forms::CommandButton>("cmdHelp");
    std::shared_ptr<forms::Label> nowhere = add<forms::Label>("lblNowhere");
    std::shared_ptr<forms::TextBox> extension;
};

class FormLayoutTest : public DialogFixture {
  protected:
    std::shared_ptr<Paged> form = std::make_shared<Paged>(screen);

    template <class W>
    [[nodiscard]] W& widget(const char* name) {
        return find<W>(windowOf(*form), name);
    }
    /// The widget's place in the window.
    [[nodiscard]] QRect placeOf(const char* name) {
        QWidget& part = widget<QWidget>(name);
        return {part.mapTo(&windowOf(*form), QPoint()), part.size()};
    }
    void setFontSize(double points) {
        form->font().setSize(points);
        for (const auto& control : form->controls()) control->font().setSize(points);
    }
};

TEST_F(FormLayoutTest, LabelsFieldsAndButtonsStandInColumns) {
    show(*form);
    EXPECT_EQ(placeOf("lblShort").left(), placeOf("lblLong").left());
    EXPECT_EQ(placeOf("txtShort").left(), placeOf("txtLong").left());
    EXPECT_EQ(placeOf("txtShort").right(), placeOf("cmdLong").right());
    EXPECT_LT(placeOf("txtLong").right(), placeOf("cmdLong").left());
    EXPECT_LT(placeOf("lblLong").right(), placeOf("txtLong").left());
    EXPECT_EQ(placeOf("chk").left(), placeOf("lblShort").left());
}

TEST_F(FormLayoutTest, RowsStandBelowEachOtherInTheirOrder) {
    show(*form);
    const std::vector<const char*> rows = {"txtShort", "txtLong", "chk", "txtExtension"};
    for (std::size_t i = 1; i < rows.size(); ++i) {
        EXPECT_GT(placeOf(rows[i]).top(), placeOf(rows[i - 1]).bottom()) << rows[i];
    }
}

TEST_F(FormLayoutTest, AChooserIsSquareAndAsHighAsItsField) {
    show(*form);
    const QRect button = placeOf("cmdLong");
    EXPECT_EQ(button.width(), button.height());
    EXPECT_EQ(button.height(), placeOf("txtLong").height());
    EXPECT_EQ(button.center().y(), placeOf("txtLong").center().y());
}

TEST_F(FormLayoutTest, AChooserIsNamedAfterItsField) {
    show(*form);
    EXPECT_EQ(widget<QPushButton>("cmdLong").accessibleName(), "Eine viel längere Beschriftung auswählen");
}

TEST_F(FormLayoutTest, AFieldOfFewCharactersIsShort) {
    show(*form);
    EXPECT_EQ(placeOf("txtExtension").left(), placeOf("txtShort").left());
    EXPECT_LT(placeOf("txtExtension").width() * 4, placeOf("txtShort").width());
}

TEST_F(FormLayoutTest, TheDialogsButtonsStandBelowWithTheHelpAtTheLeft) {
    show(*form);
    EXPECT_GT(placeOf("cmdOk").top(), placeOf("tab").bottom());
    EXPECT_EQ(placeOf("cmdHelp").left(), placeOf("tab").left());
    EXPECT_EQ(placeOf("cmdCancel").right(), placeOf("tab").right());
    EXPECT_LT(placeOf("cmdHelp").right(), placeOf("cmdOk").left());
    EXPECT_LT(placeOf("cmdOk").right(), placeOf("cmdCancel").left());
    EXPECT_EQ(placeOf("cmdOk").width(), placeOf("cmdCancel").width());
}

TEST_F(FormLayoutTest, AFrameIsAGroupBoxWithItsRows) {
    form->tab->setTab(1);
    show(*form);
    EXPECT_EQ(widget<QLineEdit>("txtFramed").parentWidget(), &widget<QGroupBox>("fra"));
    EXPECT_TRUE(placeOf("fra").contains(placeOf("txtFramed")));
}

TEST_F(FormLayoutTest, NothingIsCutInAnyFont) {
    for (const double points : {6.0, 8.25, 12.0, 20.0}) {
        for (const std::int16_t page : {std::int16_t{0}, std::int16_t{1}}) {
            const auto dialog = std::make_shared<Paged>(screen);
            dialog->tab->setTab(page);
            dialog->font().setSize(points);
            for (const auto& control : dialog->controls()) control->font().setSize(points);
            showDuring(*dialog, [&](QWidget& window) {
                EXPECT_EQ(cutTexts(window), std::vector<std::string>()) << points << " points, page " << page;
            });
        }
    }
}

TEST_F(FormLayoutTest, FollowsAFontThatChangesWhileItIsShown) {
    showDuring(*form, [this](QWidget& window) {
        const QSize before = window.size();
        setFontSize(18);
        handleEvents();
        EXPECT_GT(window.width(), before.width());
        EXPECT_GT(window.height(), before.height());
        EXPECT_EQ(cutTexts(window), std::vector<std::string>());
        EXPECT_EQ(placeOf("cmdLong").height(), placeOf("txtLong").height());
        setFontSize(8.25);
        handleEvents();
        EXPECT_EQ(window.size(), before);
    });
}

TEST_F(FormLayoutTest, FollowsACaptionThatChangesWhileItIsShown) {
    showDuring(*form, [this](QWidget& window) {
        form->check->setCaption(std::string(120, 'W'));
        EXPECT_TRUE(waitUntil([&] { return cutTexts(window).empty(); }));
    });
}

TEST_F(FormLayoutTest, OnlyADialogWithARowThatGrowsCanBeResized) {
    show(*form);
    EXPECT_EQ(windowOf(*form).minimumSize(), windowOf(*form).maximumSize());
    const auto growing = std::make_shared<Paged>(screen, true);
    QWidget& window = show(*growing);
    EXPECT_EQ(window.maximumHeight(), QWIDGETSIZE_MAX);
    const int before = find<QTabWidget>(window, "tab").height();
    window.resize(window.width() + 100, window.height() + 60);
    handleEvents();
    EXPECT_EQ(find<QTabWidget>(window, "tab").height(), before + 60);
}

TEST_F(FormLayoutTest, IsNeitherMaximisedNorMinimisedAndHasATitle) {
    showDuring(*form, [](QWidget& window) {
        EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowTitleHint));
        EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    });
}

TEST_F(FormLayoutTest, StandsInTheMiddleOfItsOwner) {
    const auto owner = std::make_shared<Paged>(screen);
    QWidget& behind = show(*owner);
    behind.move(150, 100);
    QTimer::singleShot(0, [&] {
        const QPoint distance = windowOf(*form).frameGeometry().center() - behind.frameGeometry().center();
        EXPECT_LE(distance.manhattanLength(), 2);
        form->hide();
    });
    form->showModal(owner->handle());
}

TEST_F(FormLayoutTest, StaysOnTheScreenOverAnOwnerInACorner) {
    const auto owner = std::make_shared<Paged>(screen);
    QWidget& behind = show(*owner);
    behind.move(-300, -300);
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(behind.screen()->availableGeometry().contains(windowOf(*form).geometry()));
        form->hide();
    });
    form->showModal(owner->handle());
}

TEST_F(FormLayoutTest, ADialogOutlivesItsOwner) {
    {
        const auto owner = std::make_shared<Paged>(screen);
        show(*owner);
        QTimer::singleShot(0, [&] { form->hide(); });
        form->showModal(owner->handle());
        owner->unload(forms::UnloadMode::byCode);
    }
    handleEvents();
    showDuring(*form, [](QWidget& window) { EXPECT_TRUE(window.isVisible()); });
}

TEST_F(FormLayoutTest, TheModelsPlacesAreNotUsed) {
    show(*form);
    const QRect before = placeOf("txtShort");
    form->move(0, 0, 9000, 9000);
    form->findControl("txtShort")->move(0, 0, 60, 60);
    handleEvents();
    EXPECT_EQ(placeOf("txtShort"), before);
    EXPECT_EQ(windowOf(*form).size(), windowOf(*form).sizeHint());
}

TEST_F(FormLayoutTest, WhatStandsInNoRowIsNotShown) {
    show(*form);
    EXPECT_FALSE(widget<QLabel>("lblNowhere").isVisible());
}

TEST_F(FormLayoutTest, AHiddenRowTakesNoRoom) {
    show(*form);
    const int before = placeOf("txtExtension").top();
    form->check->setVisible(false);
    handleEvents();
    EXPECT_LT(placeOf("txtExtension").top(), before);
}

TEST_F(FormLayoutTest, TheKeyboardStartsInTheFirstFieldWithItsTextSelected) {
    static_cast<forms::TextBox*>(form->findControl("txtShort"))->setText("abc");
    showDuring(*form, [this](QWidget&) {
        EXPECT_EQ(&focused(), &widget<QLineEdit>("txtShort"));
        EXPECT_EQ(widget<QLineEdit>("txtShort").selectedText(), "abc");
    });
}

TEST_F(FormLayoutTest, TheTabKeyGoesThroughTheVisiblePageOnly) {
    showDuring(*form, [](QWidget&) {
        std::vector<std::string> visited;
        for (int i = 0; i < 9; ++i) {
            visited.push_back(focused().objectName().toStdString());
            press(Qt::Key_Tab);
        }
        EXPECT_EQ(visited, (std::vector<std::string>{"txtShort", "cmdLong", "txtLong", "txtExtension", "chk", "cmdOk",
                                                     "cmdCancel", "cmdHelp", "qt_tabwidget_tabbar"}));
    });
}

TEST_F(FormLayoutTest, AltAndALetterGoesToTheField) {
    showDuring(*form, [this](QWidget&) {
        pressMnemonic(Qt::Key_E);
        EXPECT_EQ(&focused(), &widget<QLineEdit>("txtExtension"));
        pressMnemonic(Qt::Key_K);
        EXPECT_EQ(&focused(), &widget<QLineEdit>("txtShort"));
        EXPECT_EQ(form->check->value(), forms::CheckState::unchecked);
    });
}

TEST_F(FormLayoutTest, EnterPressesTheButtonThatHasTheKeyboardElseTheDefault) {
    std::vector<std::string> clicks;
    for (const auto& button : {form->ok, form->cancel, form->help}) {
        button->clickEvent.connect([&clicks, name = button->name()] { clicks.push_back(name); });
    }
    showDuring(*form, [&](QWidget&) {
        press(Qt::Key_Return);
        widget<QPushButton>("cmdHelp").setFocus();
        press(Qt::Key_Return);
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(clicks, (std::vector<std::string>{"cmdOk", "cmdHelp", "cmdCancel"}));
}

TEST_F(FormLayoutTest, AListTakesEachNewEntryWithoutBuildingTheOthersAgain) {
    class ListForm : public forms::Form {
      public:
        explicit ListForm(forms::Screen& s) : Form("FList", s) { addRow({.field = list.get()}); }
        std::shared_ptr<forms::ComboBox> list = add<forms::ComboBox>("list", forms::ComboBox::Style::dropDownList);
    };
    const auto dialog = std::make_shared<ListForm>(screen);
    show(*dialog);
    const auto& list = find<QComboBox>(windowOf(*dialog), "list");
    int inserted = 0;
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &list,
                     [&](const QModelIndex&, int first, int last) { inserted += last - first + 1; });
    for (const char* entry : {"eins", "zwei", "drei"}) dialog->list->addItem(entry);
    EXPECT_EQ(inserted, 3);
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.itemText(2), "drei");
    dialog->list->clear();
    dialog->list->addItem("neu");
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.itemText(0), "neu");
    EXPECT_EQ(list.currentIndex(), -1);
}

}  // namespace
}  // namespace hx::gui
