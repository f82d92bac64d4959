// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_contents.h"
#include "adapters/qt/help/help_find_bar.h"
#include "adapters/qt/help/help_page.h"
#include "adapters/qt/help/help_search_pane.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// The window of the help viewer. It lies over the window that asked for help, and over every modal dialog that is open
/// or comes: help can be read and searched beside a dialog, which gives way where the screen is small.
class HelpWindow : public QMainWindow {
  public:
    /// The wording is lent.
    explicit HelpWindow(const Wording& wording);
    ~HelpWindow() override;

    /// Takes over an open book.
    void setBook(std::unique_ptr<HelpBook> book);
    [[nodiscard]] const HelpBook* book() const noexcept { return book_.get(); }
    /// Shows the topic of a context number; the first topic, and a note, when there is none.
    void showContext(std::int32_t context);
    /// Shows the window over `owner`, in the language that is set now.
    void showOver(QWidget* owner);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setUpActions();
    void setUpPanes();
    void connectPanes();
    void retranslate();
    void addAction(QAction& action, const char* name, const char* icon, const QList<QKeySequence>& keys);
    void topicShown();
    void showTitle();
    void goHome();
    void escape();
    void place(QWidget* owner);
    bool placeInstead(QWidget& dialog, const QRect& room);
    void stayAbove();
    void note(const QString& text);

    const Wording& wording_;
    std::unique_ptr<HelpBook> book_;
    QPointer<QWidget> owner_;
    QPointer<QWindow> above_;
    QToolBar bar_;
    QAction back_, forward_, home_, find_, findNext_, findPrevious_, escape_;
    QSplitter splitter_;
    QTabWidget tabs_;
    HelpContents contents_;
    HelpSearchPane search_;
    QWidget right_;
    QVBoxLayout column_;
    HelpPage page_;
    HelpFindBar findBar_;
};

}  // namespace hx::qt
