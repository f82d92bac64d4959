// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>

#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "gui/studio_fixture.h"
#include "project/generator.h"
#include "report/preview/page_view.h"
#include "report/preview/preview_window.h"

namespace hx::gui {
namespace {

using Names = std::vector<std::string>;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Whether a file is chosen again, after a message.
bool choosesAfter(const BoxAnswers& answers) {
    const auto* choice = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return !answers.shown().empty() && choice != nullptr && choice->isVisible() && choice->isActiveWindow();
}

/// The editor with the project of StudioTest, and the preview that Options, Report opens.
class ReportPreview : public StudioTest {
  protected:
    QString project;

    void openEditor(std::int32_t language = qt::Wording::german) {
        start();
        if (language != qt::Wording::german) window().chooseLanguage(language);
        project = makeProject();
        open(project);
        click(language == qt::Wording::german ? "Rezepte" : "Recipes");
        handleEvents();
    }
    /// The editor with a project that has a report of many pages.
    void openLarge() {
        start();
        project = folder.filePath("gross.hxs");
        sqlite::createProject(qt::fromQt(project));
        sqlite::Provider provider;
        const auto session = provider.connect("Data Source=" + qt::fromQt(project) + ";Mode=Read|Write;");
        project::generate(*session, {.recipes = 1500, .members = 15000}, [](std::int64_t) {});
        open(project);
        click("Rezepte");
        handleEvents();
    }
    /// Chooses Options, Report in the editor's menu and acts on the preview, which is then closed.
    void inPreview(const std::function<void(QWidget&)>& action) {
        bool came = false;
        const NextModal<QDialog> next([&](QDialog& preview) {
            came = preview.objectName() == "reportPreview";
            EXPECT_TRUE(came) << qt::fromQt(preview.objectName());
            try {
                action(preview);
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
            if (preview.isVisible()) preview.reject();
        });
        chooseReport();
        handleEvents();
        EXPECT_TRUE(came);
        ASSERT_NE(editorWindow(), nullptr);
        EXPECT_TRUE(editorWindow()->isVisible());
    }
    void chooseReport() {
        auto& bar = find<QMenuBar>(*editorWindow(), "abr");
        for (QAction* top : bar.actions()) {
            if (!top->text().contains("ption")) continue;
            QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(top).center());
            handleEvents();
            for (QAction* entry : top->menu()->actions()) {
                if (entry->text().remove('&') != "Report") continue;
                return QTest::mouseClick(top->menu(), Qt::LeftButton, {}, top->menu()->actionGeometry(entry).center());
            }
        }
        ADD_FAILURE() << "there is no entry Report";
    }
    /// Runs a tool of the preview; `action` acts on the choice of a file that it opens.
    static void saveWith(QWidget& preview, const char* tool, const std::function<void(QFileDialog&)>& action) {
        const NextModal<QFileDialog> next(action);
        find<QAction>(preview, tool).trigger();
        handleEvents();
    }
    static std::function<void(QFileDialog&)> choosing(const QString& path) {
        return [path](QFileDialog& dialog) {
            find<QLineEdit>(dialog, "fileNameEdit").setText(path);
            QTest::keyClick(&find<QLineEdit>(dialog, "fileNameEdit"), Qt::Key_Return);
        };
    }
    template <class W>
    static W& find(const QObject& parent, const char* name) {
        auto* found = parent.findChild<W*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(std::string("nothing is called ") + name);
        return *found;
    }
    static report::PageView& pages(const QWidget& preview) {
        return static_cast<report::PageView&>(find<QAbstractScrollArea>(preview, "reportPages"));
    }
    [[nodiscard]] Names leftovers() const {
        Names names;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
            if (!name.endsWith(".hxs")) names.push_back(qt::fromQt(name));
        }
        return names;
    }
};

TEST_F(ReportPreview, TheMenuOpensItOverTheEditor) {
    openEditor();
    inPreview([this](QWidget& preview) {
        EXPECT_EQ(preview.windowTitle(), "Rezeptbericht – Anlage");
        EXPECT_TRUE(preview.isModal());
        EXPECT_EQ(preview.parentWidget(), &window());
        EXPECT_EQ(find<QAction>(preview, "reportPrint").text(), "Drucken");
        EXPECT_EQ(find<QComboBox>(preview, "reportZoom").currentText(), "Seitenbreite");
        const auto* names = find<QListView>(preview, "reportRecipes").model();
        ASSERT_EQ(names->rowCount(), 3);
        EXPECT_EQ(names->index(2, 0).data().toString(), "Meyer's Bräu");
    });
    window().activateWindow();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    click("Rezepte/Limonade");
    EXPECT_EQ(texts("Variable"), (Names{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(ReportPreview, SpeaksEnglish) {
    openEditor(qt::Wording::english);
    inPreview([](QWidget& preview) {
        EXPECT_EQ(preview.windowTitle(), "Recipe Report – Anlage");
        EXPECT_EQ(find<QAction>(preview, "reportPrint").text(), "Print");
        EXPECT_EQ(find<QComboBox>(preview, "reportZoom").currentText(), "Page Width");
    });
}

TEST_F(ReportPreview, EveryToolHasANameAKeyAndAPicture) {
    openEditor();
    inPreview([](QWidget& preview) {
        int tools = 0;
        for (QToolButton* button : preview.findChildren<QToolButton*>()) {
            if (button->defaultAction() == nullptr) continue;
            ++tools;
            const auto name = qt::fromQt(button->defaultAction()->objectName());
            EXPECT_NE(button->accessibleName(), "") << name;
            EXPECT_FALSE(button->icon().isNull()) << name;
            EXPECT_FALSE(button->defaultAction()->shortcut().isEmpty()) << name;
            EXPECT_EQ(button->focusPolicy(), Qt::TabFocus) << name;
        }
        EXPECT_EQ(tools, 12);
    });
}

TEST_F(ReportPreview, IsSavedAsPdf) {
    openEditor();
    const QString path = folder.filePath("Bericht.pdf");
    inPreview([&](QWidget& preview) {
        saveWith(preview, "reportPdf", choosing(path));
        EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(), "Gespeichert: " + path);
    });
    const QByteArray pdf = contentOf(path);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_GT(pdf.count("/Type /Page\n"), 1);
    EXPECT_EQ(leftovers(), Names{"Bericht.pdf"});
}

TEST_F(ReportPreview, IsSavedAsHtml) {
    openEditor(qt::Wording::english);
    inPreview([this](QWidget& preview) { saveWith(preview, "reportHtml", choosing(folder.filePath("Bericht"))); });
    const QByteArray html = contentOf(folder.filePath("Bericht.html"));
    EXPECT_TRUE(html.startsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_TRUE(html.contains("Meyer&#39;s Bräu"));
    EXPECT_TRUE(html.contains("Datei.Limonade"));
    EXPECT_TRUE(html.endsWith("</html>\n"));
    EXPECT_EQ(leftovers(), Names{"Bericht.html"});
}

TEST_F(ReportPreview, CancellingKeepsEverything) {
    openEditor();
    inPreview([](QWidget& preview) {
        saveWith(preview, "reportPdf", [](QFileDialog& dialog) {
            EXPECT_EQ(find<QLineEdit>(dialog, "fileNameEdit").text(), "Anlage.pdf");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        EXPECT_TRUE(preview.isVisible());
        EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(), "");
    });
    EXPECT_EQ(leftovers(), Names{});
}

TEST_F(ReportPreview, AFileIsReplacedOnlyWhenTheUserSaysSo) {
    openEditor();
    const QString path = folder.filePath("alt.html");
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    inPreview([&](QWidget& preview) {
        {
            const BoxAnswers answers({"Nein"});
            const Once again([&] { return choosesAfter(answers); },
                             [] {
                                 QWidget& choice = *QApplication::activeModalWidget();
                                 EXPECT_EQ(find<QLineEdit>(choice, "fileNameEdit").text(), "alt.html");
                                 QTest::keyClick(&choice, Qt::Key_Escape);
                             });
            const NextModal<QFileDialog> next(choosing(path));
            find<QAction>(preview, "reportHtml").trigger();
            ASSERT_EQ(answers.shown().size(), 1u);
            EXPECT_EQ(answers.shown()[0].text,
                      "Die Datei gibt es schon:\n" + qt::fromQt(path) + "\n\nSoll sie ersetzt werden?");
        }
        EXPECT_EQ(contentOf(path), "old");
        const BoxAnswers answers({"Ja"});
        saveWith(preview, "reportHtml", choosing(path));
        EXPECT_TRUE(contentOf(path).startsWith("<!DOCTYPE html>"));
    });
    EXPECT_EQ(leftovers(), Names{"alt.html"});
}

TEST_F(ReportPreview, TheProjectFileIsNeverReplaced) {
    openEditor();
    const QByteArray before = contentOf(project);
    inPreview([this](QWidget& preview) {
        const BoxAnswers answers({"OK"});
        const Once again([&] { return choosesAfter(answers); },
                         [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        const NextModal<QFileDialog> next(choosing(project));
        find<QAction>(preview, "reportPdf").trigger();
        ASSERT_EQ(answers.shown().size(), 1u);
        EXPECT_TRUE(answers.shown()[0].text.find("Projektdatei") != std::string::npos) << answers.shown()[0].text;
    });
    EXPECT_EQ(contentOf(project), before);
}

TEST_F(ReportPreview, AFailureToSaveIsShown) {
    openEditor();
    const QString path = folder.filePath("folder.pdf/report.pdf");
    ASSERT_TRUE(QFile(folder.filePath("folder.pdf")).open(QIODevice::WriteOnly));
    inPreview([&](QWidget& preview) {
        const BoxAnswers answers({"OK"});
        const NextModal<QFileDialog> next([&](QFileDialog& dialog) {
            // The dialog itself refuses a folder that there is not, so the choice is made behind its back.
            dialog.selectFile(path);
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        find<QAction>(preview, "reportPdf").trigger();
        ASSERT_EQ(answers.shown().size(), 1u);
        EXPECT_EQ(answers.shown()[0].title, "Rezeptbericht");
        EXPECT_TRUE(answers.shown()[0].text.starts_with("Der Bericht konnte nicht gespeichert werden:\n"));
    });
}

TEST_F(ReportPreview, PagesAreReachedByKeyboard) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        auto& number = find<QSpinBox>(preview, "reportPage");
        ASSERT_GT(number.maximum(), 2);
        EXPECT_TRUE(view.hasFocus());
        EXPECT_EQ(number.value(), 1);
        EXPECT_FALSE(find<QAction>(preview, "reportPrevious").isEnabled());
        QTest::keyClick(&view, Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(number.value(), 2);
        QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
        EXPECT_EQ(number.value(), number.maximum());
        EXPECT_FALSE(find<QAction>(preview, "reportNext").isEnabled());
        QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(number.value(), 1);
        number.setFocus();
        number.selectAll();
        QTest::keyClick(&number, Qt::Key_3);
        QTest::keyClick(&number, Qt::Key_Return);
        EXPECT_TRUE(preview.isVisible());
        EXPECT_EQ(view.page(), 2);
    });
}

TEST_F(ReportPreview, ZoomIsChangedByKeyAndList) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        auto& zoom = find<QComboBox>(preview, "reportZoom");
        QTest::keyClick(&view, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(zoom.currentText(), "Ganze Seite");
        const double whole = view.zoom();
        QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_GT(view.zoom(), whole);
        QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_LT(view.zoom(), whole);
        zoom.setCurrentIndex(zoom.findText("150 %"));
        emit zoom.activated(zoom.currentIndex());
        EXPECT_EQ(view.zoom(), 1.5);
        EXPECT_EQ(zoom.currentText(), "150 %");
        QTest::keyClick(&view, Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(zoom.currentText(), "Seitenbreite");
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    });
}

/// Chooses a recipe of the list; where the pages then are.
int placeOf(QWidget& preview, int recipe) {
    auto& list = find<QListView>(preview, "reportRecipes");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(recipe, 0)).center());
    return find<QAbstractScrollArea>(preview, "reportPages").verticalScrollBar()->value();
}

TEST_F(ReportPreview, ARecipeOfTheListIsShown) {
    openEditor();
    inPreview([](QWidget& preview) {
        QScrollBar& bar = *pages(preview).verticalScrollBar();
        const int first = placeOf(preview, 0), second = placeOf(preview, 1);
        EXPECT_GT(first, 0);
        EXPECT_GT(second, first);
        QTest::keyClick(&find<QListView>(preview, "reportRecipes"), Qt::Key_Up);
        EXPECT_EQ(bar.value(), first);
    });
}

TEST_F(ReportPreview, ALineOfTheContentsLeadsToItsRecipe) {
    openEditor();
    inPreview([](QWidget& preview) {
        report::PageView& view = pages(preview);
        const int second = placeOf(preview, 1);
        view.showPage(0);
        // The three lines of the contents stand somewhere on the first page; the pointer tells where there is a link.
        const int x = view.viewport()->width() / 3;
        int first = 0, last = 0;
        for (int y = 0; y < view.viewport()->height(); ++y) {
            const QPoint point(x, y);
            QMouseEvent move(QEvent::MouseMove, point, view.viewport()->mapToGlobal(point), Qt::NoButton, {}, {});
            QApplication::sendEvent(view.viewport(), &move);
            const bool link = view.viewport()->cursor().shape() == Qt::PointingHandCursor;
            if (link && first == 0) first = y;
            if (link) last = y;
            else if (first > 0) break;
        }
        ASSERT_GT(first, 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(x, (first + last) / 2));
        EXPECT_EQ(view.verticalScrollBar()->value(), second);
    });
}

TEST_F(ReportPreview, ARecipeIsShownAsSoonAsItsPageIsKnown) {
    openLarge();
    inPreview([](QWidget& preview) {
        auto& names = find<QListView>(preview, "reportRecipes");
        const auto& number = find<QSpinBox>(preview, "reportPage");
        emit names.clicked(names.model()->index(1499, 0));
        EXPECT_TRUE(waitUntil([&] { return number.value() > 1000; })) << number.value();
        EXPECT_TRUE(waitUntil([&] { return !find<QProgressBar>(preview, "reportLayout").isVisible(); }));
        EXPECT_LE(number.maximum() - number.value(), 2);
    });
}

/// Cancels the progress of the report as soon as it is shown.
class CancelProgress : public QObject {
  public:
    CancelProgress() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Show && object->objectName() == "reportProgress")
            static_cast<QProgressDialog*>(object)->cancel();
        return false;
    }
};

TEST_F(ReportPreview, WhatTakesLongIsCancelled) {
    openLarge();
    inPreview([this](QWidget& preview) {
        static_cast<report::PreviewWindow&>(preview).patience = 0;
        const CancelProgress cancelling;
        for (const char* tool : {"reportPdf", "reportHtml"}) {
            find<QStatusBar>(preview, "reportStatus").clearMessage();
            saveWith(preview, tool, choosing(folder.filePath("Bericht")));
            EXPECT_EQ(find<QStatusBar>(preview, "reportStatus").currentMessage(), "Abgebrochen") << tool;
        }
        EXPECT_TRUE(preview.isVisible());
    });
    EXPECT_EQ(leftovers(), Names{});
}

TEST_F(ReportPreview, EscapeClosesIt) {
    openEditor();
    inPreview([](QWidget& preview) {
        QTest::keyClick(&preview, Qt::Key_Escape);
        EXPECT_FALSE(preview.isVisible());
    });
}

TEST_F(ReportPreview, AProjectWithoutRecipesIsSaid) {
    start();
    ASSERT_TRUE(window().createProject(folder.filePath("leer.hxs")));
    click("Rezepte");
    const BoxAnswers answers({"OK"});
    chooseReport();
    handleEvents();
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text, "Das Projekt „leer“ enthält keine Rezepte.");
}

}  // namespace
}  // namespace hx::gui
