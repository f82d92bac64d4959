// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QLineEdit>
#include <QTextBrowser>
#include <QToolButton>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// The line below a page that finds text on it. Every match is marked, the current one selected.
class HelpFindBar : public QWidget {
  public:
    /// Both are lent.
    HelpFindBar(QTextBrowser& page, const Wording& wording, QWidget* parent);
    void retranslate();
    /// Shows the bar with the keyboard in its field; text that is selected on the page is looked for.
    void open();
    void close();
    void next() { go(1); }
    void previous() { go(-1); }
    /// To be called when the page shows another topic: the marks are made anew.
    void pageChanged();
    /// Marks the words on the page, without the bar, and brings one of them into sight.
    void mark(const QStringList& words);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void setUpButton(QToolButton& button, const char* name, const char* icon);
    void textChanged();
    void go(int step);
    void collect(const QString& word);
    void showMarks();

    QTextBrowser& page_;
    const Wording& wording_;
    QHBoxLayout row_{this};
    QLineEdit field_;
    QToolButton previous_, next_, close_;
    PlainLabel state_;
    QList<QTextCursor> matches_;
    qsizetype current_ = -1;
};

}  // namespace hx::qt
