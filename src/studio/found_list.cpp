// SPDX-License-Identifier: MIT
#include "studio/found_list.h"

#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt/text.h"

namespace hx::studio {

void FoundModel::setThings(std::shared_ptr<const FoundThings> things) {
    beginResetModel();
    things_ = std::move(things);
    endResetModel();
}

void FoundModel::setTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

void FoundModel::refresh() {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columns_ - 1));
}

QModelIndex FoundModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columns_) return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : ofGroup);
}

QModelIndex FoundModel::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == ofGroup) return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, ofGroup);
}

int FoundModel::rowCount(const QModelIndex& parent) const {
    if (!things_) return 0;
    if (!parent.isValid()) return static_cast<int>(things_->groups());
    if (parent.internalId() != ofGroup || parent.column() != 0) return 0;
    const auto [first, end] = thingsIn(parent);
    return static_cast<int>(end - first);
}

std::size_t FoundModel::thingOf(const QModelIndex& index) const {
    return things_->firstOf(index.internalId() - 1) + static_cast<std::size_t>(index.row());
}

std::pair<std::size_t, std::size_t> FoundModel::thingsIn(const QModelIndex& index) const {
    if (index.internalId() != ofGroup) return {thingOf(index), thingOf(index) + 1};
    const auto group = static_cast<std::size_t>(index.row());
    return {things_->firstOf(group), things_->firstOf(group + 1)};
}

Place FoundModel::place(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    if (index.internalId() != ofGroup) return things_->place(thingOf(index));
    return things_->placeOfGroup(static_cast<std::size_t>(index.row()));
}

QVariant FoundModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const bool isGroup = index.internalId() == ofGroup;
    if (isGroup) {
        const auto group = static_cast<std::size_t>(index.row());
        if (role == Qt::DisplayRole && index.column() == 0) return things_->title(group);
        if (role == Qt::ToolTipRole) return qt::plainToolTip(things_->title(group));
        return {};
    }
    if (role == Qt::DisplayRole) return things_->text(thingOf(index), index.column());
    if (role == Qt::ToolTipRole) return qt::plainToolTip(things_->toolTip(thingOf(index)));
    return {};
}

QVariant FoundModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return titles_.value(section);
}

FoundView::FoundView(FoundModel& model, GoTo goTo) : model_(model) {
    setModel(&model);
    setUniformRowHeights(true);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(true);
    const auto go = [this, goTo = std::move(goTo)](const QModelIndex& index, bool into) {
        if (const Place place = model_.place(index); place.recipe != 0) goTo(place, into);
        else if (into) setExpanded(index, !isExpanded(index));
    };
    connect(this, &QTreeView::clicked, this, [go](const QModelIndex& index) { go(index, false); });
    connect(this, &QTreeView::activated, this, [go](const QModelIndex& index) { go(index, true); });
}

std::vector<std::size_t> FoundView::selected() const {
    std::vector<std::size_t> things;
    for (const QModelIndex& row : selectionModel()->selectedRows()) {
        const auto [first, end] = model_.thingsIn(row);
        for (std::size_t thing = first; thing < end; ++thing) things.push_back(thing);
    }
    std::ranges::sort(things);
    things.erase(std::unique(things.begin(), things.end()), things.end());
    return things;
}

void FoundView::showAll() {
    constexpr std::size_t most = 5000;
    if (model_.things() == nullptr || model_.things()->size() > most) return;
    for (int group = 0; group < model_.rowCount(); ++group) setFirstColumnSpanned(group, {}, true);
    expandAll();
}

void arrangeList(QWidget& panel, QWidget& field, QWidget& state, FoundView& list) {
    constexpr int margin = 4, recipeWidth = 220;
    list.setColumnWidth(0, recipeWidth);
    auto* const top = new QHBoxLayout;
    top->setContentsMargins(margin, margin, margin, margin);
    top->setSpacing(2 * margin);
    top->addWidget(&field, 1);
    top->addWidget(&state);
    auto* const rows = new QVBoxLayout(&panel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(top);
    rows->addWidget(&list, 1);
}

}  // namespace hx::studio
