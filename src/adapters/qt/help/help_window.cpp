// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStatusBar>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

namespace {

constexpr QSize usualSize(920, 680);
constexpr int navigationWidth = 260, narrowest = 640, fromOwner = 60, noteTime = 8000;
constexpr QSize least(240, 160);  // in which a topic can still be read

bool isDialog(const QWidget& window) { return window.windowType() == Qt::Dialog; }

int readableArea(const QRect& place) {
    const bool readable = place.width() >= least.width() && place.height() >= least.height();
    return readable ? place.width() * place.height() : 0;
}

// What the desktop puts around a window, around this one as around others.
QMargins frameOf(const QWidget& window) {
    const QRect inner = window.geometry(), outer = window.frameGeometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

}  // namespace

HelpWindow::HelpWindow(const Wording& wording)
    : wording_(wording),
      back_(this),
      forward_(this),
      home_(this),
      find_(this),
      findNext_(this),
      findPrevious_(this),
      escape_(this),
      tabs_(&splitter_),
      contents_(&tabs_),
      search_(wording, &tabs_),
      right_(&splitter_),
      column_(&right_),
      page_(&right_),
      findBar_(page_, wording, &right_) {
    setObjectName(QStringLiteral("helpWindow"));
    setWindowIcon(namedIcon("help/viewer"));
    setAttribute(Qt::WA_QuitOnClose, false);  // the studio ends with its own windows
    setUpActions();
    setUpPanes();
    connectPanes();
    retranslate();
}

HelpWindow::~HelpWindow() {
    if (above_) above_->removeEventFilter(this);
    page_.setBook(nullptr);
}

void HelpWindow::addAction(QAction& action, const char* name, const char* icon, const QList<QKeySequence>& keys) {
    action.setObjectName(QLatin1StringView(name));
    action.setShortcuts(keys);
    if (icon != nullptr) action.setIcon(namedIcon(icon));
    QMainWindow::addAction(&action);
}

void HelpWindow::setUpActions() {
    addAction(back_, "helpBack", "help/back", {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Back)});
    addAction(forward_, "helpForward", "help/forward",
              {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Forward)});
    addAction(home_, "helpHome", "help/home", {QKeySequence(Qt::ALT | Qt::Key_Home)});
    addAction(find_, "helpFindOnPage", "help/find", {QKeySequence(Qt::CTRL | Qt::Key_F)});
    addAction(findNext_, "helpNextMatch", nullptr, {QKeySequence(Qt::Key_F3)});
    addAction(findPrevious_, "helpPreviousMatch", nullptr, {QKeySequence(Qt::SHIFT | Qt::Key_F3)});
    addAction(escape_, "helpEscape", nullptr, {QKeySequence(Qt::Key_Escape)});
    bar_.setObjectName(QStringLiteral("helpBar"));
    bar_.setMovable(false);
    bar_.setIconSize(QSize(20, 20));
    bar_.addActions({&back_, &forward_, &home_});
    bar_.addSeparator();
    bar_.addAction(&find_);
    bar_.setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    addToolBar(&bar_);
    connect(&back_, &QAction::triggered, &page_, &QTextBrowser::backward);
    connect(&forward_, &QAction::triggered, &page_, &QTextBrowser::forward);
    connect(&home_, &QAction::triggered, this, [this] { goHome(); });
    connect(&find_, &QAction::triggered, this, [this] { findBar_.open(); });
    connect(&findNext_, &QAction::triggered, this,
            [this] { findBar_.isVisible() ? findBar_.next() : findBar_.open(); });
    connect(&findPrevious_, &QAction::triggered, this, [this] { findBar_.previous(); });
    connect(&escape_, &QAction::triggered, this, [this] { escape(); });
}

void HelpWindow::setUpPanes() {
    tabs_.setObjectName(QStringLiteral("helpTabs"));
    tabs_.setDocumentMode(true);
    tabs_.addTab(&contents_, QString());
    tabs_.addTab(&search_, QString());
    column_.setContentsMargins(0, 0, 0, 0);
    column_.setSpacing(0);
    column_.addWidget(&page_, 1);
    column_.addWidget(&findBar_);
    splitter_.setObjectName(QStringLiteral("helpSplitter"));
    splitter_.addWidget(&tabs_);
    splitter_.addWidget(&right_);
    splitter_.setChildrenCollapsible(false);
    splitter_.setStretchFactor(1, 1);
    splitter_.setSizes({navigationWidth, usualSize.width() - navigationWidth});
    setCentralWidget(&splitter_);
    statusBar()->setObjectName(QStringLiteral("helpStatus"));
}

