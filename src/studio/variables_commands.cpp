// SPDX-License-Identifier: MIT
#include "studio/variables_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "automation/text.h"
#include "project/variable_changes.h"
#include "studio/variable_dialog.h"
#include "studio/variables_import.h"

namespace hx::studio {

namespace {

constexpr int noticeTime = 8000;

const project::SearchedColumn& columnOf(VariablesModel::Column column) {
    using namespace project;
    if (column == VariablesModel::Column::type) return variableTypeColumn;
    const std::string_view name =
        column == VariablesModel::Column::name ? schema::variable::name : schema::variable::comment;
    return *std::ranges::find_if(
        searchedColumns, [&](const SearchedColumn& one) { return one.table == Table::variables && one.name == name; });
}

}  // namespace

VariablesCommands::VariablesCommands(QMainWindow& window, DocumentArea& documents, ProjectWindow& projects,
                                     StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree,
                                     HistoryCommands& history, FindCommands& find, Warn warn)
    : window_(window),
      documents_(documents),
      projects_(projects),
      host_(host),
      explorer_(explorer),
      tree_(tree),
      find_(find),
      history_(history),
      wording_(host.wording()),
      warn_(std::move(warn)),
      menu_(&window),
      show_(&window),
      add_(&window),
      remove_(&window),
      copy_(&window),
      paste_(&window),
      whereUsed_(&window),
      import_(&window),
      export_(&window),
      pane_(find.live(), host.wording(), {&add_, &remove_, &copy_, &paste_, &whereUsed_, &import_, &export_}, keys(),
            [this](const VariablesModel::Edit& edit) { attempt([&] { change(edit); }); }) {
    build();
    connectActions();
    enable(false);
}

void VariablesCommands::build() {
    menu_.setObjectName(QStringLiteral("menuVariables"));
    const std::pair<QAction*, const char*> names[] = {
        {&show_, "actionVariables"},         {&add_, "actionNewVariable"},       {&remove_, "actionDeleteVariables"},
        {&copy_, "actionCopyVariables"},     {&paste_, "actionPasteVariables"},  {&whereUsed_, "actionVariableUses"},
        {&import_, "actionImportVariables"}, {&export_, "actionExportVariables"}};
    for (const auto& [action, name] : names) action->setObjectName(QLatin1StringView(name));
    pane_.setWindowIcon(qt::namedIcon("studio/variables"));
    show_.setIcon(qt::namedIcon("studio/variables"));
    menu_.addAction(&show_);
    menu_.addSeparator();
    menu_.addActions({&add_, &remove_, &copy_, &paste_, &whereUsed_});
    menu_.addSeparator();
    menu_.addActions({&import_, &export_});
}

void VariablesCommands::connectActions() {
    const std::pair<QAction*, void (VariablesCommands::*)()> actions[] = {
        {&add_, &VariablesCommands::add},           {&remove_, &VariablesCommands::remove},
        {&copy_, &VariablesCommands::copy},         {&paste_, &VariablesCommands::paste},
        {&import_, &VariablesCommands::importList}, {&export_, &VariablesCommands::exportList}};
    for (const auto& [action, method] : actions)
        connect(action, &QAction::triggered, this, [this, run = method] { attempt([&] { (this->*run)(); }); });
    connect(&show_, &QAction::triggered, this, [this] {
        tree_.choose(explorer_.model().find(Project::variablesKey));
        show(true);
    });
    connect(&whereUsed_, &QAction::triggered, this, [this] { find_.showUsesOf(current()); });
    explorer_.ownChosen = [this](bool into) { show(into); };
    find_.variableElsewhere = [this] {
        const bool isHere = document_ && documents_.activeSubWindow() == document_ && document_->isVisible();
        return isHere ? current() : QString();
    };
    connect(tree_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& node) { leave(node); });
}

VariablesKeys VariablesCommands::keys() {
    const auto trigger = [](QAction& action) { return [&action] { action.trigger(); }; };
    return {trigger(add_),   trigger(remove_),    trigger(copy_),
            trigger(paste_), trigger(whereUsed_), [this] { pane_.startFilter(); }};
}

