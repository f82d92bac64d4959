// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QListView>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <functional>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"
#include "host/services.h"
#include "report/preview/find_bar.h"
#include "report/preview/layout_progress.h"
#include "report/preview/output.h"
#include "report/preview/page_view.h"
#include "report/preview/recipe_names.h"

class QPrinter;

namespace hx::report {

/// The preview of a report: its pages, a list of its recipes, and a tool bar with print, save as PDF or HTML, pages and
/// zoom. Everything in it works by keyboard.
class PreviewWindow : public QDialog {
  public:
    /// Report and services are lent. Messages and help appear over the host's window `handle`.
    PreviewWindow(const Report& report, const host::Services& services, forms::WindowHandle handle, QWidget* owner);

    /// Milliseconds that a work takes before its progress is shown.
    int patience = 1000;

  private:
    /// A kind of file that the report can be saved as.
    struct FileKind {
        QString hint, kinds;
        const char* suffix;
        std::function<QString(const QString& path, const Progress& progress)> write;
    };

    void setUpTools();
    void addTool(QAction& action, const char* name, const char* icon, const QString& text, const QKeySequence& key,
                 const std::function<void()>& run, bool withText = false, const QString& hint = {});
    void addPageTools();
    void addZoomTools();
    void setUpPanes();
    void setUpKeys();
    void place(const QWidget* owner);
    void showState();
    void showCount();
    void chooseZoom(int index);
    void showRecipe(const QModelIndex& index);
    [[nodiscard]] bool find(const QString& text, bool backwards);

    /// Runs what may take long under a dialog that can cancel it; whether it came to its end.
    bool work(const std::function<void(const Progress& progress)>& task, const QString& label = {});
    void layOutRest(const Progress& progress);
    void print();
    void printTo(QPrinter& printer);
    void save(const FileKind& kind);
    [[nodiscard]] QString askForFile(const FileKind& kind);
    [[nodiscard]] bool mayWrite(const QString& path);
    void saved(const QString& path, const QString& problem);
    forms::message::Answer say(const QString& text, std::int32_t style);
    void showHelp();

    const Report& report_;
    const host::Services& services_;
    const qt::Wording wording_;
    forms::WindowHandle handle_;
    Pages pages_;
    QString folder_;
    QToolBar bar_;
    FindBar findBar_;
    QAction find_, findNext_, findPrevious_;
    QAction print_, pdf_, html_, first_, previous_, next_, last_, zoomIn_, zoomOut_, width_, whole_, close_, help_;
    QSpinBox page_;
    qt::PlainLabel pageLabel_, count_;
    QComboBox zoom_;
    QSplitter splitter_;
    RecipeNames names_;
    QListView recipes_;
    PageView view_;
    static constexpr int noteTime = 15000;  // ms
    QStatusBar status_;
    LayoutProgress layout_;
};

}  // namespace hx::report
