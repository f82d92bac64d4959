// SPDX-License-Identifier: MIT
#include "studio/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QStatusBar>
#include <QVBoxLayout>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "host/project_file.h"
#include "studio/new_project_dialog.h"
#include "studio/recipe_branch.h"
#include "studio/sample_project.h"
#include "studio/window_session.h"

namespace hx::studio {

namespace {

constexpr QSize usualSize(1280, 800);
constexpr QSize frameRoom(32, 64);  // what a frame takes at most; it is not there yet when the size is chosen
constexpr int explorerWidth = 280;
constexpr int noticeTime = 8000;
const QString title = QStringLiteral("HelvixStudio");
constexpr std::string_view languageValue = "LCID";

bool isProjectFile(const QString& path) { return host::isProjectFile(qt::fromQt(path)); }

}  // namespace

MainWindow::MainWindow(StudioHost& host, Preferences& preferences)
    : host_(host),
      preferences_(preferences),
      wording_(host.wording()),
      documentsHandle_(host.windows().add(documents_)),
      explorer_(tree_, documentsHandle_, host.clipboard(), host.screen()),
      macros_(*this, *this, host, explorer_),
      history_(*this, host, preferences.keepsDailyCopies(), explorer_, tree_,
               [this](const QString& text) { warn(text); }),
      find_(*this, *this, host, explorer_, tree_, history_, [this](const QString& text) { warn(text); }),
      recipes_(*this, host, explorer_, tree_, history_, find_.navigator(), find_.known(),
               [this](const QString& text) { warn(text); }),
      status_(*statusBar(), explorer_, tree_, find_.navigator(), history_, host.wording()),
      variables_(*this, documents_, *this, host, explorer_, tree_, history_, find_,
                 [this](const QString& text) { warn(text); }),
      menus_(*this, *this,
             QList<QAction*>{explorerDock_.toggleViewAction(), &history_.toggleDock(), &macros_.toggleOutput()} +
                 find_.toggles(),
             history_.actions(), host.wording()),
      help_(*this, host, [this](const QString& text) { warn(text); }),
      start_(*this, menus_.beginnings(), host.wording()) {
    setUp();
    restoreWindow();
    readLanguage();
    showProject();
}

MainWindow::~MainWindow() {
    recipes_.setProject(nullptr);
    variables_.finishEdit();
    variables_.close();
    project_.reset();
    find_.close();
    history_.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    host_.windows().remove(documentsHandle_);
}

void MainWindow::setUp() {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(qt::namedIcon("studio/studio"));
    tree_.setObjectName(QStringLiteral("projectExplorer"));
    tree_.setFrameShape(QFrame::NoFrame);
    explorerDock_.setObjectName(QStringLiteral("explorerDock"));
    auto* const rows = new QVBoxLayout(&explorerPanel_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(&find_.filter());
    rows->addWidget(&tree_, 1);
    explorerPanel_.setFocusProxy(&tree_);
    explorerDock_.setWidget(&explorerPanel_);
    explorerDock_.setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    central_.addWidget(&documents_);
    central_.addWidget(&start_);
    setCentralWidget(&central_);
    addDockWidget(Qt::LeftDockWidgetArea, &explorerDock_);
    macros_.addTo(*this);
    find_.addTo(*this, menus_.viewMenu());
    recipes_.addTo(*this, menus_.viewMenu());
    macros_.setGoTo([this](const Place& place, bool into) { find_.goTo(place, into); });
    variables_.addTo(*this, menus_.viewMenu());
    macros_.setRunningChanged([this](const QString& name) { history_.setMacro(name); });
    history_.addTo(*this);
    fileLabel_.setObjectName(QStringLiteral("projectFile"));
    fileLabel_.setContentsMargins(8, 0, 8, 0);
    statusBar()->addPermanentWidget(&fileLabel_);
}

void MainWindow::restoreWindow() {
    if (!restoreGeometry(preferences_.geometry())) {
        const QSize room = screen()->availableSize() - frameRoom;
        resize(usualSize.boundedTo(room));
        if (size() != usualSize) setWindowState(windowState() | Qt::WindowMaximized);
    }
    if (!restoreState(preferences_.layout())) resizeDocks({&explorerDock_}, {explorerWidth}, Qt::Horizontal);
    restoreColumns(*this, preferences_.columns());
}

void MainWindow::saveWindow() {
    Preferences::Session session;
    if (project_) session = sessionOf(project_->file(), history_.editor().state());
    session.filter = find_.filterText();
    session.byName = find_.sortsByName();
    const bool saved = preferences_.saveWindow(saveGeometry(), saveState(), columnsOf(*this));
    if (!saved || !preferences_.saveSession(session))
        warn(wording_.translate("studio", "The window and the list of projects could not be saved:\n%1"),
             preferences_.file());
}

void MainWindow::reopenLast() {
    const Preferences::Session session = preferences_.session();
    if (!preferences_.reopens() || !QFileInfo(session.file).isFile() || !openProject(session.file)) return;
    find_.arrange(session.filter, session.byName);
    attempt([&] { history_.editor().restore(placeOf(session)); });
    tree_.setFocus(Qt::OtherFocusReason);
}

void MainWindow::readLanguage() {
    std::int32_t lcid = qt::Wording::german;
    try {
        lcid = host_.registry().readNumber(host::registry_keys::helvix, languageValue, lcid);
    } catch (const automation::Error& error) {
        const QString reason = told(error);
        QMetaObject::invokeMethod(
            this, [this, reason] { warn(wording_.translate("studio", "The settings could not be read.\n%1"), reason); },
            Qt::QueuedConnection);
    }
    useLanguage(lcid);
}

void MainWindow::useLanguage(std::int32_t lcid) {
    host_.wording().setLanguage(lcid);
    QCoreApplication::removeTranslator(&translator_);
    const bool translated =
        !wording_.isEnglish() &&
        translator_.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (translated) QCoreApplication::installTranslator(&translator_);
    explorerDock_.setWindowTitle(wording_.translate("studio", "Project Explorer"));
    macros_.retranslate();
    history_.retranslate();
    find_.retranslate();
    recipes_.retranslate();
    variables_.retranslate();
    menus_.retranslate();
    tree_.setAccessibleName(wording_.translate("studio", "Project Explorer"));
    documents_.setAccessibleName(wording_.translate("studio", "Documents"));
    start_.retranslate();
    status_.refresh();
}

void MainWindow::chooseLanguage(std::int32_t lcid) {
    const bool other = lcid != wording_.language();
    if (other && project_ && !storesWhatIsTyped()) return menus_.retranslate();
    try {
        host_.registry().writeNumber(host::registry_keys::helvix, languageValue, lcid);
    } catch (const automation::Error& error) {
        menus_.retranslate();
        return warn(wording_.translate("studio", "The setting could not be saved.\n%1"), told(error));
    }
    useLanguage(lcid);
    if (other && project_) restartAddIn();
    statusBar()->showMessage(wording_.translate("studio", "Ready"), noticeTime);
}

// False when it shall stay as it is, or cannot be stored.
bool MainWindow::storesWhatIsTyped() {
    EditorRefresh& editor = history_.editor();
    if (!editor.hasOpenEdit()) return true;
    const QString question = wording_.translate(
        "studio", "The project is opened again in the other language. Shall what is being typed be stored first?");
    const auto answer = host_.screen().messageBox(qt::fromQt(question),
                                                  forms::message::yesNo | forms::message::question, qt::fromQt(title));
    return answer == forms::message::Answer::yes && attempt([&] { editor.finishEdit(); });
}

// What was done can still be undone, and the user stays where he is.
void MainWindow::restartAddIn() {
    const ExplorerState place = history_.editor().state();
    try {
        help_.install();
        project_->restartAddIn();
        history_.editor().restore(place);
    } catch (const automation::Error& error) {
        warn(wording_.translate("studio", "The recipe editor is not available.\n%1"), told(error));
    }
}

bool MainWindow::attempt(const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const std::exception&) {
        warn(qt::toQt(automation::caughtError().description(host_.screen().language())));
        return false;
    }
}

bool MainWindow::openProject(const QString& path) { return reported(&MainWindow::open, path); }

bool MainWindow::reported(void (MainWindow::*action)(const QString&), const QString& path) {
    try {
        (this->*action)(path);
        return true;
    } catch (const automation::Error& error) {
        warn(qt::toQt(error.description(host_.screen().language())));
        return false;
    }
}

void MainWindow::open(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) {
        tellUnlessListed(preferences_.removeRecent(path));
        fail(wording_.translate("studio", "The project file was not found:\n%1"), file.absoluteFilePath());
    }
    if (!isProjectFile(file.fileName())) {
        fail(wording_.translate("studio", "The name of a project file ends in \".hxs\":\n%1"), file.absoluteFilePath());
    }
    if (!host::isNameable(qt::fromQt(file.absoluteFilePath())))
        fail(wording_.translate("studio", "The name and the folder of a project must not contain \";\" or \"\"\":\n%1"),
             file.absoluteFilePath());
    closeProject();
    try {
        project_ = std::make_unique<Project>(path, host_, explorer_);
    } catch (const automation::Error& error) {
        fail(wording_.translate("studio", "The setting could not be saved.\n%1"), told(error));
    }
    showProject();
    statusBar()->showMessage(wording_.translate("studio", "Project %1 opened").arg(project_->name()), noticeTime);
    tellUnlessListed(preferences_.addRecent(project_->file()));
    history_.open(*project_);
    startAddIn();
    find_.open(project_->file());
    variables_.open();
    recipes_.setProject(project_.get());
    history_.tellOfLastSession();
}

