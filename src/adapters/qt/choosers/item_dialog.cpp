// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/item_dialog.h"

#include <QApplication>
#include <QPushButton>

#include "adapters/qt/dialog_buttons.h"

namespace hx::qt {

ItemDialog::ItemDialog(const Wording& wording, VariableList variables, QWidget* owner)
    : QDialog(owner == nullptr ? QApplication::activeWindow() : owner->window()),
      wording_(wording),
      model_(std::move(variables), wording),
      table_(model_, searchField_) {
    setObjectName(QStringLiteral("itemDialog"));
    searchLabel_.setText(wording.translate("dialogs", "&Search:"));
    setWindowTitle(wording.translate("dialogs", "Select Variable"));
    searchLabel_.setBuddy(&searchField_);
    searchField_.setObjectName(QStringLiteral("itemSearch"));
    searchField_.setAccessibleName(searchLabel_.text().remove('&'));
    searchField_.setClearButtonEnabled(true);
    searchField_.setPlaceholderText(wording.translate("dialogs", "words in name, type or comment; -word excludes"));
    searchRow_.addWidget(&searchLabel_);
    searchRow_.addWidget(&searchField_);
    column_.addLayout(&searchRow_);
    column_.addWidget(&table_, 1);
    column_.addWidget(&count_);
    column_.addWidget(&buttons_);
    setUpTable();
    setUpButtons(wording);
    connect(&searchField_, &QLineEdit::textChanged, this, [this](const QString& text) { search(text); });
}

void ItemDialog::setUpTable() {
    count_.setObjectName(QStringLiteral("itemCount"));
    table_.setObjectName(QStringLiteral("itemList"));
    table_.setAccessibleName(windowTitle());
    table_.setSelectionMode(QAbstractItemView::SingleSelection);
    connect(&table_, &QTableView::doubleClicked, this, &QDialog::accept);
    connect(table_.selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
        if (current.isValid()) chosen_ = model_.numberOf(current.row());
        refresh();
    });
}

void ItemDialog::setUpButtons(const Wording& wording) {
    buttons_.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    dressButtons(buttons_, wording);
    connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    refresh();
}

// The chosen variable stays chosen while it is among those found; else the first one is.
void ItemDialog::search(const QString& text) {
    model_.search(text);
    const int row = chosen_ ? model_.rowOf(*chosen_) : -1;
    if (model_.rowCount() > 0) table_.goTo(std::max(row, 0));
    refresh();
}

void ItemDialog::refresh() {
    buttons_.button(QDialogButtonBox::Ok)->setEnabled(!selected().isEmpty());
    count_.setText(model_.list().size() == 0 ? wording_.translate("dialogs", "The project's variable list is empty.")
                                             : wording_.translate("dialogs", "%1 of %2")
                                                   .arg(wording_.number(static_cast<std::size_t>(model_.rowCount())),
                                                        wording_.number(model_.list().size())));
}

void ItemDialog::select(const QString& name) {
    if (const int row = model_.find(name.trimmed()); row >= 0) table_.goTo(row);
}

QString ItemDialog::selected() const {
    const QModelIndex current = table_.currentIndex();
    return current.isValid() ? current.siblingAtColumn(VariableModel::nameColumn).data().toString() : QString();
}

}  // namespace hx::qt
