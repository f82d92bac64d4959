// SPDX-License-Identifier: MIT
#include "studio/macro_dock.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTime>
#include <QVBoxLayout>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

constexpr int argumentsWidth = 30;  // characters
constexpr int tabWidth = 8;         // characters
constexpr int iconSize = 16;

bool isDark(const QWidget& widget) { return widget.palette().color(QPalette::Base).lightness() < 128; }

// "name.lua:12: what"
QString lineOf(const QString& message) {
    static const QRegularExpression place(QStringLiteral("^[^:\\n]*:(\\d+):"));
    return place.match(message).captured(1);
}

}  // namespace

MacroDock::MacroDock(QWidget& window, QAction& runAgain, QAction& stop, const qt::Wording& wording)
    : QDockWidget(&window),
      wording_(wording),
      panel_(this),
      tools_(&panel_),
      clear_(this),
      copy_(this),
      argumentsLabel_(&panel_),
      arguments_(&panel_),
      status_(&panel_),
      text_(&panel_) {
    setObjectName(QStringLiteral("macroDock"));
    setAllowedAreas(Qt::AllDockWidgetAreas);
    build(runAgain, stop);
    connect(&clear_, &QAction::triggered, &text_, &QPlainTextEdit::clear);
    connect(&copy_, &QAction::triggered, this, [this] { copyText(); });
    retranslate();
    hide();
}

