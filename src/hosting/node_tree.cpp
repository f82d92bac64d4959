// SPDX-License-Identifier: MIT
#include "hosting/node_tree.h"

#include <algorithm>

#include "automation/dispatch.h"

namespace hx::hosting {

using automation::errBadIndex;
using automation::Error;

namespace {

/// How far up from the node added last a parent is looked for before the index is asked: branches are added depth
/// first.
constexpr int nearAncestors = 3;

}  // namespace

NodeTree::NodeTree() { clear(); }

NodeTree::Id NodeTree::add(const host::NewNode& node) {
    const Id parentId = findNear(node.parent);
    if (parentId == none) automation::throwBadIndex("Explorer", automation::Variant(node.parent));
    if (node.key.empty()) throw Error(errBadIndex, "A node of the explorer needs a key");
    const Id id = free_.empty() ? static_cast<Id>(nodes_.size()) : free_.back();
    const auto sameKey = [&](Id other) { return nodes_[other].key == node.key; };
    if (index_.insert(automation::KeyIndex::hashOf(node.key), id, sameKey) != none) {
        throw Error(errBadIndex, "Explorer has a node \"" + std::string(node.key) + "\" already");
    }
    takeSlot();
    Node& made = nodes_[id];
    made.key = packed_.keep(node.key);
    made.caption = packed_.keep(node.caption);
    made.tag = texts_.numberOf(node.tag);
    made.image = texts_.numberOf(node.image);
    made.options = node.options;
    made.number = node.number;
    attach(id, parentId);
    last_ = id;
    return id;
}

void NodeTree::remove(Id id) {
    if (id == root) return clear();
    detach(id);
    release(id);
    last_ = root;
}

NodeTree::Id NodeTree::find(std::string_view key) const noexcept {
    return index_.find(automation::KeyIndex::hashOf(key), [&](Id id) { return nodes_[id].key == key; });
}

NodeTree::Id NodeTree::findNear(std::string_view key) const noexcept {
    if (key.empty()) return root;
    Id near = last_;
    for (int i = 0; i < nearAncestors && near != root; ++i, near = nodes_[near].parent) {
        if (nodes_[near].key == key) return near;
    }
    return find(key);
}

NodeTree::Id NodeTree::parent(Id id) const noexcept { return nodes_[id].parent; }

std::size_t NodeTree::childCount(Id id) const noexcept {
    const Node& node = nodes_[id];
    return node.onlyChild != none ? 1 : lists_[node.list].count();
}

NodeTree::Id NodeTree::child(Id id, std::size_t row) const noexcept {
    const Node& node = nodes_[id];
    if (node.onlyChild != none) return node.onlyChild;
    const Children& children = lists_[node.list];
    return children.ids[children.head + row];
}

std::size_t NodeTree::row(Id id) const noexcept {
    if (id == root) return 0;
    const Node& parentNode = nodes_[nodes_[id].parent];
    if (parentNode.onlyChild != none) return 0;
    const Children& siblings = lists_[parentNode.list];
    const auto first = siblings.ids.begin() + static_cast<std::ptrdiff_t>(siblings.head);
    // Where no sibling was taken out of the middle, the distance of the ordinals is the place.
    const std::size_t guess = nodes_[id].ordinal - nodes_[*first].ordinal;
    if (guess < siblings.count() && first[static_cast<std::ptrdiff_t>(guess)] == id) return guess;
    const auto before = [&](Id sibling, std::uint32_t ordinal) { return nodes_[sibling].ordinal < ordinal; };
    return static_cast<std::size_t>(std::lower_bound(first, siblings.ids.end(), nodes_[id].ordinal, before) - first);
}

std::string_view NodeTree::key(Id id) const noexcept { return nodes_[id].key; }
std::string_view NodeTree::caption(Id id) const noexcept { return nodes_[id].caption; }
const std::string& NodeTree::tag(Id id) const noexcept { return texts_[nodes_[id].tag]; }
const std::string& NodeTree::image(Id id) const noexcept { return texts_[nodes_[id].image]; }
const std::array<bool, 3>& NodeTree::options(Id id) const noexcept { return nodes_[id].options; }
std::int32_t NodeTree::number(Id id) const noexcept { return nodes_[id].number; }

void NodeTree::setCaption(Id id, std::string_view caption) {
    const std::size_t before = nodes_[id].caption.size();
    nodes_[id].caption = packed_.keep(caption);
    dropped(before);
}

// Packs the texts afresh when most of them are of no use: each is then moved once on average.
void NodeTree::dropped(std::size_t bytes) {
    constexpr std::size_t worthIt = std::size_t{64} * 1024;
    dropped_ += bytes;
    if (dropped_ < worthIt || dropped_ * 2 < packed_.size()) return;
    automation::PackedTexts packed;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        Node& node = nodes_[i];
        node.key = packed.keep(node.key);
        node.caption = packed.keep(node.caption);
    }
    packed_ = std::move(packed);
    dropped_ = 0;
}

