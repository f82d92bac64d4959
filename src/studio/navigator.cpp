// SPDX-License-Identifier: MIT
#include "studio/navigator.h"

#include <QApplication>
#include <QPointer>
#include <array>

#include "adapters/qt/text.h"
#include "automation/convert.h"
#include "project/schema.h"
#include "studio/editor_names.h"
#include "studio/recipe_branch.h"

namespace hx::studio {

namespace {

namespace schema = project::schema;

constexpr std::size_t mostVisits = 200;

/// Where a column of a recipe stands in its dialog.
struct Field {
    std::string_view column, control;
    std::int16_t page;
};
constexpr auto fields = std::to_array<Field>({
    {schema::recipe::name, "txtName", 0},
    {schema::recipe::varRecipeName, "txtRecipeName", 0},
    {schema::recipe::varDescription, "txtDescription", 0},
    {schema::recipe::comment, "txtComment", 0},
    {schema::recipe::varLoad, "txtVarLoad", 1},
    {schema::recipe::varSave, "txtVarSave", 1},
    {schema::recipe::varRead, "txtVarRead", 1},
    {schema::recipe::varWrite, "txtVarWrite", 1},
    {schema::recipe::varSetValue, "txtVarSetValue", 1},
});

void focusField(StudioHost& host, std::string_view column) {
    forms::Form* const dialog = host.attendedScreen().find(editor_name::recipeDialog);
    const auto field = std::ranges::find(fields, column, &Field::column);
    if (dialog == nullptr || field == fields.end()) return;
    dialog->get("tab").asObject()->set("Tab", automation::Variant(field->page));
    (void)dialog->get(field->control).asObject()->get("SetFocus");
}

}  // namespace

Navigator::Navigator(ProjectWindow& window, StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree)
    : window_(window), host_(host), explorer_(explorer), tree_(tree) {
    // A refresh goes through nodes that nobody visits: what counts is where it ends.
    visitSoon_.setSingleShot(true);
    visitSoon_.setInterval(0);
    connect(&visitSoon_, &QTimer::timeout, this, [this] {
        noteVisit();
        followGrid();
    });
    movedSoon_.setSingleShot(true);
    movedSoon_.setInterval(0);
    connect(&movedSoon_, &QTimer::timeout, this, [this] { moved.raise(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        if (now == &tree_) inGrid_ = false;
        for (; now != nullptr && !inGrid_ && now != &tree_; now = now->parentWidget())
            inGrid_ = now->objectName() == qt::toQt(editor_name::grid);
    });
    connect(tree_.selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { visitSoon_.start(); });
}

std::shared_ptr<forms::Grid> Navigator::grid() const {
    forms::Form* const editor =
        window_.project() == nullptr ? nullptr : host_.attendedScreen().find(editor_name::window);
    if (editor == nullptr) return nullptr;
    return std::dynamic_pointer_cast<forms::Grid>(editor->get(editor_name::grid).asObject());
}

bool Navigator::gridHasKeyboard() const {
    const QWidget* const widget = QApplication::focusWidget();
    const std::shared_ptr<forms::Grid> rows = grid();
    return inGrid_ && widget != nullptr && !tree_.hasFocus() && rows && rows->hasFocus() && !rows->editorOpen();
}

bool Navigator::show(const Place& place, bool into) {
    if (window_.project() == nullptr) return false;
    const bool subRecipes = place.member != 0 && place.ofSubRecipe;
    if (!chooseNode(branch::keyOf(subRecipes ? branch::subRecipes : branch::recipe, place.recipe))) return false;
    if (place.member != 0) return showMember(place.member, into);
    if (!into) return true;
    if (place.column.empty()) tree_.setFocus(Qt::OtherFocusReason);
    else showColumn(place.column);
    return true;
}

bool Navigator::chooseNode(const std::string& key) {
    const Project* const project = window_.project();
    if (project == nullptr || !project->addIn()) return false;
    const QPointer<QWidget> keyboard = QApplication::focusWidget();
    // The branch is filled when it is opened for the first time.
    if (explorer_.model().childCount(branch::root) == 0) tree_.expand(explorer_.model().find(branch::root));
    const QModelIndex node = explorer_.model().find(key);
    if (!node.isValid()) return false;
    tree_.choose(node);
    if (keyboard) keyboard->setFocus(Qt::OtherFocusReason);
    return true;
}

// A row that waits to be corrected stays the current one.
bool Navigator::showMember(std::int64_t member, bool into) {
    const std::shared_ptr<forms::Grid> rows = grid();
    if (!rows || !rows->dataSource() || rows->dataSource()->state() != ado::adStateOpen) return false;
    const auto search = rows->dataSource()->clone();
    if (search->recordCount() == 0) return false;
    search->find(std::string(schema::member::id) + "=" + std::to_string(member));
    if (search->eof()) return false;
    const bool shown = rows->setRow(search->absolutePosition() - 1);
    if (rows->findColumn(schema::member::varRecipe) != nullptr)
        rows->setCol(rows->columnNumber(automation::Variant(std::string(schema::member::varRecipe))));
    if (into) rows->setFocus();
    return shown;
}

// The dialog is modal: its field is chosen once it waits for the user.
void Navigator::showColumn(std::string_view column) {
    forms::Form* const editor = host_.attendedScreen().find(editor_name::window);
    if (editor == nullptr) return;
    QTimer::singleShot(0, this, [this, column] { focusField(host_, column); });
    const std::array tool{automation::Variant(std::string(editor_name::editRecipe))};
    (void)editor->get(editor_name::bar).asObject()->get("Click", tool);
}

void Navigator::noteVisit() {
    const std::string key = explorer_.selectedNode().key;
    if (key.empty() || (at_ < visited_.size() && visited_[at_] == key)) return;
    if (!visited_.empty()) visited_.resize(at_ + 1);
    visited_.push_back(key);
    if (visited_.size() > mostVisits) visited_.erase(visited_.begin());
    at_ = visited_.size() - 1;
    visitedChanged();
}

// The grid is another one when the editor's window has been closed meanwhile.
void Navigator::followGrid() {
    movedSoon_.start();
    const std::shared_ptr<forms::Grid> rows = grid();
    if (rows == followed_.lock()) return;
    followed_ = rows;
    moves_ = {};
    if (!rows) return;
    moves_[0] = rows->currentCellChanged.subscribe([this] { movedSoon_.start(); });
    moves_[1] = rows->rowsChanged.subscribe([this] { movedSoon_.start(); });
}

// What has been deleted since is passed over.
void Navigator::go(int step) {
    for (std::size_t next = at_ + static_cast<std::size_t>(step); next < visited_.size();
         next += static_cast<std::size_t>(step)) {
        const std::size_t before = std::exchange(at_, next);
        if (chooseNode(visited_[next])) return visitedChanged();
        at_ = before;
    }
}

void Navigator::forget() {
    visitSoon_.stop();
    visited_.clear();
    at_ = 0;
    visitedChanged();
}

Navigator::Here Navigator::here() const {
    Here here;
    const std::string key = explorer_.selectedNode().key;
    const std::int64_t ofSubRecipes = branch::idOf(branch::subRecipes, key);
    here.recipe = ofSubRecipes != 0 ? ofSubRecipes : branch::idOf(branch::recipe, key);
    const std::shared_ptr<forms::Grid> rows = grid();
    if (!rows || rows->row() < 0) return here;
    here.inGrid = inGrid_;
    const auto valueOf = [&](std::string_view column) {
        const bool there = rows->findColumn(column) != nullptr;
        return there ? rows->value(rows->row(), rows->columnNumber(automation::Variant(std::string(column))))
                     : automation::Variant(automation::Null{});
    };
    if (const auto child = valueOf(schema::member::childId); !child.isNull() && ofSubRecipes != 0)
        here.subRecipe = automation::toInt32(child);
    if (const auto variable = valueOf(schema::member::varRecipe); !variable.isNull())
        here.variable = automation::toText(variable);
    return here;
}

}  // namespace hx::studio
