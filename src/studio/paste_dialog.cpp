// SPDX-License-Identifier: MIT
#include "studio/paste_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

namespace hx::studio {

namespace {

constexpr QSize pasteSize(520, 420);
constexpr int pastedWidth = 320;
constexpr std::size_t mostShown = 2000;

}  // namespace

PasteDialog::PasteDialog(QWidget& window, std::vector<project::PastedVariable> lines, const KnownVariables& known,
                         const qt::Wording& wording)
    : QDialog(&window), lines_(std::move(lines)), known_(known), wording_(wording) {
    setObjectName(QStringLiteral("pasteDialog"));
    setWindowTitle(wording.translate("studio", "Paste Variables"));
    list_.setObjectName(QStringLiteral("pastedVariables"));
    unknown_.setObjectName(QStringLiteral("pasteUnknown"));
    state_.setObjectName(QStringLiteral("pasteState"));
    build();
    connect(&unknown_, &QCheckBox::toggled, this, [this] { fill(); });
    unknown_.setEnabled(std::ranges::any_of(lines_, [this](const auto& line) { return isUnknown(line); }));
    resize(pasteSize);
    fill();
}

void PasteDialog::build() {
    list_.setRootIsDecorated(false);
    list_.setUniformRowHeights(true);
    list_.setAccessibleName(windowTitle());
    list_.setHeaderLabels({wording_.translate("studio", "Variable"), wording_.translate("studio", "What happens")});
    list_.setColumnWidth(0, pastedWidth);
    unknown_.setText(wording_.translate("studio", "Add &unknown variables too"));
    auto* const buttons = new QDialogButtonBox;
    add_ = buttons->addButton(wording_.translate("studio", "&Add"), QDialogButtonBox::AcceptRole);
    add_->setObjectName(QStringLiteral("addPasted"));
    buttons->addButton(wording_.translate("studio", "Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(&list_, 1);
    for (QWidget* widget :
         {static_cast<QWidget*>(&unknown_), static_cast<QWidget*>(&state_), static_cast<QWidget*>(buttons)})
        rows->addWidget(widget);
}

bool PasteDialog::isUnknown(const project::PastedVariable& line) const {
    return !line.isThere && known_.isMarked(project::schema::member::varRecipe, line.name);
}

std::vector<std::string> PasteDialog::chosen() const {
    std::vector<std::string> names;
    for (const project::PastedVariable& line : lines_) {
        if (!line.isThere && (unknown_.isChecked() || !isUnknown(line))) names.push_back(line.name);
    }
    return names;
}

void PasteDialog::fill() {
    list_.clear();
    QList<QTreeWidgetItem*> items;
    for (const project::PastedVariable& line : lines_) {
        if (static_cast<std::size_t>(items.size()) == mostShown) break;
        const bool unknown = isUnknown(line);
        const QString what = line.isThere           ? wording_.translate("studio", "is there already")
                             : !unknown             ? wording_.translate("studio", "is added")
                             : unknown_.isChecked() ? wording_.translate("studio", "is added, not in the list")
                                                    : wording_.translate("studio", "not in the list");
        items << new QTreeWidgetItem(QStringList{qt::toQt(line.name), what});
    }
    list_.addTopLevelItems(items);
    const std::size_t count = chosen().size();
    state_.setText(wording_.translate("studio", "%1 of %2 lines are added.")
                       .arg(wording_.number(count), wording_.number(lines_.size())));
    add_->setEnabled(count > 0);
}

}  // namespace hx::studio
