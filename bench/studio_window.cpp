// SPDX-License-Identifier: MIT
#include "bench/studio_window.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <filesystem>
#include <iostream>

#include "bench/require.h"
#include "hosting/ini_text_file.h"

namespace hx::bench {

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& point) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, point, widget.mapToGlobal(point), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void clickAt(QWidget& widget, const QPoint& point) {
    sendMouse(widget, QEvent::MouseButtonPress, point);
    sendMouse(widget, QEvent::MouseButtonRelease, point);
}

void askNothing(const std::string& project) {
    const std::string file = std::filesystem::path(project).replace_filename("HXEditors.ini").string();
    hosting::IniTextFile().write("frmtabGridRCP", "RequestOnDelete", "False", file);
}

// A message would wait for its answer for ever.
void endOnMessage() {
    const QWidget* modal = QApplication::activeModalWidget();
    const auto* box = qobject_cast<const QMessageBox*>(modal);
    if (box == nullptr) return;
    std::cerr << "hx_bench: " << box->text().toStdString() << std::endl;
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

StudioWindow::StudioWindow(const Project& project) : host_(folder_.path(), {QStringLiteral(HX_MODULE_FOLDER)}) {
    require(keepsNoCopies_, "the settings cannot be written");
    askNothing(project.path);
    constexpr int interval = 100;
    QObject::connect(&watch_, &QTimer::timeout, endOnMessage);
    watch_.start(interval);
    window_.show();
    window_.activateWindow();
    require(window_.openProject(QString::fromStdString(project.path)), "the studio does not open the project");
    click("Rezepte");
    click("Gesamtanlage");
    findGrid();
    require(grid_ != nullptr && rows() == project.big, "the editor does not show the recipe");
    // What is wrong in the project is read beside; a user finds it there when he begins.
    const auto* const problems = window_.findChild<QWidget*>("problemsCount");
    while (!problems->isVisibleTo(&window_)) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    grid_->setFocus();
    settle();
}

StudioWindow::~StudioWindow() = default;

void StudioWindow::findGrid() { grid_ = window_.findChild<QTableView*>("tdbRM.Splits(1)"); }

void StudioWindow::settle() {
    QPointer<QWidget> viewport = grid_ == nullptr ? nullptr : grid_->viewport();
    if (viewport) viewport->update();
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void StudioWindow::click(const QString& caption) {
    auto& tree = *window_.findChild<QTreeView*>("projectExplorer");
    settle();
    const QAbstractItemModel& model = *tree.model();
    const auto found =
        model.match(model.index(0, 0), Qt::DisplayRole, caption, 1, Qt::MatchExactly | Qt::MatchRecursive);
    require(!found.isEmpty(), "a node of the explorer is missing");
    const QModelIndex at = found.constFirst();
    tree.expand(at.parent());
    tree.scrollTo(at);
    clickAt(*tree.viewport(), tree.visualRect(at).center());
    settle();
}

int StudioWindow::column(const QString& caption) const {
    const QAbstractItemModel& model = *grid_->model();
    for (int i = 0; i < model.columnCount(); ++i) {
        if (model.headerData(i, Qt::Horizontal).toString() == caption) return i;
    }
    throw std::runtime_error("a column is missing");
}

void StudioWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(grid_, &event);
    }
    settle();
}

void StudioWindow::clickHeader(const QString& caption) {
    QHeaderView& header = *grid_->horizontalHeader();
    constexpr int inside = 20;
    clickAt(*header.viewport(), {header.sectionViewportPosition(column(caption)) + inside, header.height() / 2});
    settle();
}

void StudioWindow::showNextRecipe() {
    auto& tree = *window_.findChild<QTreeView*>("projectExplorer");
    const QModelIndex shown = tree.currentIndex(), next = shown.siblingAtRow(shown.row() + 1);
    require(next.isValid(), "there is no other recipe");
    clickAt(*tree.viewport(), tree.visualRect(next).center());
    settle();
}

void StudioWindow::refreshView() {
    forms::Form* const editor = host_.attendedScreen().find("frmtabgrid");
    require(editor != nullptr, "the editor is not open");
    const automation::Variant tool("mnuOptionActualize");
    (void)editor->get("abr").asObject()->get("Click", automation::Args(&tool, 1));
    settle();
    findGrid();
}

void StudioWindow::sortByNothing(const QString& caption) {
    const QHeaderView& header = *grid_->horizontalHeader();
    while (header.isSortIndicatorShown()) clickHeader(caption);
}

}  // namespace hx::bench