// In the status line: the project itself is not concerned.
void MainWindow::tellUnlessListed(bool listed) {
    if (listed) return;
    const QString text = wording_.translate("studio", "The window and the list of projects could not be saved:\n%1")
                             .replace('\n', ' ')
                             .arg(preferences_.file());
    statusBar()->showMessage(text, noticeTime);
}

void MainWindow::startAddIn() {
    try {
        help_.install();
        project_->startAddIn();
    } catch (const automation::Error& error) {
        warn(wording_.translate("studio", "The recipe editor is not available.\n%1"), told(error));
    }
    tree_.setCurrentIndex(explorer_.model().find(qt::QtExplorer::projectKey));
    tree_.setFocus(Qt::OtherFocusReason);
}

void MainWindow::closeProject() {
    if (!project_) return;
    recipes_.setProject(nullptr);
    variables_.finishEdit();
    variables_.close();
    project_.reset();
    find_.close();
    history_.close();
    showProject();
    statusBar()->showMessage(wording_.translate("studio", "Project closed"), noticeTime);
}

bool MainWindow::createProject(const QString& path) { return reported(&MainWindow::create, path); }

void MainWindow::create(const QString& path) {
    const QString file = isProjectFile(path) ? path : path + qt::toQt(host::projectExtension);
    if (QFileInfo::exists(file))
        fail(wording_.translate("studio", "The file exists already. Please choose another name:\n%1"), file);
    if (!host::isNameable(qt::fromQt(QFileInfo(file).absoluteFilePath())))
        fail(wording_.translate("studio", "The name and the folder of a project must not contain \";\" or \"\"\":\n%1"),
             file);
    try {
        sqlite::createProject(qt::fromQt(file));
    } catch (const automation::Error& error) {
        fail(wording_.translate("studio", "The project could not be created:\n%1"),
             qt::toQt(error.description(host_.screen().language())));
    }
    open(file);
}

