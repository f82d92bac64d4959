// SPDX-License-Identifier: MIT
#include "report/preview/preview_window.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>
#include <cstdlib>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "resources/help.h"

namespace hx::report {

namespace {

constexpr int listWidth = 230, iconSize = 20;
constexpr std::size_t atOnce = 20;  // so many parts are laid out before the window comes: most projects have no more
constexpr QSize usualSize(1080, 860);

struct ZoomEntry {
    PageView::Fit fit;
    int percent;
};
constexpr auto zoomEntries = std::to_array<ZoomEntry>({
    {PageView::Fit::width, 0},
    {PageView::Fit::page, 0},
    {PageView::Fit::none, 50},
    {PageView::Fit::none, 75},
    {PageView::Fit::none, 100},
    {PageView::Fit::none, 125},
    {PageView::Fit::none, 150},
    {PageView::Fit::none, 200},
    {PageView::Fit::none, 400},
});

QString percentText(double zoom) { return QStringLiteral("%1 %").arg(std::lround(zoom * 100)); }

}  // namespace

PreviewWindow::PreviewWindow(const Report& report, const host::Services& services, forms::WindowHandle handle,
                             QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                         Qt::WindowCloseButtonHint),
      report_(report),
      services_(services),
      wording_(report.texts().wording()),
      handle_(handle),
      pages_(report, usualPaper()),
      folder_(QFileInfo(qt::toQt(report.projectFile())).absolutePath()),
      findBar_([this](const QString& text, bool backwards) { return find(text, backwards); }, wording_, this),
      find_(this),
      findNext_(this),
      findPrevious_(this),
      print_(this),
      pdf_(this),
      html_(this),
      first_(this),
      previous_(this),
      next_(this),
      last_(this),
      zoomIn_(this),
      zoomOut_(this),
      width_(this),
      whole_(this),
      close_(this),
      help_(this),
      names_(report),
      recipes_(&splitter_),
      view_(pages_, &splitter_),
      layout_(pages_, wording_.translate("report", "Pages"), wording_.translate("report", "Stop"), &status_) {
    setObjectName(QStringLiteral("reportPreview"));
    setWindowTitle(qt::toQt(report.fullTitle()));
    setWindowIcon(qt::namedIcon("report/report"));
    setAttribute(Qt::WA_QuitOnClose, false);  // the studio ends with its own windows
    for (std::size_t i = 0; i < atOnce && !pages_.complete(); ++i) pages_.layOutPart();
    setUpTools();
    setUpPanes();
    setUpKeys();
    view_.changed = [this] { showState(); };
    place(owner);
    view_.setFit(PageView::Fit::width);
    view_.setFocus();
    layout_.goOn();
}

void PreviewWindow::addTool(QAction& action, const char* name, const char* icon, const QString& text,
                            const QKeySequence& key, const std::function<void()>& run, bool withText,
                            const QString& hint) {
    action.setObjectName(QLatin1StringView(name));
    action.setText(text);
    action.setIcon(qt::namedIcon(icon));
    action.setShortcut(key);
    const QString& told = hint.isEmpty() ? text : hint;
    action.setToolTip(qt::plainToolTip(QStringLiteral("%1 (%2)").arg(told, key.toString(QKeySequence::NativeText))));
    connect(&action, &QAction::triggered, this, run);
    bar_.addAction(&action);
    auto* button = qobject_cast<QToolButton*>(bar_.widgetForAction(&action));
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(told);
    if (withText) button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void PreviewWindow::setUpTools() {
    bar_.setObjectName(QStringLiteral("reportBar"));
    bar_.setAccessibleName(wording_.translate("report", "Tools"));
    bar_.setIconSize(QSize(iconSize, iconSize));
    addTool(
        print_, "reportPrint", "report/print", wording_.translate("report", "Print"), QKeySequence::Print,
        [this] { print(); }, true);
    const QString asPdf = wording_.translate("report", "Save as PDF");
    addTool(
        pdf_, "reportPdf", "report/pdf", wording_.translate("report", "PDF"), QKeySequence(Qt::CTRL | Qt::Key_S),
        [this, asPdf] {
            save({asPdf, wording_.translate("report", "PDF files (*.pdf)"), "pdf",
                  [this](const QString& path, const Progress& progress) {
                      layOutRest(progress);
                      return savePdf(report_, pages_, {0, pages_.count() - 1}, path, progress);
                  }});
        },
        true, asPdf);
    const QString asHtml = wording_.translate("report", "Save as HTML");
    addTool(
        html_, "reportHtml", "report/html", wording_.translate("report", "HTML"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        [this, asHtml] {
            save({asHtml, wording_.translate("report", "HTML files (*.html *.htm)"), "html",
                  [this](const QString& path, const Progress& progress) { return saveHtml(report_, path, progress); }});
        },
        true, asHtml);
    bar_.addSeparator();
    addPageTools();
    bar_.addSeparator();
    addZoomTools();
    bar_.addSeparator();
    addTool(find_, "reportFind", "help/find", wording_.translate("report", "Find"), QKeySequence::Find,
            [this] { findBar_.open(); });
    auto* space = new QWidget(&bar_);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar_.addWidget(space);
    addTool(
        close_, "reportClose", "report/close", wording_.translate("report", "Close"), QKeySequence(Qt::Key_Escape),
        [this] { close(); }, true);
}

void PreviewWindow::addPageTools() {
    addTool(first_, "reportFirst", "report/first-page", wording_.translate("report", "First Page"),
            QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { view_.showPage(0); });
    addTool(previous_, "reportPrevious", "report/previous-page", wording_.translate("report", "Previous Page"),
            QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { view_.showPage(view_.page() - 1); });
    pageLabel_.setText(wording_.translate("report", "Page"));
    pageLabel_.setContentsMargins(4, 0, 4, 0);
    page_.setObjectName(QStringLiteral("reportPage"));
    page_.setAccessibleName(wording_.translate("report", "Page"));
    page_.setButtonSymbols(QAbstractSpinBox::NoButtons);
    page_.setAlignment(Qt::AlignRight);
    page_.setKeyboardTracking(false);
    showCount();
    count_.setContentsMargins(4, 0, 4, 0);
    for (QWidget* widget :
         {static_cast<QWidget*>(&pageLabel_), static_cast<QWidget*>(&page_), static_cast<QWidget*>(&count_)}) {
        bar_.addWidget(widget);
    }
    connect(&page_, &QSpinBox::valueChanged, this, [this](int page) { view_.showPage(page - 1); });
    addTool(next_, "reportNext", "report/next-page", wording_.translate("report", "Next Page"),
            QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { view_.showPage(view_.page() + 1); });
    addTool(last_, "reportLast", "report/last-page", wording_.translate("report", "Last Page"),
            QKeySequence(Qt::CTRL | Qt::Key_End), [this] { view_.showPage(pages_.count() - 1); });
}

void PreviewWindow::addZoomTools() {
    addTool(zoomOut_, "reportZoomOut", "report/zoom-out", wording_.translate("report", "Zoom Out"),
            QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { view_.zoomStep(-1); });
    zoom_.setObjectName(QStringLiteral("reportZoom"));
    zoom_.setAccessibleName(wording_.translate("report", "Zoom"));
    zoom_.setToolTip(qt::plainToolTip(wording_.translate("report", "Zoom")));
    for (const ZoomEntry& entry : zoomEntries) {
        const bool isWidth = entry.fit == PageView::Fit::width;
        zoom_.addItem(entry.percent > 0 ? percentText(entry.percent / 100.0)
                      : isWidth         ? wording_.translate("report", "Page Width")
                                        : wording_.translate("report", "Whole Page"));
    }
    connect(&zoom_, &QComboBox::activated, this, [this](int index) { chooseZoom(index); });
    bar_.addWidget(&zoom_);
    addTool(zoomIn_, "reportZoomIn", "report/zoom-in", wording_.translate("report", "Zoom In"),
            QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { view_.zoomStep(1); });
    addTool(width_, "reportFitWidth", "report/fit-width", wording_.translate("report", "Page Width"),
            QKeySequence(Qt::CTRL | Qt::Key_0), [this] { view_.setFit(PageView::Fit::width); });
    addTool(whole_, "reportFitPage", "report/fit-page", wording_.translate("report", "Whole Page"),
            QKeySequence(Qt::CTRL | Qt::Key_1), [this] { view_.setFit(PageView::Fit::page); });
}

void PreviewWindow::setUpPanes() {
    recipes_.setObjectName(QStringLiteral("reportRecipes"));
    recipes_.setAccessibleName(wording_.translate("report", "Recipes"));
    recipes_.setModel(&names_);
    recipes_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    recipes_.setUniformItemSizes(true);
    recipes_.setFrameShape(QFrame::NoFrame);
    recipes_.setTextElideMode(Qt::ElideRight);
    recipes_.setStyleSheet(QStringLiteral("QListView { padding: 4px 2px; } QListView::item { padding: 3px 6px; }"));
    connect(&recipes_, &QListView::clicked, this, [this](const QModelIndex& index) { showRecipe(index); });
    connect(recipes_.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
        if (recipes_.hasFocus()) showRecipe(index);
    });
    view_.setAccessibleName(wording_.translate("report", "Pages of the report"));
    splitter_.setObjectName(QStringLiteral("reportSplitter"));
    splitter_.setStretchFactor(1, 1);
    splitter_.setSizes({listWidth, usualSize.width() - listWidth});
    splitter_.setHandleWidth(1);
    status_.addPermanentWidget(&layout_);
    layout_.hide();  // the bar has shown it
    layout_.advanced = [this] {
        showCount();
        view_.pagesChanged();
    };
    status_.setSizeGripEnabled(true);
    status_.setObjectName(QStringLiteral("reportStatus"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&bar_);
    layout->addWidget(&findBar_);
    layout->addWidget(&splitter_, 1);
    layout->addWidget(&status_);
}

void PreviewWindow::setUpKeys() {
    // The plus of the number block, and the one that is typed with Shift on some keyboards.
    zoomIn_.setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal),
                          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Plus)});
    findNext_.setShortcut(QKeySequence(Qt::Key_F3));
    findPrevious_.setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3));
    connect(&findNext_, &QAction::triggered, this, [this] { findBar_.go(false); });
    connect(&findPrevious_, &QAction::triggered, this, [this] { findBar_.go(true); });
    addActions({&findNext_, &findPrevious_});
    findBar_.closed = [this] {
        view_.showMatch({});
        view_.setFocus();
    };
    help_.setShortcut(QKeySequence(Qt::Key_F1));
    connect(&help_, &QAction::triggered, this, [this] { showHelp(); });
    addAction(&help_);
}

