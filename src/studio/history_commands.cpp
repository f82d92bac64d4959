// SPDX-License-Identifier: MIT
#include "studio/history_commands.h"

#include <QStandardPaths>
#include <QStatusBar>
#include <algorithm>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "forms/wait_cursor.h"
#include "hosting/file_bytes.h"

namespace hx::studio {

namespace {

std::filesystem::path stepsFolder() {
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return hosting::fileSystemPath(qt::fromQt(cache + QStringLiteral("/HelvixStudio/steps")));
}

}  // namespace

HistoryCommands::HistoryCommands(QMainWindow& window, StudioHost& host, bool keepsDailyCopies, qt::QtExplorer& explorer,
                                 qt::ExplorerTree& tree, Warn warn)
    : window_(window),
      host_(host),
      wording_(host.wording()),
      warn_(std::move(warn)),
      undo_(&window),
      redo_(&window),
      dock_(window, undo_, redo_, host.wording(),
            [this](std::size_t position) { goTo([position] { return position; }); }),
      editor_(host, explorer, tree),
      keepsDailyCopies_(keepsDailyCopies),
      notice_(*window.statusBar(), undo_) {
    undo_.setObjectName(QStringLiteral("actionUndo"));
    redo_.setObjectName(QStringLiteral("actionRedo"));
    undo_.setIcon(qt::namedIcon("studio/undo"));
    redo_.setIcon(qt::namedIcon("studio/redo"));
    undo_.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    redo_.setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    connect(&undo_, &QAction::triggered, this, [this] { goTo([this] { return history_->position() - 1; }); });
    connect(&redo_, &QAction::triggered, this, [this] { goTo([this] { return history_->position() + 1; }); });
    retranslate();
}

void HistoryCommands::addTo(QMainWindow& window) {
    window.addDockWidget(Qt::LeftDockWidgetArea, &dock_);
    dock_.hide();
}

void HistoryCommands::retranslate() {
    dock_.retranslate();
    notice_.retranslate(wording_.translate("studio", "&Undo").remove('&'));
    refresh();
}

void HistoryCommands::open(const Project& project) {
    editor_.setProject(&project);
    try {
        history_ = std::make_shared<history::History>(host_.store(), qt::fromQt(project.file()), stepsFolder());
    } catch (const std::exception&) {
        return;  // memory is short: the project opens, and nothing can be undone
    }
    history_->changed = [this] {
        refresh();
        changed_();
    };
    copies_.emplace(host_.store(), history_->project());
    history_->beforeChange = [this] {
        writing_();
        keepCopy();
    };
    history_->surprised = [this](const history::Surprise& surprise) { tell(surprise); };
    host_.setHistory(history_);
    beginMacro();
    dock_.setHistory(history_.get());
    refresh();
}

void HistoryCommands::close() {
    endMacro();
    dock_.setHistory(nullptr);
    host_.setHistory(nullptr);
    if (history_) {
        history_->changed = {};
        history_->beforeChange = {};
        history_->surprised = {};
        history_->close();
    }
    history_.reset();
    copies_.reset();
    editor_.setProject(nullptr);
    refresh();
}

void HistoryCommands::tellOfLastSession() {
    if (!history_) return;
    const auto steps = std::ranges::count(history_->steps(), true, &history::Step::fromBefore);
    if (steps == 0) return;
    dock_.show();
    window_.statusBar()->showMessage(
        wording_.translate("studio", "Changes of the last session: %1. They can be undone in the history.")
            .arg(wording_.number(static_cast<std::size_t>(steps))));
}

void HistoryCommands::setMacro(const QString& name) {
    if (name == macro_) return;
    endMacro();
    macro_ = name;
    editor_.setMacroRuns(!name.isEmpty());
    beginMacro();
    refresh();
}

// The user is told in the status line: the change itself is not concerned.
void HistoryCommands::keepCopy() {
    if (!keepsDailyCopies_ || !copies_->isDue()) return;
    try {
        const forms::WaitCursor wait(host_.screen());
        copies_->beforeChange();
    } catch (const std::exception&) {
        const std::string reason = automation::caughtError().description(host_.screen().language());
        window_.statusBar()->showMessage(
            wording_.translate("studio", "No copy of the project was kept: %1").arg(qt::toQt(reason)));
    }
}

void HistoryCommands::setWatch(std::function<void()> changed, std::function<void()> writing) {
    changed_ = std::move(changed);
    writing_ = std::move(writing);
}

void HistoryCommands::change(history::StepName step, const Project& project, const Work& work) {
    editor_.finishEdit();
    const forms::WaitCursor wait(host_.screen());
    {
        std::optional<history::Group> group;
        if (history_ && !step.first.empty()) group.emplace(*history_, step);
        const std::string source = "Data Source=\"" + qt::fromQt(project.file()) + "\";";
        const auto session = host_.recordingStore().connect(source + "Mode=Read|Write|Share Deny None;");
        work(*session, step);
    }
    editor_.show(step);
}

void HistoryCommands::beginMacro() {
    if (!history_ || macro_.isEmpty()) return;
    history::StepName name;
    name.kind = history::StepName::Kind::macro;
    name.first = qt::fromQt(macro_);
    history_->beginGroup(std::move(name));
}

void HistoryCommands::endMacro() {
    if (history_ && !macro_.isEmpty()) history_->endGroup();
}

QString HistoryCommands::told(const history::StepName* step, const QString& command) const {
    if (step == nullptr) return command;
    const std::string name = step->text(automation::languageOf(wording_.language()));
    return command + QStringLiteral(": ") + qt::toQt(name).replace('&', QStringLiteral("&&"));
}

void HistoryCommands::refresh() {
    const std::size_t position = history_ ? history_->position() : 0;
    const std::size_t count = history_ ? history_->steps().size() : 0;
    const auto nameOf = [&](std::size_t step) { return &history_->steps()[step].name; };
    undo_.setEnabled(position > 0 && macro_.isEmpty());
    redo_.setEnabled(position < count && macro_.isEmpty());
    undo_.setText(told(position > 0 ? nameOf(position - 1) : nullptr, wording_.translate("studio", "&Undo")));
    redo_.setText(told(position < count ? nameOf(position) : nullptr, wording_.translate("studio", "&Redo")));
    undo_.setIconText(wording_.translate("studio", "&Undo").remove('&'));
    redo_.setIconText(wording_.translate("studio", "&Redo").remove('&'));
    dock_.refresh();
    notice_.tell({});  // what it said is not about the last step any more
}

void HistoryCommands::tell(const history::Surprise& surprise) {
    notice_.tell(qt::toQt(surprise.text(automation::languageOf(wording_.language()))));
}

// What is being typed is a step of its own first: undo takes that back, and nothing is left to be done again.
void HistoryCommands::goTo(const std::function<std::size_t()>& position) {
    if (!history_ || !macro_.isEmpty()) return;
    try {
        editor_.finishEdit();
        carryOut(position);
    } catch (const std::exception&) {
        warn_(qt::toQt(automation::caughtError().description(host_.screen().language())));
    }
}

void HistoryCommands::carryOut(const std::function<std::size_t()>& position) {
    const std::size_t before = history_->position();
    const auto showChanges = [&] {
        const std::size_t after = history_->position();
        if (after == before) return;
        history::StepName shown = history_->steps()[after < before ? after : after - 1].name;
        for (std::size_t step = std::min(before, after); step < std::max(before, after); ++step)
            shown.recipes = std::max(shown.recipes, history_->steps()[step].name.recipes);
        editor_.show(shown);
    };
    try {
        const forms::WaitCursor wait(host_.screen());
        history_->goTo(position());
    } catch (...) {
        showChanges();  // those before the one that was refused
        throw;
    }
    showChanges();
}

}  // namespace hx::studio