void MainWindow::showProject() {
    setWindowTitle(project_ ? title + QStringLiteral(" - ") + project_->name() : title);
    fileLabel_.setText(project_ ? QDir::toNativeSeparators(project_->file()) : QString());
    if (!project_) start_.refresh();
    central_.setCurrentWidget(project_ ? static_cast<QWidget*>(&documents_) : &start_);
    if (!project_) start_.setFocus(Qt::OtherFocusReason);
    menus_.setProjectOpen(project_ != nullptr);
}

void MainWindow::newProject() {
    NewProjectDialog dialog(*this, projectFolder(), wording_);
    while (dialog.exec() == QDialog::Accepted) {
        QDir().mkpath(QFileInfo(dialog.path()).absolutePath());
        if (createProject(dialog.path())) return openBranch();
    }
}

void MainWindow::openBranch() {
    const QModelIndex root = explorer_.model().find(branch::root);
    if (!root.isValid()) return;
    tree_.expand(root);
    tree_.choose(root);
    tree_.setFocus(Qt::OtherFocusReason);
}

bool MainWindow::hasSample() const { return !sampleProject(host_.moduleFolders()).isEmpty(); }

void MainWindow::openSample() {
    if (!copySample(sampleProject(host_.moduleFolders())))
        return warn(wording_.translate("studio", "The project could not be created:\n%1"), copyOfSample());
    if (openProject(copyOfSample())) openBranch();
}

void MainWindow::chooseProject() {
    QFileDialog dialog(this, wording_.translate("studio", "Open Project"), projectFolder());
    dialog.setObjectName(QStringLiteral("openProjectDialog"));
    dialog.setNameFilters(
        {wording_.translate("studio", "HelvixStudio projects (*.hxs)"), wording_.translate("studio", "All files (*)")});
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() == QDialog::Accepted) openProject(dialog.selectedFiles().constFirst());
}

void MainWindow::clearRecent() {
    if (!preferences_.clearRecent())
        warn(wording_.translate("studio", "The window and the list of projects could not be saved:\n%1"),
             preferences_.file());
}

void MainWindow::keepDailyCopies(bool keep) {
    history_.keepDailyCopies(keep);
    if (!preferences_.setKeepsDailyCopies(keep))
        warn(wording_.translate("studio", "The setting could not be saved.\n%1"), preferences_.file());
}

void MainWindow::reopenAtStart(bool reopen) {
    if (!preferences_.setReopens(reopen))
        warn(wording_.translate("studio", "The setting could not be saved.\n%1"), preferences_.file());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (macros_.isRunning()) {
        macros_.stopAndClose();
        return event->ignore();
    }
    saveWindow();
    closeProject();
    host_.help().closeAll();
    event->accept();
}

void MainWindow::warn(const QString& text) {
    host_.screen().messageBox(qt::fromQt(text), forms::message::ok | forms::message::exclamation, qt::fromQt(title));
}

QString MainWindow::told(const automation::Error& error) const {
    return qt::toQt(error.message(host_.screen().language()));
}

void MainWindow::fail(const QString& text, const QString& detail) const {
    throw automation::Error(automation::errFail, qt::fromQt(text.arg(detail)));
}

QString MainWindow::projectFolder() const {
    if (project_) return QFileInfo(project_->file()).absolutePath();
    const QStringList recent = preferences_.recent();
    if (!recent.isEmpty()) return QFileInfo(recent.constFirst()).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

}  // namespace hx::studio
