// SPDX-License-Identifier: MIT
#include "studio/find_commands.h"

#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "studio/recipe_branch.h"

namespace hx::studio {

namespace {

// Grids draw themselves afresh with what they mark.
void repaintGrids(const QMainWindow& window) {
    for (QAbstractScrollArea* area : window.findChildren<QAbstractScrollArea*>()) area->viewport()->update();
}

}  // namespace

FindCommands::FindCommands(QMainWindow& window, ProjectWindow& projects, StudioHost& host, qt::QtExplorer& explorer,
                           qt::ExplorerTree& tree, HistoryCommands& history, Warn warn)
    : host_(host),
      explorer_(explorer),
      tree_(tree),
      history_(history),
      projects_(projects),
      wording_(host.wording()),
      warn_(std::move(warn)),
      menu_(&window),
      startFilter_(&window),
      sort_(&window),
      find_(&window),
      whereUsed_(&window),
      back_(&window),
      forward_(&window),
      toSubRecipe_(&window),
      rename_(&window),
      filter_(explorer, tree, sort_, host.wording()),
      navigator_(projects, host, explorer, tree),
      known_(host.wording()),
      live_(host),
      problems_(
          window, live_, known_, [&window] { repaintGrids(window); }, host.wording(),
          [this](const Place& place, bool into) { goTo(place, into); }),
      uses_(window, live_, host.wording(), [this](const Place& place, bool into) { goTo(place, into); }),
      texts_(
          window, live_, host.wording(), [this](const Place& place, bool into) { goTo(place, into); },
          [this](const auto& replacements, const QString& name) { attempt([&] { store(replacements, name); }); }),
      variable_(window, live_, navigator_, host.wording(),
                [this](const Place& place, bool into) { goTo(place, into); }) {
    host.screen().setMarks(&known_);
    history_.setWatch([this] { live_.noteChange(); }, [this] { live_.letWrite(); });
    explorer_.model().setRenaming(
        [](std::string_view key) { return branch::idOf(branch::recipe, key) != 0; },
        [this](const std::string& key, const std::string& name) { attempt([&] { rename(key, name); }); });
    window.installEventFilter(this);
    build(window);
    connectActions();
    close();
}

FindCommands::~FindCommands() {
    host_.screen().setMarks(nullptr);
    history_.setWatch([] {}, [] {});
}

void FindCommands::build(QMainWindow& window) {
    menu_.setObjectName(QStringLiteral("menuSearch"));
    const std::pair<QAction*, const char*> names[] = {
        {&startFilter_, "actionFilter"}, {&sort_, "actionSortByName"},      {&find_, "actionFind"},
        {&back_, "actionBack"},          {&forward_, "actionForward"},      {&whereUsed_, "actionWhereUsed"},
        {&rename_, "actionRename"},      {&toSubRecipe_, "actionSubRecipe"}};
    for (const auto& [action, name] : names) action->setObjectName(QLatin1StringView(name));
    startFilter_.setShortcut(QKeySequence::Find);
    find_.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    whereUsed_.setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F12));
    toSubRecipe_.setShortcut(QKeySequence(Qt::Key_F12));
    back_.setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    forward_.setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    back_.setIcon(qt::namedIcon("help/back"));
    forward_.setIcon(qt::namedIcon("help/forward"));
    find_.setIcon(qt::namedIcon("help/find"));
    sort_.setCheckable(true);
    sort_.setIcon(qt::namedIcon("studio/sort-by-name"));
    // In a cell the key is the grid's.
    rename_.setShortcut(QKeySequence(Qt::Key_F2));
    rename_.setShortcutContext(Qt::WidgetShortcut);
    tree_.addAction(&rename_);
    menu_.addActions({&startFilter_, &sort_});
    menu_.addSeparator();
    menu_.addActions({&find_, &whereUsed_, problems_.toggleViewAction()});
    menu_.addSeparator();
    menu_.addActions({&back_, &forward_, &toSubRecipe_, &rename_});
    window.addActions({&back_, &forward_});
}

void FindCommands::connectActions() {
    connect(&startFilter_, &QAction::triggered, this, [this] { filter_.start(); });
    connect(&find_, &QAction::triggered, this, [this] { texts_.start(); });
    connect(&whereUsed_, &QAction::triggered, this, [this] { showWhereUsed(); });
    connect(&back_, &QAction::triggered, this, [this] { navigator_.back(); });
    connect(&forward_, &QAction::triggered, this, [this] { navigator_.forward(); });
    connect(&toSubRecipe_, &QAction::triggered, this, [this] { goToSubRecipe(); });
    connect(&rename_, &QAction::triggered, this, [this] {
        tree_.setFocus(Qt::OtherFocusReason);
        if (tree_.currentIndex().flags().testFlag(Qt::ItemIsEditable)) tree_.edit(tree_.currentIndex());
    });
    navigator_.visitedChanged = [this] { showVisited(); };
}

