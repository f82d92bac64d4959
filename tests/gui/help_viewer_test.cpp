// SPDX-License-Identifier: MIT
#include <QAction>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTreeWidget>

#include "adapters/qt/help/help_page.h"
#include "adapters/qt/help/help_window.h"
#include "adapters/qt/help/qt_help_viewer.h"
#include "adapters/qt/text.h"
#include "gui/desktop.h"
#include "gui/help_contents.h"

namespace hx::gui {
namespace {

QString compiledHelp(const char* language) {
    return QStringLiteral(HX_MODULE_FOLDER "/help/%1/Rezeptsystem.chm").arg(QLatin1StringView(language));
}

class HelpViewerTest : public Desktop {
  protected:
    QTemporaryDir folder;
    qt::QtHelpViewer viewer{screen, windows, wording};

    void show(std::int32_t context, const QString& file = compiledHelp("de")) {
        viewer.showContext(0, qt::fromQt(file), context);
        handleEvents();
    }
    [[nodiscard]] qt::HelpWindow& window() {
        if (viewer.window() == nullptr) throw std::runtime_error("no help is open");
        return *viewer.window();
    }
    [[nodiscard]] qt::HelpPage& page() { return static_cast<qt::HelpPage&>(find<QTextBrowser>(window(), "helpPage")); }
    [[nodiscard]] std::string shown() { return qt::fromQt(page().shownTopic()); }
    [[nodiscard]] std::string note() { return qt::fromQt(window().statusBar()->currentMessage()); }
    [[nodiscard]] QAction& action(const char* name) {
        auto* found = window().findChild<QAction*>(QLatin1StringView(name));
        if (found == nullptr) throw std::runtime_error(name);
        return *found;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_TRUE(activate(window()));
        QTest::keyClick(window().windowHandle(), key, modifiers);
        handleEvents();
    }
    /// Clicks the first link of the page that leads there.
    void clickLink(const QString& target) {
        for (QTextBlock block = page().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (part.fragment().charFormat().anchorHref() != target) continue;
                QTextCursor cursor(block);
                cursor.setPosition(part.fragment().position() + 1);
                page().setTextCursor(cursor);
                page().ensureCursorVisible();
                QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, page().cursorRect(cursor).center());
                return handleEvents();
            }
        }
        throw std::runtime_error("no link to " + qt::fromQt(target));
    }
    [[nodiscard]] std::vector<std::string> entries(const char* name) {
        std::vector<std::string> titles;
        const auto& list = find<QListWidget>(window(), name);
        for (int i = 0; i < list.count(); ++i) titles.push_back(qt::fromQt(list.item(i)->text()));
        return titles;
    }
    void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

TEST_F(HelpViewerTest, AContextNumberOpensItsTopic) {
    show(100020);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(shown(), "/sub_recipes.htm");
    EXPECT_EQ(window().windowTitle(), "Unterrezepte - Hilfe zum Rezeptsystem");
    EXPECT_TRUE(page().toPlainText().startsWith("Unterrezepte"));
    show(100001);
    EXPECT_EQ(shown(), "/recipes.htm");
    EXPECT_EQ(window().windowTitle(), "Rezepte - Hilfe zum Rezeptsystem");
}

TEST_F(HelpViewerTest, ANumberWithoutATopicOpensTheFirstAndSaysSo) {
    show(4711);
    EXPECT_EQ(shown(), "/overview.htm");
    EXPECT_EQ(note(), "Zu dieser Stelle (4711) gibt es kein eigenes Thema.");
}

TEST_F(HelpViewerTest, TheViewerSpeaksTheLanguageOfTheStudio) {
    show(100001);
    EXPECT_EQ(find<QTabWidget>(window(), "helpTabs").tabText(0), "&Inhalt");
    EXPECT_EQ(action("helpBack").text(), "Zurück");
    wording.setLanguage(qt::Wording::english);
    show(100001, compiledHelp("en"));
    EXPECT_EQ(find<QTabWidget>(window(), "helpTabs").tabText(0), "&Contents");
    EXPECT_EQ(action("helpBack").text(), "Back");
    EXPECT_EQ(window().windowTitle(), "Recipes - Recipe System Help");
}

TEST_F(HelpViewerTest, ALinkIsFollowedAndTheWayBackKept) {
    show(100042);
    EXPECT_FALSE(action("helpBack").isEnabled());
    clickLink("recipe_dialog.htm");
    EXPECT_EQ(shown(), "/recipe_dialog.htm");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), "/overview.htm");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown(), "/recipe_dialog.htm");
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(shown(), "/overview.htm");
}