void MacroDock::build(QAction& runAgain, QAction& stop) {
    const std::pair<QObject*, const char*> names[] = {{&tools_, "macroTools"},      {&clear_, "actionClearOutput"},
                                                      {&copy_, "actionCopyOutput"}, {&arguments_, "macroArguments"},
                                                      {&status_, "macroStatus"},    {&text_, "macroText"},
                                                      {&found_, "macroFound"}};
    for (const auto& [object, name] : names) object->setObjectName(QLatin1StringView(name));
    buildTools(runAgain, stop);
    buildText();
    auto* const rows = new QVBoxLayout(&panel_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(&tools_);
    rows->addWidget(&status_);
    rows->addWidget(&text_, 1);
    rows->addWidget(&found_, 1);
    setWidget(&panel_);
}

void MacroDock::buildTools(QAction& runAgain, QAction& stop) {
    clear_.setIcon(qt::namedIcon("studio/clear-output"));
    copy_.setIcon(qt::namedIcon("studio/copy-output"));
    tools_.setIconSize(QSize(iconSize, iconSize));
    tools_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools_.addActions({&runAgain, &stop});
    tools_.addSeparator();
    tools_.addActions({&clear_, &copy_});
    tools_.addSeparator();
    for (QAction* action : tools_.actions()) {
        if (!action->isSeparator()) tools_.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    argumentsLabel_.setBuddy(&arguments_);
    argumentsLabel_.setContentsMargins(4, 0, 4, 0);
    arguments_.setClearButtonEnabled(true);
    arguments_.setMaximumWidth(arguments_.fontMetrics().averageCharWidth() * argumentsWidth);
    tools_.addWidget(&argumentsLabel_);
    tools_.addWidget(&arguments_);
}

void MacroDock::buildText() {
    status_.setContentsMargins(8, 0, 8, 4);
    status_.setWordWrap(true);
    status_.hide();
    text_.setReadOnly(true);
    text_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text_.setTabStopDistance(text_.fontMetrics().horizontalAdvance(' ') * tabWidth);
    text_.setMaximumBlockCount(lineCount);
    text_.setFrameShape(QFrame::NoFrame);
    found_.setHeaderHidden(true);
    found_.hide();
}

void MacroDock::begin(const QString& name) {
    name_ = name;
    showFound({});
    setState(State::running);
    show();
    raise();
    QTextCharFormat quiet;
    quiet.setForeground(palette().color(QPalette::PlaceholderText));
    const QString time = wording_.locale().toString(QTime::currentTime(), QStringLiteral("HH:mm:ss"));
    append(lineEnd() + QStringLiteral("── %1  %2 ──\n").arg(name, time), quiet);
}

void MacroDock::flush() {
    if (buffer_.isEmpty()) return;
    std::size_t leftOut = 0;
    const QString text = buffer_.take(leftOut);
    if (leftOut > 0)
        append(wording_.translate("studio", "[%1 lines left out]").arg(wording_.number(leftOut)) + '\n', {});
    append(text, {});
}

// Who has scrolled up to read stays there.
void MacroDock::append(const QString& text, const QTextCharFormat& format) {
    QScrollBar& bar = *text_.verticalScrollBar();
    const bool follows = bar.value() == bar.maximum();
    QTextCursor end(text_.document());
    end.movePosition(QTextCursor::End);
    end.insertText(text, format);
    if (follows) bar.setValue(bar.maximum());
}

void MacroDock::appendError(const QString& text) {
    QTextCharFormat red;
    red.setForeground(isDark(text_) ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e));
    append(lineEnd() + text + '\n', red);
}

QString MacroDock::lineEnd() const {
    const bool lineBegun = text_.document()->lastBlock().length() > 1;
    return lineBegun ? QStringLiteral("\n") : QString();
}

void MacroDock::done(double seconds) {
    flush();
    seconds_ = seconds;
    setState(State::done);
}

void MacroDock::stopped(double seconds, const QString& traceback) {
    flush();
    seconds_ = seconds;
    setState(State::stopped);
    appendError(stateText() + (traceback.isEmpty() ? QString() : '\n' + traceback));
}

void MacroDock::failed(const QString& message, const QString& traceback) {
    flush();
    line_ = lineOf(message);
    setState(State::failed);
    // Without a place in the text it is what the macro itself has to say.
    appendError(message + (line_.isEmpty() || traceback.isEmpty() ? QString() : '\n' + traceback));
}

void MacroDock::showFound(std::vector<macros::Found> found) {
    found_.setVisible(!found.empty());
    foundModel_.setThings(found.empty() ? nullptr : std::make_shared<MacroFindings>(name_, std::move(found), wording_));
    found_.showAll();
}

void MacroDock::showNotRead(const QString& path) {
    show();
    raise();
    name_ = path;
    setState(State::notRead);
    appendError(stateText());
}

void MacroDock::setRunning(bool running) {
    for (QWidget* widget : {static_cast<QWidget*>(&arguments_), static_cast<QWidget*>(&argumentsLabel_)}) {
        widget->setEnabled(!running);
    }
}

void MacroDock::copyText() {
    const QString selected = text_.textCursor().selection().toPlainText();
    QGuiApplication::clipboard()->setText(selected.isEmpty() ? text_.toPlainText() : selected);
}

void MacroDock::setState(State state) {
    state_ = state;
    status_.setText(stateText());
    status_.show();
}

QString MacroDock::stateText() const {
    const QString seconds = wording_.locale().toString(seconds_, 'f', 1);
    switch (state_) {
        case State::running: return wording_.translate("studio", "%1 is running… (%2 stops it)").arg(name_, stopKey_);
        case State::done: return wording_.translate("studio", "%1: done in %2 s").arg(name_, seconds);
        case State::stopped: return wording_.translate("studio", "%1: stopped after %2 s").arg(name_, seconds);
        case State::failed:
            if (line_.isEmpty()) return wording_.translate("studio", "%1: failed").arg(name_);
            return wording_.translate("studio", "%1: failed in line %2").arg(name_, line_);
        case State::notRead: return wording_.translate("studio", "The file cannot be read: %1").arg(name_);
        default: return {};
    }
}

void MacroDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "Macro output"));
    tools_.setWindowTitle(wording_.translate("studio", "Macro output"));
    text_.setAccessibleName(wording_.translate("studio", "Macro output"));
    found_.setAccessibleName(wording_.translate("studio", "What the macro has found"));
    clear_.setText(wording_.translate("studio", "Cl&ear"));
    copy_.setText(wording_.translate("studio", "Cop&y"));
    argumentsLabel_.setText(wording_.translate("studio", "Ar&guments:"));
    arguments_.setAccessibleName(wording_.translate("studio", "Ar&guments:").remove('&').remove(':'));
    arguments_.setToolTip(qt::plainToolTip(
        wording_.translate("studio", "What the macro is given, separated by spaces; text with spaces in \"\"")));
    status_.setText(stateText());
}

}  // namespace hx::studio
