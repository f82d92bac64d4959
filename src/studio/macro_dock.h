// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolBar>
#include <string_view>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"
#include "studio/macro_findings.h"
#include "studio/output_buffer.h"

namespace hx::studio {

/// Shows what macros print and how they end.
class MacroDock : public QDockWidget {
  public:
    /// The latest lines are kept.
    static constexpr int lineCount = 10000;

    /// The actions stand first in the row of tools. All are lent.
    MacroDock(QWidget& window, QAction& runAgain, QAction& stop, const qt::Wording& wording);

    /// Shows itself; the macro of this name is running now.
    void begin(const QString& name);
    /// Takes what the macro prints; it is shown by flush().
    void print(std::string_view text) { buffer_.add(text); }
    void flush();
    void done(double seconds);
    void stopped(double seconds, const QString& traceback);
    void failed(const QString& message, const QString& traceback);
    void showNotRead(const QString& path);
    /// Lists what the macro has found; nothing hides the list.
    void showFound(std::vector<macros::Found> found);
    /// Who leads to a place of the list.
    void setGoTo(FoundView::GoTo goTo) { goTo_ = std::move(goTo); }

    [[nodiscard]] QString arguments() const { return arguments_.text(); }
    void setArguments(const QString& text) { arguments_.setText(text); }
    void setStopKey(const QString& key) { stopKey_ = key; }
    void setRunning(bool running);
    void retranslate();

  private:
    enum class State { idle, running, done, stopped, failed, notRead };
    void build(QAction& runAgain, QAction& stop);
    void buildTools(QAction& runAgain, QAction& stop);
    void buildText();
    void append(const QString& text, const QTextCharFormat& format);
    void appendError(const QString& text);
    [[nodiscard]] QString lineEnd() const;  ///< of a line that a macro has begun; empty for none
    void copyText();
    void setState(State state);
    [[nodiscard]] QString stateText() const;

    const qt::Wording& wording_;
    QWidget panel_;
    QToolBar tools_;
    QAction clear_, copy_;
    qt::PlainLabel argumentsLabel_;
    QLineEdit arguments_;
    qt::PlainLabel status_;
    QPlainTextEdit text_;
    FoundView::GoTo goTo_ = [](const Place&, bool) {};
    FoundModel foundModel_{1};
    FoundView found_{foundModel_, [this](const Place& place, bool into) { goTo_(place, into); }};
    OutputBuffer buffer_;
    State state_ = State::idle;
    QString name_, stopKey_, line_;
    double seconds_ = 0;
};

}  // namespace hx::studio