QList<QAction*> FindCommands::toggles() {
    return {problems_.toggleViewAction(), uses_.toggleViewAction(), texts_.toggleViewAction(),
            variable_.toggleViewAction()};
}

void FindCommands::addTo(QMainWindow& window, QAction* before) {
    window.menuBar()->insertMenu(before, &menu_);
    QDockWidget* beside = window.findChild<QDockWidget*>(QStringLiteral("macroDock"));
    for (QDockWidget* dock : std::initializer_list<QDockWidget*>{&problems_, &uses_, &texts_}) {
        window.addDockWidget(Qt::BottomDockWidgetArea, dock);
        if (beside != nullptr) window.tabifyDockWidget(beside, dock);
        beside = dock;
        dock->hide();
    }
    window.addDockWidget(Qt::RightDockWidgetArea, &variable_);
    window.statusBar()->addPermanentWidget(&problems_.count());
}

void FindCommands::retranslate() {
    menu_.setTitle(wording_.translate("studio", "&Search"));
    const std::pair<QAction*, QString> actions[] = {{&startFilter_, wording_.translate("studio", "&Filter Explorer")},
                                                    {&sort_, wording_.translate("studio", "Explorer by &Name")},
                                                    {&find_, wording_.translate("studio", "Find and &Replace")},
                                                    {&whereUsed_, wording_.translate("studio", "&Where Used")},
                                                    {&back_, wording_.translate("studio", "&Back")},
                                                    {&forward_, wording_.translate("studio", "F&orward")},
                                                    {&toSubRecipe_, wording_.translate("studio", "&Go to Sub-Recipe")},
                                                    {&rename_, wording_.translate("studio", "Rena&me Recipe")}};
    for (const auto& [action, text] : actions) action->setText(text);
    sort_.setToolTip(qt::plainToolTip(
        wording_.translate("studio", "Orders the recipes by their names instead of as they were made")));
    filter_.retranslate();
    problems_.retranslate();
    uses_.retranslate();
    texts_.retranslate();
    variable_.retranslate();
}

void FindCommands::open(const QString& file) {
    for (QAction* action : {&startFilter_, &find_, &whereUsed_, &toSubRecipe_, &rename_}) action->setEnabled(true);
    live_.open(file);
}

void FindCommands::close() {
    for (QAction* action : {&startFilter_, &find_, &whereUsed_, &toSubRecipe_, &rename_}) action->setEnabled(false);
    live_.close();
    filter_.clear();
    navigator_.forget();
}

void FindCommands::arrange(const QString& filter, bool byName) {
    sort_.setChecked(byName);
    filter_.setText(filter);
}

void FindCommands::goTo(const Place& place, bool into) {
    attempt([&] { (void)navigator_.show(place, into); });
}

void FindCommands::showVisited() {
    back_.setEnabled(navigator_.canGoBack());
    forward_.setEnabled(navigator_.canGoForward());
}

void FindCommands::showWhereUsed() {
    if (const QString name = variableElsewhere(); !name.isEmpty()) return uses_.showUsesOf(name);
    const Navigator::Here here = navigator_.here();
    if (here.inGrid && here.subRecipe != 0) return uses_.showUsesOf(here.subRecipe);
    if (here.inGrid && !here.variable.empty()) return uses_.showUsesOf(qt::toQt(here.variable));
    if (here.recipe != 0 && !here.inGrid) return uses_.showUsesOf(here.recipe);
    uses_.ask();
}

void FindCommands::goToSubRecipe() {
    const std::int64_t recipe = navigator_.here().subRecipe;
    if (recipe != 0) goTo({recipe}, true);
}

void FindCommands::rename(const std::string& key, const std::string& name) {
    const QModelIndex node = explorer_.model().find(key);
    if (!node.isValid()) return;
    const auto* column = &project::searchedColumns.front();
    store({{column, branch::idOf(branch::recipe, key), explorer_.model().caption(node), name}}, {});
}

// Several changes are one step of this name; a single one has a name of its own.
void FindCommands::store(const std::vector<project::Replacement>& replacements, const QString& name) {
    const Project* const project = projects_.project();
    if (project == nullptr) return;
    const auto isName = [](const project::Replacement& one) {
        return one.column->table == project::Table::recipes && one.column->isName;
    };
    history::StepName step;
    step.first = qt::fromQt(name);
    step.kind = history::StepName::Kind::named;
    step.recipes = std::ranges::count_if(replacements, isName);
    history_.change(step, *project,
                    [&](ado::Session& session, history::StepName&) { project::replaceTexts(session, replacements); });
}

void FindCommands::attempt(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception&) {
        warn_(qt::toQt(automation::caughtError().description(host_.screen().language())));
    }
}

bool FindCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) live_.look();
    return QObject::eventFilter(watched, event);
}

}  // namespace hx::studio