void VariablesCommands::addTo(QMainWindow& window, QAction* before) { window.menuBar()->insertMenu(before, &menu_); }

void VariablesCommands::retranslate() {
    menu_.setTitle(wording_.translate("studio", "Varia&bles"));
    const std::pair<QAction*, QString> actions[] = {{&show_, wording_.translate("studio", "&Show List")},
                                                    {&add_, wording_.translate("studio", "&New Variable…")},
                                                    {&remove_, wording_.translate("studio", "&Delete")},
                                                    {&copy_, wording_.translate("studio", "&Copy")},
                                                    {&paste_, wording_.translate("studio", "&Paste")},
                                                    {&whereUsed_, wording_.translate("studio", "&Where Used")},
                                                    {&import_, wording_.translate("studio", "&Import…")},
                                                    {&export_, wording_.translate("studio", "&Export…")}};
    for (const auto& [action, text] : actions) action->setText(text);
    const std::pair<QAction*, QKeySequence> keys[] = {{&add_, Qt::Key_Insert},
                                                      {&remove_, Qt::Key_Delete},
                                                      {&copy_, QKeySequence::Copy},
                                                      {&paste_, QKeySequence::Paste},
                                                      {&whereUsed_, Qt::SHIFT | Qt::Key_F12}};
    for (const auto& [action, key] : keys) {
        const QString name = action->text().remove('&').remove(QStringLiteral("…"));
        action->setToolTip(
            qt::plainToolTip(QStringLiteral("%1 (%2)").arg(name.trimmed(), key.toString(QKeySequence::NativeText))));
    }
    if (explorer_.isOwn(Project::variablesKey))
        explorer_.model().setCaption(Project::variablesKey, qt::fromQt(title()));
    pane_.retranslate();
}

void VariablesCommands::finishEdit() { pane_.list().finishEdit(); }

void VariablesCommands::close() {
    if (document_) document_->hide();
    enable(false);
}

void VariablesCommands::enable(bool open) {
    for (QAction* action : {&show_, &add_, &remove_, &copy_, &paste_, &whereUsed_, &import_, &export_})
        action->setEnabled(open);
}

// The keyboard goes on moving through the explorer, unless the list was asked for.
void VariablesCommands::show(bool into) {
    if (projects_.project() == nullptr) return;
    const bool isFirst = document_.isNull();
    if (isFirst) {
        document_ = documents_.addSubWindow(&pane_);
        document_->setAttribute(Qt::WA_DeleteOnClose, false);
        document_->setObjectName(QStringLiteral("variablesDocument"));
    }
    pane_.show();
    if (isFirst) document_->showMaximized();
    else document_->show();
    documents_.setActiveSubWindow(document_);
    (into ? static_cast<QWidget&>(pane_.list()) : tree_).setFocus(Qt::OtherFocusReason);
}

// What fills the whole area makes room for what another node shows.
void VariablesCommands::leave(const QModelIndex& node) {
    if (!document_ || !document_->isVisible() || !document_->isMaximized()) return;
    if (!node.isValid() || explorer_.isOwn(explorer_.model().key(node))) return;
    document_->hide();
    const auto windows = documents_.subWindowList(QMdiArea::StackingOrder);
    const auto other = std::find_if(windows.rbegin(), windows.rend(), [](const auto* one) { return one->isVisible(); });
    if (other != windows.rend()) documents_.setActiveSubWindow(*other);
    tree_.setFocus(Qt::OtherFocusReason);
}

QString VariablesCommands::current() {
    const QModelIndex at = pane_.list().currentIndex();
    return at.isValid() ? qt::toQt(pane_.model().text(at.row(), VariablesModel::Column::name)) : QString();
}

void VariablesCommands::write(const QString& name, const std::function<void(ado::Session& session)>& work) {
    if (projects_.project() == nullptr) return;
    history::StepName step;
    step.first = qt::fromQt(name);
    step.kind = history::StepName::Kind::named;
    history_.change(step, *projects_.project(), [&](ado::Session& session, history::StepName&) { work(session); });
}