TEST_F(HelpViewerTest, ALinkThatLeadsOutIsNotOpenedAndSaid) {
    show(100001);
    for (const char* link :
         {"https://example.com/x", "file:///etc/passwd", "mailto:a@example.com", "//host/recipe.htm"}) {
        emit page().anchorClicked(QUrl(QString::fromLatin1(link)));
        EXPECT_EQ(shown(), "/recipes.htm");
        EXPECT_NE(note().find("Die Hilfe öffnet nur eigene Themen, nicht "), std::string::npos) << link;
    }
    for (const char* name : {"file:///etc/passwd", "/etc/passwd", "../../../../etc/passwd"}) {
        const QUrl url(QString::fromLatin1(name));
        EXPECT_TRUE(page().document()->resource(QTextDocument::ImageResource, url).toByteArray().isEmpty()) << name;
    }
}

TEST_F(HelpViewerTest, ALinkToATopicThatIsNotThereIsSaid) {
    show(100001);
    emit page().anchorClicked(QUrl("nothing.htm"));
    EXPECT_EQ(shown(), "/recipes.htm");
    EXPECT_EQ(note(), "Das Thema /nothing.htm gibt es in dieser Hilfe nicht.");
}

TEST_F(HelpViewerTest, PicturesAndStylesComeFromTheFile) {
    show(100042);
    EXPECT_TRUE(
        page().loadResource(QTextDocument::ImageResource, QUrl("structure.png")).toByteArray().startsWith("\x89PNG"));
    EXPECT_TRUE(page().loadResource(QTextDocument::StyleSheetResource, QUrl("style.css")).toString().contains("h1 {"));
    QTextCursor heading(page().document());
    heading.movePosition(QTextCursor::NextCharacter);
    EXPECT_EQ(heading.charFormat().foreground().color(), QColor(0x1f, 0x5c, 0x8b));
}

TEST_F(HelpViewerTest, TheContentsShowTopicsAndFollowThem) {
    show(100041);
    auto& contents = find<QTreeWidget>(window(), "helpContents");
    ASSERT_NE(contents.currentItem(), nullptr);
    EXPECT_EQ(contents.currentItem()->text(0), "Tasten");
    EXPECT_EQ(contents.topLevelItemCount(), 7);
    contents.setFocus();
    QTest::keyClick(&contents, Qt::Key_Down);
    EXPECT_EQ(shown(), "/menus.htm");
    clickLink("report.htm");
    EXPECT_EQ(shown(), "/report.htm");
    EXPECT_EQ(contents.currentItem()->text(0), "Report");
}

TEST_F(HelpViewerTest, WordsAreSearchedInAllTopics) {
    show(100042);
    press(Qt::Key_S, Qt::AltModifier);
    auto& field = find<QLineEdit>(window(), "helpSearch");
    EXPECT_TRUE(field.hasFocus());
    type(field, "Normfaktor");
    EXPECT_EQ(entries("helpHits"), (std::vector<std::string>{"Rezeptdefinition"}));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(shown(), "/recipe_dialog.htm");
    EXPECT_GT(page().extraSelections().size(), 1);
    type(field, " gibtesnicht");
    EXPECT_TRUE(entries("helpHits").empty());
    EXPECT_EQ(find<QLabel>(window(), "helpSearchState").text(), "Kein Thema enthält alle diese Wörter.");
}

TEST_F(HelpViewerTest, AHitIsReachedByKeys) {
    show(100042);
    press(Qt::Key_S, Qt::AltModifier);
    auto& field = find<QLineEdit>(window(), "helpSearch");
    type(field, "Rezept");
    QTest::keyClick(&field, Qt::Key_Down);
    auto& hits = find<QListWidget>(window(), "helpHits");
    EXPECT_TRUE(hits.hasFocus());
    EXPECT_EQ(hits.currentRow(), 0);
    const std::string first = shown();
    QTest::keyClick(&hits, Qt::Key_Down);
    EXPECT_EQ(hits.currentRow(), 1);
    EXPECT_NE(shown(), first);
}