void HelpWindow::connectPanes() {
    contents_.chosen = [this](const QString& path) {
        if (!page_.showTopic(path)) page_.brokenLink(path);
    };
    search_.chosen = [this](const QString& path, const QStringList& words) {
        if (page_.showTopic(path)) findBar_.mark(words);
    };
    page_.outsideLink = [this](const QString& target) {
        note(wording_.translate("help", "Help opens only topics of its own, not %1").arg(target));
    };
    page_.brokenLink = [this](const QString& path) {
        note(wording_.translate("help", "There is no topic %1 in this help.").arg(path));
    };
    connect(&page_, &QTextBrowser::sourceChanged, this, [this] { topicShown(); });
    connect(&page_, &QTextBrowser::backwardAvailable, &back_, &QAction::setEnabled);
    connect(&page_, &QTextBrowser::forwardAvailable, &forward_, &QAction::setEnabled);
    // A link under the mouse says where it leads, when that is out of the book.
    connect(&page_, &QTextBrowser::highlighted, this, [this](const QUrl& link) {
        const bool outside = !link.isRelative() && link.scheme() != QStringLiteral("help");
        statusBar()->showMessage(
            outside ? wording_.translate("help", "Help opens only topics of its own, not %1").arg(link.toString())
                    : QString());
    });
    connect(&tabs_, &QTabWidget::currentChanged, this, [this](int index) {
        if (tabs_.widget(index) == &search_) search_.focusField();
    });
    back_.setEnabled(false);
    forward_.setEnabled(false);
}

void HelpWindow::retranslate() {
    const std::pair<QAction*, QString> actions[] = {{&back_, wording_.translate("help", "Back")},
                                                    {&forward_, wording_.translate("help", "Forward")},
                                                    {&home_, wording_.translate("help", "Start Page")},
                                                    {&find_, wording_.translate("help", "Find on Page")},
                                                    {&findNext_, wording_.translate("help", "Next Match")},
                                                    {&findPrevious_, wording_.translate("help", "Previous Match")}};
    for (const auto& [action, text] : actions) {
        action->setText(text);
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(plainToolTip(QStringLiteral("%1 (%2)").arg(action->text(), keys)));
    }
    tabs_.setTabText(0, wording_.translate("help", "&Contents"));
    tabs_.setTabText(1, wording_.translate("help", "&Search"));
    tabs_.setAccessibleName(wording_.translate("help", "Navigation"));
    contents_.setAccessibleName(wording_.translate("help", "&Contents").remove('&'));
    page_.setAccessibleName(wording_.translate("help", "Help Topic"));
    search_.retranslate();
    findBar_.retranslate();
    showTitle();
}

void HelpWindow::setBook(std::unique_ptr<HelpBook> book) {
    page_.setBook(nullptr);
    book_ = std::move(book);
    page_.setBook(book_.get());
    contents_.setBook(*book_);
    search_.setBook(*book_);
}

void HelpWindow::showContext(std::int32_t context) {
    const auto topic = book_->contexts().constFind(context);
    const bool known = topic != book_->contexts().constEnd();
    page_.showTopic(known ? topic.value() : book_->startTopic());
    if (!known) note(wording_.translate("help", "There is no topic of its own for this place (%1).").arg(context));
}

void HelpWindow::topicShown() {
    showTitle();
    contents_.select(page_.shownTopic());
    findBar_.pageChanged();
    statusBar()->clearMessage();
    if (page_.showsTextAlone())
        note(wording_.translate("help", "This topic is nested too deeply or too long: only its text is shown."));
}

void HelpWindow::showTitle() {
    const QString path = page_.shownTopic();
    const QString name = book_ && !book_->title().isEmpty() ? book_->title() : wording_.translate("help", "Help");
    setWindowTitle(path.isEmpty() ? name : QStringLiteral("%1 - %2").arg(book_->titleOf(path), name));
}