void VariablesCommands::change(const VariablesModel::Edit& edit) {
    if (edit.column == VariablesModel::Column::name) return rename(edit);
    const int row = pane_.model().rowOf(edit.key);
    const std::string name = row < 0 ? std::string() : pane_.model().text(row, VariablesModel::Column::name);
    store(edit, wording_.translate("studio", "Variable “%1” changed in the list").arg(qt::toQt(name)), false);
}

void VariablesCommands::rename(const VariablesModel::Edit& edit) {
    using forms::message::Answer;
    Answer answer = Answer::no;
    if (edit.uses > 0 && !automation::equalIgnoreCase(edit.before, edit.after)) {
        const QString question =
            edit.uses == 1
                ? wording_.translate("studio",
                                     "One recipe uses the variable “%1”.\n\nShall it be called “%2” there too?")
                : wording_
                      .translate("studio", "%3 recipes use the variable “%1”.\n\nShall it be called “%2” there too?")
                      .arg(QStringLiteral("%1"), QStringLiteral("%2"), wording_.number(edit.uses));
        answer = host_.screen().messageBox(qt::fromQt(question.arg(qt::toQt(edit.before), qt::toQt(edit.after))),
                                           forms::message::yesNoCancel | forms::message::question, qt::fromQt(title()));
    }
    if (answer == Answer::cancel) return;
    store(
        edit,
        wording_.translate("studio", "Variable “%1” renamed to “%2”").arg(qt::toQt(edit.before), qt::toQt(edit.after)),
        answer == Answer::yes);
}

void VariablesCommands::store(const VariablesModel::Edit& edit, const QString& name, bool everywhere) {
    write(name, [&](ado::Session& session) {
        std::vector<project::Replacement> all{{&columnOf(edit.column), edit.key, edit.before, edit.after}};
        if (everywhere) {
            project::Reader reader(std::shared_ptr<ado::Session>(std::shared_ptr<void>(), &session), {});
            for (auto& one : project::renamingOf(reader, edit.before, edit.after)) all.push_back(std::move(one));
        }
        project::replaceTexts(session, all);
    });
    pane_.model().show(edit.key, edit.column, edit.after);
}

void VariablesCommands::add() {
    // The list may be read again meanwhile.
    VariableDialog dialog(window_, wording_, [this](const std::string& name) {
        const project::VariableTable* const table = pane_.model().table();
        return table != nullptr && table->find(name).has_value();
    });
    if (dialog.exec() != QDialog::Accepted || projects_.project() == nullptr) return;
    const lists::ListedVariable variable = dialog.variable();
    write(wording_.translate("studio", "Variable “%1” added to the list").arg(qt::toQt(variable.name)),
          [&](ado::Session& session) {
              importVariables(session, qt::fromQt(projects_.project()->file()), qt::fromQt(dialog.windowTitle()),
                              [&](lists::VariableReceiver& receiver, const auto&) { receiver.take(variable); });
          });
    show(true);
    pane_.showVariable(variable.name);
}

bool VariablesCommands::isMeant(const std::vector<int>& rows) {
    const auto used =
        static_cast<std::size_t>(std::ranges::count_if(rows, [&](int row) { return pane_.model().uses(row) > 0; }));
    if (used == 0) return true;
    const QString question =
        rows.size() == 1
            ? wording_
                  .translate("studio",
                             "Recipes that use the variable “%1”: %2.\n\nDelete it from the list nevertheless?")
                  .arg(qt::toQt(pane_.model().text(rows.front(), VariablesModel::Column::name)),
                       wording_.number(pane_.model().uses(rows.front())))
            : wording_
                  .translate(
                      "studio",
                      "Of these %1 variables, %2 are used in recipes.\n\nDelete them from the list nevertheless?")
                  .arg(wording_.number(rows.size()), wording_.number(used));
    return host_.screen().messageBox(qt::fromQt(question),
                                     forms::message::yesNo | forms::message::question | forms::message::defaultButton2,
                                     qt::fromQt(title())) == forms::message::Answer::yes;
}