TEST_F(HelpViewerTest, TextIsFoundOnThePageAndEscEndsTheSearchThenTheHelp) {
    show(100030);
    press(Qt::Key_F, Qt::ControlModifier);
    auto& field = find<QLineEdit>(window(), "helpFind");
    EXPECT_TRUE(field.hasFocus());
    type(field, "trigger");
    auto& state = find<QLabel>(window(), "helpFindState");
    EXPECT_EQ(state.text(), "1 von 4");
    EXPECT_EQ(page().textCursor().selectedText().toLower(), "trigger");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(state.text(), "2 von 4");
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(state.text(), "4 von 4");
    type(field, "x");
    EXPECT_EQ(state.text(), "Nicht gefunden");
    press(Qt::Key_Escape);
    EXPECT_FALSE(field.isVisible());
    EXPECT_TRUE(window().isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(HelpViewerTest, AHelpThatWasClosedOpensAgain) {
    show(100030);
    window().close();
    show(100031);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(shown(), "/sub_recipe_dialog.htm");
}

TEST_F(HelpViewerTest, ClosingAllClosesTheHelp) {
    show(100030);
    const QPointer<QWidget> before(&window());
    viewer.closeAll();
    EXPECT_EQ(viewer.window(), nullptr);
    EXPECT_FALSE(before->isVisible());
    handleEvents();
    EXPECT_TRUE(before.isNull());
    viewer.closeAll();
    show(100030);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(HelpViewerTest, AMissingFileIsSaidInBothLanguages) {
    const BoxAnswers answers({"OK", "OK"});
    show(100001, "/nowhere\\helpfiles\\Rezeptsystem.chm");
    wording.setLanguage(qt::Wording::english);
    show(100001, "\\helpfiles\\Rezeptsystem.chm");
    ASSERT_EQ(answers.shown().size(), 2u);
    EXPECT_EQ(answers.shown()[0].text,
              "Die Hilfedatei \"/nowhere\\helpfiles\\Rezeptsystem.chm\" wurde nicht gefunden.");
    EXPECT_EQ(answers.shown()[1].text, "The help file \"\\helpfiles\\Rezeptsystem.chm\" was not found.");
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_F(HelpViewerTest, ADamagedFileIsSaidInBothLanguages) {
    const QString path = folder.filePath("Rezeptsystem.chm");
    QFile whole(compiledHelp("de"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    write(path, whole.read(20000));
    const BoxAnswers answers({"OK", "OK"});
    show(100001, path);
    wording.setLanguage(qt::Wording::english);
    write(path, "no help at all");
    show(100001, path);
    ASSERT_EQ(answers.shown().size(), 2u);
    EXPECT_TRUE(answers.shown()[0].text.starts_with("Die Hilfedatei \"" + qt::fromQt(path) + "\" ist beschädigt"));
    EXPECT_TRUE(answers.shown()[1].text.starts_with("The help file \"" + qt::fromQt(path) + "\" is damaged"));
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_F(HelpViewerTest, AFileThatWasReplacedIsReadAnew) {
    const QString path = folder.filePath("Rezeptsystem.chm");
    ASSERT_TRUE(QFile::copy(compiledHelp("de"), path));
    show(100041, path);
    EXPECT_TRUE(window().windowTitle().startsWith("Tasten"));
    QFile::remove(path);
    ASSERT_TRUE(QFile::copy(compiledHelp("en"), path));
    QFile copy(path);
    ASSERT_TRUE(copy.open(QIODevice::ReadWrite));
    ASSERT_TRUE(copy.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    copy.close();
    show(100041, path);
    EXPECT_TRUE(window().windowTitle().startsWith("Keys"));
}

TEST_F(HelpViewerTest, HelpThatIsAskedForInAModalDialogCanBeUsed) {
    QWidget owner;
    owner.show();
    QDialog dialog(&owner);
    const NextModal<QDialog> next([&](QDialog&) {
        show(100030);
        EXPECT_EQ(window().windowHandle()->transientParent(), dialog.windowHandle());
        clickContents(window(), "Tasten");
        EXPECT_EQ(shown(), "/keys.htm");
        dialog.reject();
    });
    dialog.exec();
    handleEvents();
    EXPECT_TRUE(window().isVisible());
    clickContents(window(), "Report");
    EXPECT_EQ(shown(), "/report.htm");
}

TEST_F(HelpViewerTest, HelpThatIsOpenStaysUsableWhenModalDialogsCome) {
    show(100042);
    QDialog first, second;
    const NextModal<QDialog> next([&](QDialog&) {
        clickContents(window(), "Tasten");
        EXPECT_EQ(shown(), "/keys.htm");
        const NextModal<QDialog> inner([&](QDialog&) {
            clickContents(window(), "Report");
            EXPECT_EQ(shown(), "/report.htm");
            second.accept();
        });
        second.exec();
        handleEvents();
        clickContents(window(), "Rezepte");
        EXPECT_EQ(shown(), "/recipes.htm");
        first.accept();
    });
    first.exec();
    handleEvents();
    clickContents(window(), "Tasten");
    EXPECT_EQ(shown(), "/keys.htm");
}

}  // namespace
}  // namespace hx::gui
