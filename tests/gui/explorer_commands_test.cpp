// SPDX-License-Identifier: MIT
#include <QMenu>
#include <QMouseEvent>
#include <QTest>

#include "adapters/qt/text.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

/// Chooses an entry of the menu that comes while it lives.
class MenuChoice {
  public:
    explicit MenuChoice(const QString& entry) : entry_(entry) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(10);
    }
    [[nodiscard]] bool made() const noexcept { return made_; }

  private:
    void look() {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr || !menu->isVisible()) return;
        timer_.stop();
        for (QAction* action : menu->actions()) {
            if (action->text().section('\t', 0, 0).remove('&') != entry_) continue;
            made_ = true;
            menu->setActiveAction(action);
            return QTest::keyClick(menu, Qt::Key_Return);
        }
        ADD_FAILURE() << "no entry " << qt::fromQt(entry_);
        menu->close();
    }
    QString entry_;
    QTimer timer_;
    bool made_ = false;
};

/// Slips of the mouse between "Limonade", which the editor shows, and "Apfelschorle".
class ExplorerCommands : public StudioTest {
  protected:
    void SetUp() override {
        start();
        open(makeProject());
        click("Rezepte");
        tree().expand(node("Rezepte"));
        click("Rezepte/Limonade");
        ASSERT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    }
    [[nodiscard]] QPoint place(const QString& recipe) { return tree().visualRect(node("Rezepte/" + recipe)).center(); }
    [[nodiscard]] QPoint emptySpace() { return tree().viewport()->rect().bottomRight() - QPoint(5, 5); }
    void press(const QString& recipe, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(tree().viewport(), button, {}, place(recipe));
    }
    void slip(const QPoint& to, Qt::MouseButton button = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, QPointF(to), QPointF(tree().viewport()->mapToGlobal(to)), Qt::NoButton,
                         button, {});
        QApplication::sendEvent(tree().viewport(), &move);
    }
    void release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(tree().viewport(), button, {}, at);
        handleEvents();
    }
    void deleteByKey() {
        const BoxAnswers answers({"Ja"});
        QTest::keyClick(&tree(), Qt::Key_Delete, Qt::ControlModifier);
        handleEvents();
        EXPECT_EQ(answers.shown().size(), 1U);
    }
    /// The highlighted recipe is the one that the editor shows.
    void expectShown(const std::string& recipe) {
        EXPECT_EQ(qt::fromQt(tree().currentIndex().data().toString()), recipe);
        EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: " + recipe);
    }
    void expectRecipes(const std::vector<std::string>& names) {
        std::vector<std::string> there;
        const QModelIndex root = node("Rezepte");
        for (int row = 0; row < tree().model()->rowCount(root); ++row) {
            there.push_back(qt::fromQt(tree().model()->index(row, 0, root).data().toString()));
        }
        EXPECT_EQ(there, names);
    }
};

const std::vector<std::string> withoutApfelschorle = {"Limonade", "Meyer's Bräu"};

TEST_F(ExplorerCommands, DeleteTheRecipeThatASlipLeavesHighlighted) {
    press("Limonade");
    slip(place("Apfelschorle"));
    release(place("Apfelschorle"));
    expectShown("Apfelschorle");
    deleteByKey();
    expectRecipes(withoutApfelschorle);
}

TEST_F(ExplorerCommands, DeleteTheRecipeWhosePressEndsInEmptySpace) {
    press("Apfelschorle");
    release(emptySpace());
    expectShown("Apfelschorle");
    deleteByKey();
    expectRecipes(withoutApfelschorle);
}

TEST_F(ExplorerCommands, DeleteTheHighlightedRecipeWhileAButtonIsHeld) {
    press("Apfelschorle");
    deleteByKey();
    expectRecipes(withoutApfelschorle);
    release(emptySpace());
}

TEST_F(ExplorerCommands, DeleteFromTheMenuTheRecipeThatARightSlipLeavesHighlighted) {
    const MenuChoice menu("Löschen");
    const BoxAnswers answers({"Ja"});
    press("Limonade", Qt::RightButton);
    slip(place("Apfelschorle"), Qt::RightButton);
    release(place("Apfelschorle"), Qt::RightButton);
    EXPECT_TRUE(menu.made());
    EXPECT_EQ(answers.shown().size(), 1U);
    expectRecipes(withoutApfelschorle);
}

TEST_F(ExplorerCommands, DeleteFromTheMenuOfTheSecondButtonTheRecipeThatItHighlights) {
    const MenuChoice menu("Löschen");
    const BoxAnswers answers({"Ja"});
    press("Limonade");
    press("Apfelschorle", Qt::RightButton);
    release(place("Apfelschorle"), Qt::RightButton);
    EXPECT_TRUE(menu.made());
    release(place("Limonade"));
    expectRecipes(withoutApfelschorle);
}

TEST_F(ExplorerCommands, OfTheToolBarsBinMeanTheRowOfTheGridThatHasTheKeyboard) {
    auto& bin = find<QWidget>(window(), "tbrfunc.Delete");
    EXPECT_EQ(qt::fromQt(bin.toolTip()), "Löschen: Rezept Limonade");
    grid().setFocus();
    EXPECT_EQ(qt::fromQt(bin.toolTip()), "Löschen: Rezeptelement Mischer.Zucker");
    const BoxAnswers answers({"Ja"});
    QTest::mouseClick(&bin, Qt::LeftButton);
    handleEvents();
    EXPECT_EQ(texts("Variable"), std::vector<std::string>{"Mischer.Wasser"});
    expectRecipes({"Limonade", "Apfelschorle", "Meyer's Bräu"});
    ASSERT_TRUE(activate(window()));
    click("Rezepte/Limonade");
    EXPECT_EQ(qt::fromQt(bin.toolTip()), "Löschen: Rezept Limonade");
    edit(0, "Variable", "<b>Tank");
    EXPECT_TRUE(bin.toolTip().contains("&lt;b&gt;Tank")) << "the name as it is";
}

}  // namespace
}  // namespace hx::gui
