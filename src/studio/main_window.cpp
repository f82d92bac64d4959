// SPDX-License-Identifier: MIT
#include "studio/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QScreen>
#include <QStandardPaths>
#include <QStatusBar>
#include <QVBoxLayout>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "host/project_file.h"
#include "resources/help.h"
#include "studio/options.h"

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
      menus_(*this, *this,
             QList<QAction*>{explorerDock_.toggleViewAction(), &history_.toggleDock(), &macros_.toggleOutput()} +
                 find_.toggles(),
             history_.actions(), host.wording()) {
    setUp();
    restoreWindow();
    readLanguage();
    showProject();
}

MainWindow::~MainWindow() {
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
    setCentralWidget(&documents_);
    addDockWidget(Qt::LeftDockWidgetArea, &explorerDock_);
    macros_.addTo(*this);
    find_.addTo(*this, menus_.viewMenu());
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
    menus_.retranslate();
    tree_.setAccessibleName(wording_.translate("studio", "Project Explorer"));
    documents_.setAccessibleName(wording_.translate("studio", "Documents"));
    documents_.setHint(
        project_ ? QString() : wording_.translate("studio", "No project is open\n\nFile → Open or File → New Project"));
}

void MainWindow::chooseLanguage(std::int32_t lcid) {
    try {
        host_.registry().writeNumber(host::registry_keys::helvix, languageValue, lcid);
    } catch (const automation::Error& error) {
        menus_.retranslate();
        return warn(wording_.translate("studio", "The setting could not be saved.\n%1"), told(error));
    }
    useLanguage(lcid);
    statusBar()->showMessage(
        project_ ? wording_.translate("studio",
                                      "The recipe editor's language takes effect with the next project that is opened.")
                 : wording_.translate("studio", "Ready"),
        noticeTime);
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
    tellOfLastSession();
}

// A studio that did not end as it should has left its steps behind.
void MainWindow::tellOfLastSession() {
    const std::size_t steps = history_.stepsFromBefore();
    if (steps == 0) return;
    history_.showDock();
    statusBar()->showMessage(
        wording_.translate("studio", "Changes of the last session: %1. They can be undone in the history.")
            .arg(wording_.number(steps)));
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
        installHelp();
        project_->startAddIn();
    } catch (const automation::Error& error) {
        warn(wording_.translate("studio", "The recipe editor is not available.\n%1"), told(error));
    }
    tree_.setCurrentIndex(explorer_.model().find(qt::QtExplorer::projectKey));
    tree_.setFocus(Qt::OtherFocusReason);
}

// Before the add-in starts: it then looks for its help.
void MainWindow::installHelp() {
    HelpFile& help = host_.helpFile();
    help.nameCommonFolder();
    if (help.install(wording_.language()) == HelpFile::Result::failed) {
        statusBar()->showMessage(
            wording_.translate("studio", "The help could not be put in its place: %1").arg(help.path()), noticeTime);
    }
}

void MainWindow::showHelp() {
    try {
        installHelp();
        host_.help().showContext(documentsHandle_, qt::fromQt(host_.helpFile().path()),
                                 resources::help_context::overview);
    } catch (const automation::Error& error) {
        warn(wording_.translate("studio", "The setting could not be saved.\n%1"), told(error));
    }
}

void MainWindow::closeProject() {
    if (!project_) return;
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
    documents_.setHint(
        project_ ? QString() : wording_.translate("studio", "No project is open\n\nFile → Open or File → New Project"));
    menus_.setProjectOpen(project_ != nullptr);
}

void MainWindow::newProject() {
    QFileDialog dialog(this, wording_.translate("studio", "New Project"), projectFolder(),
                       wording_.translate("studio", "HelvixStudio projects (*.hxs)"));
    dialog.setObjectName(QStringLiteral("newProjectDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);  // an existing file is never overwritten
    dialog.setDefaultSuffix(qt::toQt(host::projectExtension.substr(1)));
    if (dialog.exec() == QDialog::Accepted) createProject(dialog.selectedFiles().constFirst());
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

void MainWindow::showAbout() {
    QMessageBox box(this);
    box.setObjectName(QStringLiteral("aboutBox"));
    box.setWindowTitle(wording_.translate("studio", "&About HelvixStudio").remove('&'));
    box.setIconPixmap(windowIcon().pixmap(64, 64));
    box.setText(
        wording_
            .translate("studio",
                       "<b>HelvixStudio %1</b><p>Engineering of process visualisations with the recipe editor.</p>")
            .arg(versionText().section(' ', 1)));
    box.exec();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (macros_.isRunning()) {
        macros_.stopAndClose();
        return event->ignore();
    }
    if (!preferences_.saveWindow(saveGeometry(), saveState()))
        warn(wording_.translate("studio", "The window and the list of projects could not be saved:\n%1"),
             preferences_.file());
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
