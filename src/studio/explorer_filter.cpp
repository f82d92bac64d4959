// SPDX-License-Identifier: MIT
#include "studio/explorer_filter.h"

#include <QKeyEvent>

#include "adapters/qt/text.h"
#include "studio/expanded_nodes.h"
#include "studio/recipe_branch.h"

namespace hx::studio {

ExplorerFilter::ExplorerFilter(qt::QtExplorer& explorer, qt::ExplorerTree& tree, QAction& sort,
                               const qt::Wording& wording)
    : explorer_(explorer), tree_(tree), sort_(sort), wording_(wording) {
    field_.setObjectName(QStringLiteral("explorerFilter"));
    field_.setClearButtonEnabled(true);
    field_.installEventFilter(this);
    count_.setObjectName(QStringLiteral("explorerCount"));
    sortButton_.setObjectName(QStringLiteral("explorerSort"));
    sortButton_.setAutoRaise(true);
    sortButton_.setDefaultAction(&sort_);
    constexpr int margin = 4;
    row_.setContentsMargins(margin, margin, margin, margin);
    row_.setSpacing(margin);
    row_.addWidget(&field_, 1);
    row_.addWidget(&count_);
    row_.addWidget(&sortButton_);
    connect(&field_, &QLineEdit::textChanged, this, [this] { apply(); });
    connect(&sort_, &QAction::toggled, this, [this] { apply(); });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&explorer_.model(), signal, this, [this] { countSoon_.start(); });
    // Asking the model for a node while it tells of others would make it tell of them twice.
    countSoon_.setSingleShot(true);
    countSoon_.setInterval(0);
    connect(&countSoon_, &QTimer::timeout, this, [this] { showCount(); });
    showCount();
}

void ExplorerFilter::retranslate() {
    field_.setPlaceholderText(wording_.translate("studio", "Filter: words of the name, -word excludes"));
    field_.setAccessibleName(wording_.translate("studio", "Filter recipes"));
    field_.setToolTip(qt::plainToolTip(
        wording_
            .translate("studio", "Shows the recipes whose names contain all of these words, and none with \"-\" (%1)")
            .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText))));
    showCount();
}

void ExplorerFilter::start() {
    field_.setFocus(Qt::ShortcutFocusReason);
    field_.selectAll();
}

void ExplorerFilter::clear() {
    expanded_.clear();
    hidden_.clear();
    field_.clear();
}

void ExplorerFilter::apply() {
    qt::ExplorerModel& model = explorer_.model();
    const std::string root(branch::root);
    if (isFiltering() && !filtering_) {
        // The branch may have no recipes yet: they come with its opening, whose window takes the keyboard.
        const bool hadKeyboard = field_.hasFocus();
        tree_.expand(model.find(root));
        if (hadKeyboard) field_.setFocus(Qt::OtherFocusReason);
        expanded_ = expandedNodes(tree_, explorer_);
    }
    const QModelIndex current = tree_.currentIndex();
    const std::string key = current.isValid() ? model.key(current) : std::string();
    model.arrange(root, automation::WordFilter(qt::fromQt(field_.text())), sort_.isChecked());
    keepCurrent(key);
    if (filtering_ && !isFiltering()) expandNodes(std::exchange(expanded_, {}), tree_, explorer_);
    filtering_ = isFiltering();
    showCount();
}

// The editor goes on showing what is hidden here; when all is shown again, it is the current one again.
void ExplorerFilter::keepCurrent(const std::string& key) {
    if (tree_.currentIndex().isValid()) {
        hidden_.clear();
    } else if (isFiltering()) {
        if (!key.empty()) hidden_ = key;
    } else if (const QModelIndex node = explorer_.model().find(std::exchange(hidden_, {})); node.isValid()) {
        tree_.setCurrentIndex(node);
    }
    if (const QModelIndex node = tree_.currentIndex(); node.isValid()) tree_.scrollTo(node);
}

void ExplorerFilter::showCount() {
    const QModelIndex root = filtering_ ? explorer_.model().find(branch::root) : QModelIndex();
    count_.setVisible(root.isValid());
    if (!root.isValid()) return;
    const auto shown = static_cast<std::size_t>(explorer_.model().rowCount(root));
    count_.setText(wording_.translate("studio", "%1 of %2")
                       .arg(wording_.number(shown), wording_.number(explorer_.model().childCount(branch::root))));
}

void ExplorerFilter::goToFound() {
    const QModelIndex root = explorer_.model().find(branch::root);
    const QModelIndex current = tree_.currentIndex();
    const bool isFound = current.isValid() && current.parent() == root;
    if (const QModelIndex first = explorer_.model().index(0, 0, root); root.isValid() && first.isValid() && !isFound)
        tree_.choose(first);
    tree_.setFocus(Qt::OtherFocusReason);
}

bool ExplorerFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &field_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter: goToFound(); return true;
        case Qt::Key_Escape:
            if (field_.text().isEmpty()) tree_.setFocus(Qt::OtherFocusReason);
            field_.clear();
            return true;
        default: return QWidget::eventFilter(watched, event);
    }
}

}  // namespace hx::studio