void VariablesCommands::remove() {
    finishEdit();
    const std::vector<int> rows = pane_.list().selectedRows();
    if (rows.empty()) return;
    std::vector<ado::Key> keys;  // before anybody is asked: the list may be read again meanwhile
    for (const int row : rows) keys.push_back(pane_.model().key(row));
    const QString name =
        rows.size() == 1
            ? wording_.translate("studio", "Variable “%1” deleted from the list")
                  .arg(qt::toQt(pane_.model().text(rows.front(), VariablesModel::Column::name)))
            : wording_.translate("studio", "%1 variables deleted from the list").arg(wording_.number(rows.size()));
    if (!isMeant(rows)) return;
    write(name, [&](ado::Session& session) { project::removeVariables(session, keys); });
}

void VariablesCommands::copy() {
    const std::vector<int> rows = pane_.list().selectedRows();
    if (!rows.empty()) QApplication::clipboard()->setMimeData(copyOf(pane_.model(), rows).release());
}

void VariablesCommands::paste() {
    const std::string text = qt::fromQt(QApplication::clipboard()->text());
    if (!automation::trim(text).empty()) pasteText(text);
}

void VariablesCommands::pasteText(const std::string& text) {
    const std::string origin = qt::fromQt(wording_.translate("studio", "Clipboard"));
    ImportCounts counts;
    write(wording_.translate("studio", "Variables pasted into the list"), [&](ado::Session& session) {
        counts = importVariables(
            session, qt::fromQt(projects_.project()->file()), origin,
            [&](lists::VariableReceiver& receiver, const auto&) { lists::readCsvText(origin, text, receiver); });
    });
    tell(counts.text(wording_));
}

void VariablesCommands::importList() {
    QFileDialog dialog(&window_, wording_.translate("studio", "Import Variables"), projects_.projectFolder());
    dialog.setObjectName(QStringLiteral("importListDialog"));
    dialog.setNameFilters({wording_.translate("studio", "Variable lists (*.csv *.txt *.xml)"),
                           wording_.translate("studio", "All files (*)")});
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString list = dialog.selectedFiles().constFirst();
    finishEdit();
    VariablesImport import(window_, find_.live(), wording_, list,
                           [&](const auto& choice, const auto& reach) { importFrom(list, choice, reach); });
    if (import.exec() == QDialog::Accepted) show(true);
}

void VariablesCommands::importFrom(const QString& list, const lists::CsvChoice& choice, const Progress& reach) {
    const std::string path = qt::fromQt(list);
    ImportCounts counts;
    const QString name = wording_.translate("studio", "Variables imported: %1").arg(QFileInfo(list).fileName());
    write(name, [&](ado::Session& session) {
        counts = importVariables(
            session, qt::fromQt(projects_.project()->file()), path,
            [&](lists::VariableReceiver& receiver, const lists::VariableLimits& limits) {
                lists::readVariables(path, choice, limits, receiver);
            },
            reach);
    });
    tell(counts.text(wording_));
}

void VariablesCommands::exportList() {
    finishEdit();
    QFileDialog dialog(&window_, wording_.translate("studio", "Export Variables"), projects_.projectFolder(),
                       wording_.translate("studio", "CSV files (*.csv)"));
    dialog.setObjectName(QStringLiteral("exportListDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(title() + QStringLiteral(".csv"));
    if (dialog.exec() != QDialog::Accepted) return;
    const QString path = dialog.selectedFiles().constFirst();
    const std::size_t count = exportVariables(host_, qt::fromQt(projects_.project()->file()), qt::fromQt(path));
    tell(wording_.translate("studio", "%1 variables exported: %2").arg(wording_.number(count), path));
}

void VariablesCommands::tell(const QString& text) { window_.statusBar()->showMessage(text, noticeTime); }

void VariablesCommands::attempt(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception&) {
        warn_(qt::toQt(automation::caughtError().description(host_.screen().language())));
    }
}

}  // namespace hx::studio