// As large as there is room for beside the frame of the screen, in the middle of the owner.
void PreviewWindow::place(const QWidget* owner) {
    const QScreen* screen = owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    QRect own(QPoint(), usualSize.boundedTo(room.size() * 0.92));
    own.moveCenter(owner != nullptr ? owner->frameGeometry().center() : room.center());
    own.moveLeft(std::clamp(own.left(), room.left(), std::max(room.left(), room.right() - own.width())));
    own.moveTop(std::clamp(own.top(), room.top(), std::max(room.top(), room.bottom() - own.height())));
    setGeometry(own);
}

// While the pages are laid out, there are more than those.
void PreviewWindow::showCount() {
    const QSignalBlocker quiet(page_);
    page_.setRange(1, pages_.count());
    const QString count = qt::toQt(report_.texts().number(static_cast<std::size_t>(pages_.count())));
    count_.setText(wording_.translate("report", "of %1").arg(pages_.complete() ? count : count + QStringLiteral(" …")));
}

void PreviewWindow::showState() {
    if (view_.awaitsRecipe()) layout_.goOn();
    const int page = view_.page();
    const QSignalBlocker quiet(page_);
    page_.setValue(page + 1);
    for (QAction* back : {&first_, &previous_}) back->setEnabled(page > 0);
    for (QAction* on : {&next_, &last_}) on->setEnabled(page + 1 < pages_.count());
    const auto entry = std::ranges::find_if(zoomEntries, [this](const ZoomEntry& one) {
        return one.fit == view_.fit() && (one.percent == 0 || std::lround(view_.zoom() * 100) == one.percent);
    });
    const bool listed = entry != zoomEntries.end();
    zoom_.setPlaceholderText(percentText(view_.zoom()));
    zoom_.setCurrentIndex(listed ? static_cast<int>(entry - zoomEntries.begin()) : -1);
}

