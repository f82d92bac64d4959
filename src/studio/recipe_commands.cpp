// SPDX-License-Identifier: MIT
#include "studio/recipe_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QMimeData>
#include <array>

#include "adapters/qt/text.h"
#include "automation/dispatch.h"
#include "project/project_data.h"
#include "studio/editor_names.h"
#include "studio/paste_dialog.h"
#include "studio/recipe_branch.h"
#include "studio/row_copy.h"
#include "studio/series_dialog.h"

namespace hx::studio {

namespace {

constexpr std::string_view reportClass = "HXProjectReport.Connect";

}  // namespace

RecipeCommands::RecipeCommands(QMainWindow& window, StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree,
                               HistoryCommands& history, const Navigator& navigator, const KnownVariables& known,
                               Warn warn)
    : window_(window),
      host_(host),
      explorer_(explorer),
      tree_(tree),
      history_(history),
      navigator_(navigator),
      known_(known),
      wording_(host.wording()),
      warn_(std::move(warn)),
      menu_(&window),
      duplicate_(&window),
      duplicateAll_(&window),
      series_(&window),
      remove_(&window),
      report_(&window),
      copy_(&window),
      paste_(&window) {
    build();
    const std::pair<QAction*, std::function<void()>> actions[] = {
        {&duplicate_, [this] { duplicate(project::SubRecipes::shared); }},
        {&duplicateAll_, [this] { duplicate(project::SubRecipes::copied); }},
        {&series_, [this] { createSeries(); }},
        {&remove_, [this] { remove(); }},
        {&report_, [this] { report(); }},
        {&copy_, [this] { copyRows(); }},
        {&paste_, [this] { paste(); }}};
    for (const auto& [action, work] : actions)
        connect(action, &QAction::triggered, this, [this, work = work] { attempt(work); });
    connect(tree_.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { refresh(); });
    connect(tree_.model(), &QAbstractItemModel::modelReset, this, [this] { refresh(); });
    connect(&menu_, &QMenu::aboutToShow, this, [this] { refresh(); });
    connect(qApp, &QApplication::focusChanged, this, [this] { refresh(); });
    refresh();
}

void RecipeCommands::build() {
    menu_.setObjectName(QStringLiteral("menuRecipe"));
    const std::pair<QAction*, const char*> names[] = {
        {&duplicate_, "actionDuplicate"},  {&duplicateAll_, "actionDuplicateAll"}, {&series_, "actionSeries"},
        {&remove_, "actionDeleteRecipes"}, {&report_, "actionReportSelected"},     {&copy_, "actionCopyRows"},
        {&paste_, "actionPasteVariables"}};
    for (const auto& [action, name] : names) action->setObjectName(QLatin1StringView(name));
    duplicate_.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    copy_.setShortcut(QKeySequence::Copy);
    paste_.setShortcut(QKeySequence::Paste);
    menu_.addActions({&duplicate_, &duplicateAll_, &series_});
    menu_.addSeparator();
    menu_.addActions({&copy_, &paste_});
    menu_.addSeparator();
    menu_.addActions({&remove_, &report_});
}

void RecipeCommands::addTo(QMainWindow& window, QAction* before) { window.menuBar()->insertMenu(before, &menu_); }

void RecipeCommands::retranslate() {
    const std::pair<QAction*, QString> texts[] = {
        {menu_.menuAction(), wording_.translate("studio", "Rec&ipe")},
        {&duplicate_, wording_.translate("studio", "&Duplicate")},
        {&duplicateAll_, wording_.translate("studio", "Duplicate with &Sub-Recipes")},
        {&series_, wording_.translate("studio", "&Create Series…")},
        {&remove_, wording_.translate("studio", "D&elete Selected Recipes…")},
        {&report_, wording_.translate("studio", "&Report on Selected Recipes")},
        {&copy_, wording_.translate("studio", "Cop&y Rows")},
        {&paste_, wording_.translate("studio", "&Paste Variables…")}};
    for (const auto& [action, text] : texts) action->setText(text);
}

void RecipeCommands::setProject(const Project* project) {
    project_ = project;
    refresh();
}

// Keys that are not possible now are the focus widget's own.
void RecipeCommands::refresh() {
    const bool open = project_ != nullptr && project_->addIn() != nullptr;
    const bool any = open && !selected().empty();
    const bool inGrid = open && navigator_.gridHasKeyboard();
    series_.setEnabled(open);
    for (QAction* action : {&duplicate_, &duplicateAll_, &remove_, &report_}) action->setEnabled(any);
    copy_.setEnabled(inGrid);
    paste_.setEnabled(inGrid && inMembersOfRecipe());
}

bool RecipeCommands::inMembersOfRecipe() const {
    return branch::idOf(branch::recipe, explorer_.selectedNode().key) != 0;
}

std::vector<std::int64_t> RecipeCommands::selected() const {
    std::vector<std::int64_t> recipes;
    for (const QModelIndex& node : tree_.selectionModel()->selectedIndexes()) {
        if (const auto id = branch::idOf(branch::recipe, explorer_.model().key(node)); id != 0) recipes.push_back(id);
    }
    return recipes;
}

void RecipeCommands::change(const QString& name, const Change& change) {
    history::StepName step;
    step.kind = history::StepName::Kind::named;
    step.first = qt::fromQt(name);
    history_.change(step, *project_, [&](ado::Session& session, history::StepName& shown) {
        project::RecipeWriter writer(session);
        const std::vector<std::int64_t> changed = change(writer);
        shown.recipes = static_cast<std::int64_t>(changed.size());
        if (!changed.empty()) shown.recipe = changed.front();
    });
}

void RecipeCommands::duplicate(project::SubRecipes subRecipes) {
    const std::vector<std::int64_t> recipes = selected();
    const QString name =
        recipes.size() == 1
            ? wording_.translate("studio", "Recipe duplicated")
            : wording_.translate("studio", "%1 recipes duplicated").arg(wording_.number(recipes.size()));
    change(name, [&](project::RecipeWriter& writer) { return writer.copy(recipes, subRecipes); });
}

void RecipeCommands::remove() {
    const std::vector<std::int64_t> recipes = selected();
    const QString question = recipes.size() == 1
                                 ? wording_.translate("studio", "Delete the selected recipe with all of its members?")
                                 : wording_.translate("studio", "Delete %1 recipes with all of their members?")
                                       .arg(wording_.number(recipes.size()));
    const auto answer = host_.screen().messageBox(
        qt::fromQt(question), forms::message::yesNo | forms::message::question | forms::message::defaultButton2,
        qt::fromQt(wording_.translate("studio", "Delete Recipes")));
    if (answer != forms::message::Answer::yes) return;
    change(wording_.translate("studio", "%1 recipes deleted").arg(wording_.number(recipes.size())),
           [&](project::RecipeWriter& writer) {
               writer.remove(recipes);
               return recipes;
           });
}

void RecipeCommands::createSeries() {
    QString name;
    QStringList variables;
    if (const auto recipes = selected(); !recipes.empty()) {
        name =
            qt::toQt(explorer_.model().caption(explorer_.model().find(branch::keyOf(branch::recipe, recipes.front()))));
        for (const std::string& variable : variablesOf(recipes.front())) variables << qt::toQt(variable);
    }
    SeriesDialog dialog(window_, name, variables, known_, wording_);
    if (dialog.exec() != QDialog::Accepted) return;
    const std::vector<project::NewRecipe> made = dialog.recipes();
    change(wording_.translate("studio", "Series of %1 recipes created").arg(wording_.number(made.size())),
           [&](project::RecipeWriter& writer) { return writer.create(made); });
}

void RecipeCommands::report() {
    std::string ids;
    for (const std::int64_t recipe : selected()) ids += (ids.empty() ? "" : ",") + std::to_string(recipe);
    history_.editor().finishEdit();
    const std::array<automation::Variant, 3> arguments{ids, qt::fromQt(project_->file()),
                                                       automation::Variant(explorer_.hostWindow())};
    (void)host_.components().create(reportClass)->get("ShowRecipes", arguments);
}

std::vector<std::string> RecipeCommands::variablesOf(std::int64_t recipe) const {
    project::Reader reader(host_.store(), qt::fromQt(project_->file()));
    std::vector<std::string> variables;
    using namespace project::schema;
    reader.read(
        memberTable, std::array{member::varRecipe}, [&](project::Row row) { variables.emplace_back(row[0].text); },
        std::string(member::parentId) + " = " + std::to_string(recipe) + " AND " + std::string(member::childId) +
            " = 0");
    return variables;
}

void RecipeCommands::copyRows() {
    const std::shared_ptr<forms::Grid> grid = navigator_.grid();
    if (!grid) return;
    const RowCopy rows(*grid);
    auto* const data = new QMimeData;
    data->setText(rows.text());
    data->setHtml(rows.html());
    QApplication::clipboard()->setMimeData(data);
}

void RecipeCommands::paste() {
    const std::int64_t recipe = branch::idOf(branch::recipe, explorer_.selectedNode().key);
    const auto lines = project::pastedVariables(qt::fromQt(QApplication::clipboard()->text()), variablesOf(recipe));
    PasteDialog dialog(window_, lines, known_, wording_);
    if (dialog.exec() != QDialog::Accepted) return;
    const std::vector<std::string> chosen = dialog.chosen();
    if (chosen.empty()) return;
    history::StepName step;
    step.recipe = recipe;
    step.kind = history::StepName::Kind::named;
    step.first = qt::fromQt(wording_.translate("studio", "%1 variables pasted").arg(wording_.number(chosen.size())));
    history_.change(step, *project_, [&](ado::Session& session, history::StepName&) {
        project::RecipeWriter(session).addVariables(recipe, chosen);
    });
}

void RecipeCommands::attempt(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception&) {
        warn_(qt::toQt(automation::caughtError().description(host_.screen().language())));
    }
}

}  // namespace hx::studio