void HelpWindow::goHome() {
    if (book_) page_.showTopic(book_->startTopic());
}

void HelpWindow::escape() {
    if (findBar_.isVisible()) findBar_.close();
    else close();
}

void HelpWindow::note(const QString& text) { statusBar()->showMessage(text, noteTime); }

void HelpWindow::showOver(QWidget* owner) {
    owner_ = owner == nullptr ? nullptr : owner->window();
    retranslate();
    const bool covers = owner_ && isDialog(*owner_) && frameGeometry().intersects(owner_->frameGeometry());
    if (covers || !testAttribute(Qt::WA_Moved)) place(owner_);
    if (!isVisible()) winId();  // the window must be there to be put above another
    stayAbove();
    if (isMinimized()) showNormal();
    else show();
    raise();
    activateWindow();
    page_.setFocus(Qt::OtherFocusReason);
}

// Beside the owner where there is room for it, else towards the right edge: what help is asked for should stay seen.
void HelpWindow::place(QWidget* owner) {
    const QScreen* screen = owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    const QRect around = owner != nullptr ? owner->frameGeometry() : room;
    const QMargins frame = owner != nullptr ? frameOf(*owner) : QMargins();
    const int onTheRight = room.right() - around.right(), onTheLeft = around.left() - room.left();
    const int beside = std::max(onTheRight, onTheLeft) - frame.left() - frame.right();
    if (beside < narrowest && owner != nullptr && isDialog(*owner) && placeInstead(*owner, room)) return;
    QRect own(QPoint(), usualSize.boundedTo(room.size() * 0.92));
    if (beside >= narrowest) {
        own.setWidth(std::min(own.width(), beside));
        if (onTheRight >= onTheLeft) own.moveLeft(around.right() + 1 + frame.left());
        else own.moveRight(around.left() - 1 - frame.right());
    } else {
        own.moveRight(around.width() > own.width() ? around.right() - fromOwner : room.right());
    }
    own.moveTop(around.top() + fromOwner);
    own.moveTop(std::max(room.top() + fromOwner / 2, std::min(own.top(), room.bottom() - own.height())));
    own.moveLeft(std::max(room.left(), own.left()));
    setGeometry(own);
}

// Where there is too little room on either side, the dialog moves to an edge of the screen, and the help takes the
// rest, beside it or below it. False when the dialog leaves no such rest.
bool HelpWindow::placeInstead(QWidget& dialog, const QRect& room) {
    const QSize outer = dialog.frameGeometry().size();
    const QRect beside = room.adjusted(outer.width(), 0, 0, 0).marginsRemoved(frameOf(dialog));
    const QRect below = room.adjusted(0, outer.height(), 0, 0).marginsRemoved(frameOf(dialog));
    const bool goesBeside = readableArea(beside) > readableArea(below);
    const QRect& rest = goesBeside ? beside : below;
    if (readableArea(rest) == 0) return false;
    dialog.move(goesBeside ? QPoint(room.left(), dialog.y()) : QPoint(dialog.x(), room.top()));
    setGeometry(QRect(rest.topLeft(), usualSize.boundedTo(rest.size())));
    return true;
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    tabs_.setVisible(width() >= narrowest);  // else the topic takes the whole window
}

// A modal dialog blocks every window that is not its own: the help becomes one of it, for as long as it is open.
void HelpWindow::stayAbove() {
    QWindow* window = QGuiApplication::modalWindow();
    if (window == nullptr && owner_) window = owner_->windowHandle();
    if (windowHandle() == nullptr || window == windowHandle()) return;
    if (window == above_ && windowHandle()->transientParent() == window) return;
    if (above_) above_->removeEventFilter(this);
    above_ = window;
    if (above_) above_->installEventFilter(this);
    windowHandle()->setTransientParent(window);
}

bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        QMetaObject::invokeMethod(
            this, [this] { stayAbove(); }, Qt::QueuedConnection);
    }
    return QMainWindow::event(event);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == above_ && event->type() == QEvent::Hide) {
        QMetaObject::invokeMethod(
            this, [this] { stayAbove(); }, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace hx::qt
