// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/multi_items_view.h"

#include <array>
#include <optional>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

VariableList variablesOf(const VariableSource* source) {
    return source == nullptr ? VariableList() : source->variables();
}

}  // namespace

MultiItemsView::MultiItemsView(forms::HXMultiItems& items, SurroundingForm& form, QWidget& area)
    : ControlView(items, form),
      wording_(form.services().wording),
      panel_(&area),
      model_(items, variablesOf(form.services().variables), wording_),
      table_(model_, searchField_) {
    name(items);
    arrange();
    for (QWidget* part :
         {static_cast<QWidget*>(&searchField_), static_cast<QWidget*>(&onlyChecked_), static_cast<QWidget*>(&table_)}) {
        watch(*part);
    }
    connect(&searchField_, &QLineEdit::textChanged, this, [this] { search(); });
    connect(&onlyChecked_, &QCheckBox::toggled, this, [this](bool only) {
        model_.setOnlyChecked(only);
        search();
    });
    showCount();
}

void MultiItemsView::name(const forms::HXMultiItems& items) {
    const QString own = objectNameOf(items);
    searchField_.setObjectName(own + QStringLiteral(".search"));
    onlyChecked_.setObjectName(own + QStringLiteral(".onlyChecked"));
    table_.setObjectName(own + QStringLiteral(".list"));
    count_.setObjectName(own + QStringLiteral(".count"));
    searchLabel_.setText(wording_.translate("dialogs", "&Search:"));
    searchLabel_.setBuddy(&searchField_);
    searchField_.setAccessibleName(searchLabel_.text().remove('&'));
    searchField_.setPlaceholderText(wording_.translate("dialogs", "words in name, type or comment; -word excludes"));
    searchField_.setClearButtonEnabled(true);
    onlyChecked_.setText(wording_.translate("dialogs", "&only checked"));
    table_.setAccessibleName(wording_.translate("dialogs", "Variables"));
}

void MultiItemsView::arrange() {
    column_.setContentsMargins(0, 0, 0, 0);
    searchRow_.addWidget(&searchLabel_);
    searchRow_.addWidget(&searchField_, 1);
    searchRow_.addWidget(&onlyChecked_);
    column_.addLayout(&searchRow_);
    column_.addWidget(&table_, 1);
    column_.addWidget(&count_);
    QWidget::setTabOrder(&searchField_, &onlyChecked_);
    QWidget::setTabOrder(&onlyChecked_, &table_);
    panel_.setFocusPolicy(Qt::StrongFocus);
    panel_.setFocusProxy(&searchField_);
    table_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_.setToggle([this] { toggle(); });
}

// The row that was current stays it while it is among those found.
void MultiItemsView::search() {
    const QModelIndex current = table_.currentIndex();
    const auto number = current.isValid() ? std::optional(model_.numberOf(current.row())) : std::nullopt;
    model_.search(searchField_.text());
    if (const int row = number ? model_.rowOf(*number) : -1; row >= 0) table_.goTo(row);
    showCount();
}

void MultiItemsView::toggle() {
    const QModelIndex current = table_.currentIndex();
    if (!current.isValid()) return;
    const bool check = !model_.isChecked(current.row());
    const QItemSelectionModel& selection = *table_.selectionModel();
    if (!selection.isRowSelected(current.row(), {}))
        return model_.check(std::array{std::string(model_.nameOf(current.row()))}, check);
    std::vector<std::string> names;
    for (const QItemSelectionRange& range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) names.emplace_back(model_.nameOf(row));
    }
    model_.check(names, check);
}

void MultiItemsView::showCount() {
    const auto& items = *modelOf<forms::HXMultiItems>(*this);
    if (model_.list().size() == 0)
        return count_.setText(wording_.translate("dialogs", "The project's variable list is empty."));
    const QString counts = wording_.translate("dialogs", "%1 of %2, %3 checked")
                               .arg(wording_.number(static_cast<std::size_t>(model_.rowCount())),
                                    wording_.number(model_.list().size()), wording_.number(items.selectedCount()));
    const std::size_t missing = model_.missingCount();
    count_.setText(missing == 0 ? counts
                                : wording_.translate("dialogs", "%1, %2 of them not in the variable list")
                                      .arg(counts, wording_.number(missing)));
}

void MultiItemsView::show(std::string_view property) {
    if (property != "SelectedItems") return ControlView::show(property);
    model_.refresh();
    showCount();
}

void MultiItemsView::detach() {
    model_.forget();
    ControlView::detach();
}

}  // namespace hx::qt
