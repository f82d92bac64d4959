// SPDX-License-Identifier: MIT
#include "studio/studio_menus.h"

#include <QFileInfo>
#include <QMenuBar>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/wording.h"

namespace hx::studio {

StudioMenus::StudioMenus(QMainWindow& window, StudioCommands& commands, const QList<QAction*>& views,
                         const QList<QAction*>& edits, const qt::Wording& wording)
    : commands_(commands),
      wording_(wording),
      file_(&window),
      recent_(&window),
      edit_(&window),
      view_(&window),
      language_(&window),
      help_(&window),
      new_(&window),
      open_(&window),
      sample_(&window),
      close_(&window),
      copies_(&window),
      reopen_(&window),
      exit_(&window),
      german_(&window),
      english_(&window),
      showHelp_(&window),
      shortcuts_(&window),
      about_(&window),
      languages_(this) {
    build(window, views, edits);
    connect(&new_, &QAction::triggered, this, [this] { commands_.newProject(); });
    connect(&open_, &QAction::triggered, this, [this] { commands_.chooseProject(); });
    connect(&close_, &QAction::triggered, this, [this] { commands_.closeProject(); });
    connect(&copies_, &QAction::triggered, this, [this](bool keep) { commands_.keepDailyCopies(keep); });
    connect(&sample_, &QAction::triggered, this, [this] { commands_.openSample(); });
    connect(&reopen_, &QAction::triggered, this, [this](bool reopen) { commands_.reopenAtStart(reopen); });
    connect(&shortcuts_, &QAction::triggered, this, [this] { commands_.showShortcuts(); });
    connect(&exit_, &QAction::triggered, &window, &QWidget::close);
    connect(&german_, &QAction::triggered, this, [this] { commands_.chooseLanguage(qt::Wording::german); });
    connect(&english_, &QAction::triggered, this, [this] { commands_.chooseLanguage(qt::Wording::english); });
    connect(&showHelp_, &QAction::triggered, this, [this] { commands_.showHelp(); });
    connect(&about_, &QAction::triggered, this, [this] { commands_.showAbout(); });
    connect(&recent_, &QMenu::aboutToShow, this, [this] { fillRecent(); });
    retranslate();
}

void StudioMenus::build(QMainWindow& window, const QList<QAction*>& views, const QList<QAction*>& edits) {
    const std::pair<QObject*, const char*> names[] = {
        {&file_, "menuFile"},       {&recent_, "menuRecent"},     {&edit_, "menuEdit"},
        {&view_, "menuView"},       {&language_, "menuLanguage"}, {&help_, "menuHelp"},
        {&new_, "actionNew"},       {&open_, "actionOpen"},       {&close_, "actionClose"},
        {&exit_, "actionExit"},     {&german_, "actionGerman"},   {&english_, "actionEnglish"},
        {&about_, "actionAbout"},   {&showHelp_, "actionHelp"},   {&copies_, "actionDailyCopies"},
        {&sample_, "actionSample"}, {&reopen_, "actionReopen"},   {&shortcuts_, "actionShortcuts"}};
    for (const auto& [object, name] : names) object->setObjectName(QLatin1StringView(name));
    new_.setShortcut(QKeySequence::New);
    new_.setIcon(qt::namedIcon("studio/new-project"));
    open_.setShortcut(QKeySequence::Open);
    open_.setIcon(qt::namedIcon("studio/open-project"));
    exit_.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    for (QAction* action : {&german_, &english_}) {
        action->setCheckable(true);
        languages_.addAction(action);
    }
    file_.addActions({&new_, &open_});
    file_.addMenu(&recent_);
    sample_.setIcon(qt::namedIcon("studio/project"));
    sample_.setVisible(commands_.hasSample());
    file_.addAction(&sample_);
    file_.addSeparator();
    file_.addAction(&close_);
    file_.addSeparator();
    copies_.setCheckable(true);
    reopen_.setCheckable(true);
    file_.addActions({&copies_, &reopen_});
    file_.addSeparator();
    file_.addAction(&exit_);
    edit_.addActions(edits);
    view_.addActions(views);
    language_.addActions({&german_, &english_});
    showHelp_.setIcon(qt::namedIcon("studio/help"));
    help_.addActions({&showHelp_, &shortcuts_});
    help_.addSeparator();
    help_.addAction(&about_);
    for (QMenu* menu : {&file_, &edit_, &view_, &language_, &help_}) window.menuBar()->addMenu(menu);
}

void StudioMenus::retranslate() {
    const std::pair<QAction*, QString> actions[] = {
        {file_.menuAction(), wording_.translate("studio", "&File")},
        {recent_.menuAction(), wording_.translate("studio", "&Recent Projects")},
        {edit_.menuAction(), wording_.translate("studio", "&Edit")},
        {view_.menuAction(), wording_.translate("studio", "&View")},
        {language_.menuAction(), wording_.translate("studio", "&Language")},
        {help_.menuAction(), wording_.translate("studio", "&Help")},
        {&new_, wording_.translate("studio", "&New Project…")},
        {&open_, wording_.translate("studio", "&Open…")},
        {&close_, wording_.translate("studio", "&Close Project")},
        {&copies_, wording_.translate("studio", "&Keep a Copy before Each Day's First Change")},
        {&sample_, wording_.translate("studio", "&Sample Project")},
        {&reopen_, wording_.translate("studio", "Open the &Last Project at Start")},
        {&shortcuts_, wording_.translate("studio", "&Keyboard Shortcuts")},
        {&exit_, wording_.translate("studio", "E&xit")},
        {&german_, wording_.translate("studio", "&Deutsch (German)")},
        {&english_, wording_.translate("studio", "&English")},
        {&showHelp_, wording_.translate("studio", "&Recipe System Help")},
        {&about_, wording_.translate("studio", "&About HelvixStudio")}};
    for (const auto& [action, text] : actions) action->setText(text);
    (wording_.isEnglish() ? english_ : german_).setChecked(true);
    copies_.setChecked(commands_.keepsDailyCopies());
    reopen_.setChecked(commands_.reopensAtStart());
}

QList<QAction*> StudioMenus::beginnings() { return {&new_, &open_, &sample_, &showHelp_}; }

void StudioMenus::fillRecent() {
    recent_.clear();
    int number = 0;
    for (const QString& path : commands_.recentProjects()) {
        const QString name = QFileInfo(path).completeBaseName().replace('&', QStringLiteral("&&"));
        QAction* action = recent_.addAction(QStringLiteral("&%1  %2\t%3").arg(++number).arg(name, path));
        connect(
            action, &QAction::triggered, this, [this, path] { commands_.openRecent(path); }, Qt::QueuedConnection);
    }
    recent_.addSeparator();
    QAction* clear = recent_.addAction(wording_.translate("studio", "&Clear List"));
    clear->setEnabled(number > 0);
    connect(clear, &QAction::triggered, this, [this] { commands_.clearRecent(); });
}

}  // namespace hx::studio
