// SPDX-License-Identifier: MIT
#include "adapters/qt/explorer/explorer_model.h"

#include <algorithm>

#include "adapters/qt/text.h"
#include "automation/dispatch.h"

namespace hx::qt {

namespace {

void mark(std::vector<bool>& marks, hosting::NodeTree::Id id) {
    if (marks.size() <= id) marks.resize(std::max<std::size_t>(id + 1, marks.size() * 2));
    marks[id] = true;
}

}  // namespace

ExplorerModel::ExplorerModel() {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ExplorerModel::publish);
}

void ExplorerModel::add(const host::NewNode& node) {
    publishGoing();
    const Id id = tree_.add(node);
    const Id parent = tree_.parent(id);
    mark(new_, id);
    if (parent == growing_ || isNew(parent)) return;  // a new one brings it along
    growing_ = parent;
    published_.try_emplace(parent, static_cast<int>(tree_.childCount(parent)) - 1);
    if (!timer_.isActive()) timer_.start();
}

void ExplorerModel::remove(std::string_view key) {
    const Id id = require(key);
    if (isNew(id)) {
        tree_.remove(id);
        return;
    }
    publishNew();
    mark(goingMarks_, id);
    going_.push_back(id);
    if (!timer_.isActive()) timer_.start();
}

ExplorerModel::Id ExplorerModel::require(std::string_view key) {
    const Id id = tree_.find(key);
    if (id == hosting::NodeTree::none || isGoing(id)) {
        automation::throwBadIndex("Nodes", automation::Variant(std::string(key)));
    }
    return id;
}

bool ExplorerModel::isGoing(Id id) const {
    if (going_.empty()) return false;
    for (; id != hosting::NodeTree::none; id = tree_.parent(id)) {
        if (id < goingMarks_.size() && goingMarks_[id]) return true;
    }
    return false;
}

void ExplorerModel::setCaption(std::string_view key, std::string_view caption) {
    const Id id = require(key);
    tree_.setCaption(id, caption);
    if (isNew(id)) return;
    const QModelIndex changed = indexOf(id);
    emit dataChanged(changed, changed, {Qt::DisplayRole});
}

const hosting::NodeTree& ExplorerModel::nodes() {
    publish();
    return tree_;
}

int ExplorerModel::depth(std::string_view key) const {
    int depth = 0;
    for (Id id = tree_.findNear(key); id != hosting::NodeTree::none && id != hosting::NodeTree::root;
         id = tree_.parent(id)) {
        ++depth;
    }
    return depth;
}

void ExplorerModel::clear() {
    beginResetModel();
    tree_.clear();
    images_.clear();
    new_.clear();
    published_.clear();
    growing_ = hosting::NodeTree::none;
    going_.clear();
    goingMarks_.clear();
    endResetModel();
}

void ExplorerModel::publish() {
    publishGoing();
    publishNew();
}

void ExplorerModel::publishNew() {
    if (published_.empty()) return;
    const auto grown = published_;
    new_.clear();
    for (const auto& [parent, known] : grown) {
        const int count = static_cast<int>(tree_.childCount(parent));
        if (count > known) beginInsertRows(indexOf(parent), known, count - 1);
        published_.erase(parent);
        growing_ = hosting::NodeTree::none;
        if (count > known) endInsertRows();
    }
}

void ExplorerModel::publishGoing() {
    if (going_.empty()) return;
    std::unordered_map<Id, std::vector<std::size_t>> rows;
    for (const Id id : going_) {
        goingMarks_[id] = false;
        const bool withParent = isGoing(tree_.parent(id));
        goingMarks_[id] = true;
        if (!withParent) rows[tree_.parent(id)].push_back(tree_.row(id));
    }
    going_.clear();
    goingMarks_.clear();
    for (auto& [parent, list] : rows) removeRowsOf(parent, std::move(list));
}

void ExplorerModel::removeRowsOf(Id parent, std::vector<std::size_t> rows) {
    std::ranges::sort(rows);
    for (std::size_t end = rows.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (begin > 0 && rows[begin - 1] + 1 == rows[begin]) --begin;
        const std::size_t first = rows[begin];
        const std::size_t last = rows[end - 1];
        beginRemoveRows(indexOf(parent), static_cast<int>(first), static_cast<int>(last));
        for (std::size_t i = first; i <= last; ++i) tree_.remove(tree_.child(parent, first));
        endRemoveRows();
        end = begin;
    }
}

std::vector<std::string> ExplorerModel::childKeys(std::string_view key, std::int32_t levels) {
    publishGoing();
    return tree_.childKeys(key, levels);
}

QModelIndex ExplorerModel::find(std::string_view key) {
    publish();
    const Id id = tree_.find(key);
    return id == hosting::NodeTree::none ? QModelIndex() : indexOf(id);
}

void ExplorerModel::setImage(const std::string& key, const QIcon& icon) { images_[key] = icon; }

ExplorerModel::Id ExplorerModel::idOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Id>(index.internalId()) : hosting::NodeTree::root;
}

QModelIndex ExplorerModel::indexOf(Id id) const {
    if (id == hosting::NodeTree::root || id == hosting::NodeTree::none) return {};
    return createIndex(static_cast<int>(tree_.row(id)), 0, static_cast<quintptr>(id));
}

QModelIndex ExplorerModel::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
    return createIndex(row, 0, static_cast<quintptr>(tree_.child(idOf(parent), static_cast<std::size_t>(row))));
}

QModelIndex ExplorerModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(tree_.parent(idOf(index))) : QModelIndex();
}

int ExplorerModel::rowCount(const QModelIndex& parent) const {
    const Id id = idOf(parent);
    const auto known = published_.empty() ? published_.end() : published_.find(id);
    return known != published_.end() ? known->second : static_cast<int>(tree_.childCount(id));
}

bool ExplorerModel::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0 || (parent.isValid() && tree_.options(idOf(parent))[0]);
}

QVariant ExplorerModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) return toQt(caption(index));
    if (role == Qt::DecorationRole) {
        const auto found = images_.find(tree_.image(idOf(index)));
        return found == images_.end() ? QVariant() : QVariant(found->second);
    }
    return {};
}

}  // namespace hx::qt
