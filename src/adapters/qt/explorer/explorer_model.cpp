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
    arrangement_.changed();
    if (isNew(id) || isHidden(id)) return;
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
    arrangement_.end();
    arrangement_.changed();
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
    for (const auto& [parent, known] : grown) publishNewOf(parent, known);
}

void ExplorerModel::publishNewOf(Id parent, int known) {
    const int count = static_cast<int>(tree_.childCount(parent));
    const auto ends = [&] {
        published_.erase(parent);
        growing_ = hosting::NodeTree::none;
    };
    if (known == 0 && tree_.key(parent) == arrangement_.key()) {
        arrangement_.changed();
        arrangement_.arrange(parent, static_cast<std::size_t>(count));
    }
    if (arrangement_.isOf(parent) && known > 0) {
        arrangement_.changed();
        for (int row = known; row < count; ++row) reveal(tree_.child(parent, static_cast<std::size_t>(row)));
        return ends();
    }
    const int shown = arrangement_.isOf(parent) ? arrangement_.count() : count;
    if (shown > known) beginInsertRows(indexOf(parent), known, shown - 1);
    ends();
    if (shown > known) endInsertRows();
}

void ExplorerModel::arrange(const std::string& key, const automation::WordFilter& filter, bool byName) {
    publish();
    arrangement_.want(key, filter, byName);
    const Id parent = tree_.find(key);
    if (parent == hosting::NodeTree::none) return;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    arrangement_.arrange(parent, tree_.childCount(parent));
    QModelIndexList after;
    for (const QModelIndex& index : before) after.append(isHidden(idOf(index)) ? QModelIndex() : indexOf(idOf(index)));
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

std::size_t ExplorerModel::childCount(std::string_view key) {
    publish();
    const Id id = tree_.find(key);
    return id == hosting::NodeTree::none ? 0 : tree_.childCount(id);
}

bool ExplorerModel::isHidden(Id id) const {
    for (; id != hosting::NodeTree::none && id != hosting::NodeTree::root; id = tree_.parent(id)) {
        if (arrangement_.hides(id)) return true;
    }
    return false;
}

void ExplorerModel::reveal(Id id) {
    for (; id != hosting::NodeTree::none && id != hosting::NodeTree::root; id = tree_.parent(id)) {
        if (!arrangement_.hides(id)) continue;
        beginInsertRows(indexOf(tree_.parent(id)), arrangement_.count(), arrangement_.count());
        arrangement_.append(id);
        endInsertRows();
    }
}

void ExplorerModel::publishGoing() {
    if (going_.empty()) return;
    arrangement_.changed();
    std::unordered_map<Id, std::vector<std::size_t>> rows;
    std::vector<Id> hidden;
    for (const Id id : going_) {
        goingMarks_[id] = false;
        const bool withParent = isGoing(tree_.parent(id));
        goingMarks_[id] = true;
        if (withParent) continue;
        if (isHidden(id)) hidden.push_back(id);
        else rows[tree_.parent(id)].push_back(static_cast<std::size_t>(indexOf(id).row()));
    }
    for (const Id id : hidden) tree_.remove(id);
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
        if (arrangement_.isOf(parent)) {
            for (const Id id : arrangement_.take(first, last - first + 1)) tree_.remove(id);
        } else {
            for (std::size_t i = first; i <= last; ++i) tree_.remove(tree_.child(parent, first));
        }
        if (!arrangement_.isOf(tree_.find(arrangement_.key()))) arrangement_.end();
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
    reveal(id);
    return indexOf(id);
}

void ExplorerModel::setImage(const std::string& key, const QIcon& icon) { images_[key] = icon; }

ExplorerModel::Id ExplorerModel::idOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Id>(index.internalId()) : hosting::NodeTree::root;
}

QModelIndex ExplorerModel::indexOf(Id id) const {
    if (id == hosting::NodeTree::root || id == hosting::NodeTree::none) return {};
    const auto arranged = arrangement_.isOf(tree_.parent(id)) ? arrangement_.rowOf(id) : std::nullopt;
    return createIndex(arranged.value_or(static_cast<int>(tree_.row(id))), 0, static_cast<quintptr>(id));
}

QModelIndex ExplorerModel::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
    const auto at = static_cast<std::size_t>(row);
    const Id child = arrangement_.isOf(idOf(parent)) ? arrangement_.at(at) : tree_.child(idOf(parent), at);
    return createIndex(row, 0, static_cast<quintptr>(child));
}

QModelIndex ExplorerModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(tree_.parent(idOf(index))) : QModelIndex();
}

int ExplorerModel::rowCount(const QModelIndex& parent) const {
    const Id id = idOf(parent);
    if (arrangement_.isOf(id)) return arrangement_.count();
    const auto known = published_.empty() ? published_.end() : published_.find(id);
    return known != published_.end() ? known->second : static_cast<int>(tree_.childCount(id));
}

bool ExplorerModel::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0 || (parent.isValid() && tree_.options(idOf(parent))[0]);
}

void ExplorerModel::setRenaming(CanRename canRename, Rename rename) {
    canRename_ = std::move(canRename);
    rename_ = std::move(rename);
}

// Views ask for them with each node that they lay out.
Qt::ItemFlags ExplorerModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return canRename_ && canRename_(tree_.key(idOf(index))) ? flags | Qt::ItemIsEditable : flags;
}

bool ExplorerModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const std::string after = fromQt(value.toString());
    if (role != Qt::EditRole || !index.isValid() || after.empty() || after == caption(index)) return false;
    QMetaObject::invokeMethod(
        this, [this, key = key(index), after] { rename_(key, after); }, Qt::QueuedConnection);
    return false;
}

QVariant ExplorerModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole) return toQt(caption(index));
    if (role == Qt::DecorationRole) {
        const auto found = images_.find(tree_.image(idOf(index)));
        return found == images_.end() ? QVariant() : QVariant(found->second);
    }
    return {};
}

}  // namespace hx::qt