void PreviewWindow::chooseZoom(int index) {
    const ZoomEntry& entry = zoomEntries[static_cast<std::size_t>(index)];
    if (entry.fit != PageView::Fit::none) view_.setFit(entry.fit);
    else view_.setZoom(entry.percent / 100.0);
}

void PreviewWindow::showRecipe(const QModelIndex& index) {
    if (index.isValid()) view_.showRecipe(static_cast<std::size_t>(index.row()));
}

// All around, behind the row that was found last while it is in sight, else from the page that is shown.
bool PreviewWindow::find(const QString& text, bool backwards) {
    std::optional<Pages::Match> last = view_.match(), found;
    if (last && std::abs(last->page - view_.page()) > 1) last.reset();
    const auto search = [&](const Progress& progress) {
        layOutRest(progress);
        const int first = last ? last->page : view_.page(), count = pages_.count();
        for (int step = 0; step <= count && !found; ++step) {
            const int page = ((backwards ? first - step : first + step) % count + count) % count;
            auto matches = pages_.matchesOn(page, text);
            if (step == 0 && last)
                std::erase_if(matches, [&](const Pages::Match& match) {
                    return backwards ? match.row >= last->row : match.row <= last->row;
                });
            if (!matches.empty()) found = backwards ? matches.back() : matches.front();
            progress(step, count + 1);
        }
    };
    if (work(search, wording_.translate("report", "Looking for “%1” …").arg(text))) view_.showMatch(found);
    return found.has_value();
}

void PreviewWindow::saved(const QString& path, const QString& problem) {
    const QString shown = QDir::toNativeSeparators(path);
    if (problem.isEmpty()) status_.showMessage(wording_.translate("report", "Saved: %1").arg(shown), noteTime);
    else
        say(wording_.translate("report", "The report could not be saved:\n%1\n\n%2").arg(shown, problem),
            forms::message::ok | forms::message::critical);
}

forms::message::Answer PreviewWindow::say(const QString& message, std::int32_t style) {
    return services_.screen.messageBox(qt::fromQt(message), style, report_.texts().text(Text::title));
}

void PreviewWindow::showHelp() {
    resources::Help help(services_);
    help.SetHelpFile();
    help.ShowHelp(handle_, resources::help_context::report);
}

}  // namespace hx::report