std::size_t NodeTree::size() const noexcept { return index_.size(); }

std::vector<std::string> NodeTree::childKeys(std::string_view key, std::int32_t levels) const {
    std::vector<std::string> keys;
    const Id top = key.empty() ? root : find(key);
    if (top == none || levels <= 0) return keys;
    struct Place {
        Id id;
        std::size_t row;
    };
    std::vector<Place> path{{top, 0}};
    while (!path.empty()) {
        Place& place = path.back();
        if (place.row == childCount(place.id)) {
            path.pop_back();
            continue;
        }
        const Id next = child(place.id, place.row++);
        keys.emplace_back(nodes_[next].key);
        if (path.size() < static_cast<std::size_t>(levels)) path.push_back({next, 0});
    }
    return keys;
}

void NodeTree::clear() {
    nodes_.clear();
    nodes_.append();
    free_.clear();
    lists_.clear();
    lists_.append();
    freeLists_.clear();
    packed_.clear();
    dropped_ = 0;
    texts_.clear();
    index_.clear();
    last_ = root;
}

void NodeTree::takeSlot() {
    if (free_.empty()) {
        nodes_.append();
    } else {
        free_.pop_back();
    }
}

void NodeTree::attach(Id id, Id parentId) {
    nodes_[id].parent = parentId;
    Node& parentNode = nodes_[parentId];
    if (parentNode.list == 0 && parentNode.onlyChild == none) {
        parentNode.onlyChild = id;
        return;
    }
    if (parentNode.list == 0) parentNode.list = takeList();
    Children& children = lists_[parentNode.list];
    if (parentNode.onlyChild != none) children.ids.push_back(parentNode.onlyChild);
    parentNode.onlyChild = none;
    if (children.count() > 0) nodes_[id].ordinal = nodes_[children.ids.back()].ordinal + 1;
    children.ids.push_back(id);
}

std::uint32_t NodeTree::takeList() {
    if (freeLists_.empty()) {
        lists_.append();
        return static_cast<std::uint32_t>(lists_.size() - 1);
    }
    const std::uint32_t list = freeLists_.back();
    freeLists_.pop_back();
    return list;
}

void NodeTree::detach(Id id) {
    Node& parentNode = nodes_[nodes_[id].parent];
    if (parentNode.onlyChild == id) {
        parentNode.onlyChild = none;
        return;
    }
    Children& siblings = lists_[parentNode.list];
    const std::size_t at = siblings.head + row(id);
    if (at == siblings.head) {
        ++siblings.head;
    } else {
        siblings.ids.erase(siblings.ids.begin() + static_cast<std::ptrdiff_t>(at));
    }
    // Giving back the room of the taken ones only when they are the half makes each removal cheap on average.
    if (siblings.head * 2 > siblings.ids.size()) {
        siblings.ids.erase(siblings.ids.begin(), siblings.ids.begin() + static_cast<std::ptrdiff_t>(siblings.head));
        siblings.head = 0;
    }
}

void NodeTree::release(Id id) {
    std::size_t bytes = 0;
    std::vector<Id> doomed{id};  // a list, not recursion: a chain of nodes may be deep
    while (!doomed.empty()) {
        const Id next = doomed.back();
        doomed.pop_back();
        for (std::size_t i = 0; i < childCount(next); ++i) doomed.push_back(child(next, i));
        Node& node = nodes_[next];
        index_.erase(automation::KeyIndex::hashOf(node.key), next);
        bytes += node.key.size() + node.caption.size();
        if (node.list != 0) {
            lists_[node.list] = Children{};
            freeLists_.push_back(node.list);
        }
        node = Node{};
        free_.push_back(next);
    }
    dropped(bytes);
}

}  // namespace hx::hosting
