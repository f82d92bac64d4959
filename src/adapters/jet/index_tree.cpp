// SPDX-License-Identifier: MIT
#include "adapters/jet/index_tree.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

constexpr std::size_t deepest = 32;
constexpr std::uint32_t childSize = IndexPage::childSize;

Buffer withPlace(Bytes key, Place place) {
    Buffer entry(key.begin(), key.end());
    entry.resize(entry.size() + IndexPage::placeSize);
    putBig32(entry.data() + key.size(), place.number());
    return entry;
}

Buffer withChild(Bytes keyAndPlace, std::uint32_t child) {
    Buffer entry(keyAndPlace.begin(), keyAndPlace.end());
    entry.resize(entry.size() + childSize);
    putBig32(entry.data() + keyAndPlace.size(), child);
    return entry;
}

Bytes withoutChild(const Buffer& entry) { return Bytes(entry).first(entry.size() - childSize); }
std::uint32_t childOf(const Buffer& entry) { return getBig32(entry.data() + entry.size() - childSize); }

// What the entries take on a page.
std::size_t sizeTogether(std::span<const Buffer> entries, std::size_t tail) {
    if (entries.empty()) return 0;
    const Buffer& first = entries.front();
    const Buffer& last = entries.back();
    std::size_t shared = 0;
    if (entries.size() > 1) {
        const auto end = std::mismatch(first.begin(), first.end() - static_cast<std::ptrdiff_t>(tail), last.begin(),
                                       last.end() - static_cast<std::ptrdiff_t>(tail));
        shared = static_cast<std::size_t>(end.first - first.begin());
    }
    std::size_t size = shared;
    for (const Buffer& entry : entries) size += entry.size() - shared;
    return size;
}

}  // namespace

IndexPage IndexTree::descend(Bytes keyAndPlace) {
    path_.clear();
    leaf_ = root_;
    for (;;) {
        IndexPage page = read(leaf_);
        if (page.isLeaf()) return page;
        require(path_.size() < deepest, leaf_, sentence::noIndexPage);
        std::uint32_t slot = page.find(keyAndPlace);
        if (slot == page.entries() && page.tail() == 0) {
            require(slot > 0, leaf_, sentence::noIndexPage);
            --slot;
        }
        path_.push_back({leaf_, slot});
        leaf_ = slot < page.entries() ? page.child(slot) : page.tail();
    }
}

// --- looking

IndexTree::Cursor::Cursor(IndexTree& tree, Bytes from) : tree_(&tree), leaf_(tree.descend(from)) {
    entry_ = leaf_->find(from);
    skipEmpty();
}

void IndexTree::Cursor::next() {
    ++entry_;
    skipEmpty();
}

void IndexTree::Cursor::skipEmpty() {
    while (entry_ >= leaf_->entries()) {
        const std::uint32_t next = leaf_->next();
        if (next == 0) return leaf_.reset();
        require(++passed_ <= tree_->pages_->count(), next, sentence::noIndexPage);
        leaf_.emplace(tree_->read(next));
        require(leaf_->isLeaf(), next, sentence::noIndexPage);
        entry_ = 0;
    }
}

int IndexTree::Cursor::compareStart(Bytes start) const noexcept {
    const IndexPage::Entry entry = leaf_->entry(entry_);
    const std::size_t shared = std::min(entry.shared.size(), start.size());
    if (shared > 0) {
        if (const int order = std::memcmp(entry.shared.data(), start.data(), shared); order != 0) return order;
    }
    const Bytes rest = start.subspan(shared);
    const std::size_t own = std::min(entry.own.size(), rest.size());
    if (own > 0) {
        if (const int order = std::memcmp(entry.own.data(), rest.data(), own); order != 0) return order;
    }
    return own < rest.size() ? -1 : 0;
}

bool IndexTree::contains(Bytes key, std::optional<Place> butOf) {
    for (Cursor cursor(*this, key); !cursor.atEnd(); cursor.next()) {
        if (!cursor.leaf().equalsKey(cursor.entry(), key)) return false;
        if (!butOf || cursor.place() != *butOf) return true;
    }
    return false;
}

bool IndexTree::has(Bytes key, Place place) {
    const Buffer entry = withPlace(key, place);
    const Cursor cursor(*this, entry);
    return !cursor.atEnd() && cursor.leaf().equals(cursor.entry(), entry);
}

// --- adding

bool IndexTree::hasNeighbour(const IndexPage& leaf, std::uint32_t at, Bytes key) {
    if (at > 0) {
        if (leaf.equalsKey(at - 1, key)) return true;
    } else if (leaf.previous() != 0) {
        const IndexPage previous = read(leaf.previous());
        if (previous.entries() > 0 && previous.equalsKey(previous.entries() - 1, key)) return true;
    }
    if (at < leaf.entries()) return leaf.equalsKey(at, key);
    if (leaf.next() == 0) return false;
    const IndexPage next = read(leaf.next());
    return next.entries() > 0 && next.equalsKey(0, key);
}

// Entries often come one behind the other: then they go to the same leaf without a way through the tree.
bool IndexTree::insertNear(Bytes entry, bool& isFirst) {
    if (near_ == 0 || nearGeneration_ != pages_->generation()) return false;
    const IndexPage leaf = read(near_);
    const std::uint32_t at = leaf.find(entry);
    const bool behindAll = at == leaf.entries() && leaf.next() == 0;
    if (!leaf.isLeaf() || at == 0 || (at == leaf.entries() && !behindAll)) return false;
    isFirst = !hasNeighbour(leaf, at, entry.first(entry.size() - IndexPage::placeSize));
    return write(near_).insert(at, entry);
}

bool IndexTree::insert(Bytes key, Place place) {
    const Buffer entry = withPlace(key, place);
    bool isFirst = true;
    if (insertNear(entry, isFirst)) return isFirst;
    near_ = 0;
    std::uint32_t at = 0;
    bool goesIn = false;
    std::vector<Buffer> entries;
    {
        const IndexPage leaf = descend(entry);
        at = leaf.find(entry);
        isFirst = !hasNeighbour(leaf, at, key);
        if (at == leaf.entries()) grow(entry);
        goesIn = write(leaf_).insert(at, entry);
        if (!goesIn) entries = leaf.all();
    }
    if (!goesIn) {
        addsBehindAll_ = at == entries.size();
        entries.insert(entries.begin() + at, entry);
        path_.push_back({leaf_, 0});
        assign(path_.size() - 1, entries);
        return isFirst;
    }
    // The last leaf of all takes what comes behind it only when no page above tells its last entry.
    const bool tails =
        std::ranges::all_of(path_, [&](const Step& step) { return step.slot == read(step.page).entries(); });
    const bool last = read(leaf_).next() == 0;
    if (tails || !last) {
        near_ = leaf_;
        nearGeneration_ = pages_->generation();
    }
    return isFirst;
}

// The last entry of the leaf becomes this one: no page may tell an earlier one.
void IndexTree::grow(Bytes keyAndPlace) {
    for (std::size_t level = path_.size(); level > 0; --level) {
        Step& step = path_[level - 1];
        const IndexPage page = read(step.page);
        if (step.slot == page.entries()) continue;
        if (page.find(keyAndPlace) <= step.slot) return;
        if (page.entries() == 1) {
            replaceKey(step, keyAndPlace);
            continue;
        }
        IndexPage changed = write(step.page);
        changed.setTail(changed.child(step.slot));
        changed.erase(step.slot);
        step.slot = changed.entries();
    }
}

void IndexTree::replaceKey(const Step& step, Bytes keyAndPlace) {
    IndexPage page = write(step.page);
    std::vector<Buffer> entries = page.all();
    entries[step.slot] = withChild(keyAndPlace, childOf(entries[step.slot]));
    // A key that is greater than all entries of its page leads there all the same.
    (void)page.assign(entries);
}

PageRef IndexTree::newPage(bool isLeaf) {
    PageRef page = space_->allocate();
    IndexPage::make(page, table_, isLeaf);
    UsageMap(*pages_, own_).add(page.number());
    return page;
}

// The root stays where it is: what it held goes one level down.
void IndexTree::nestRoot() {
    IndexPage root = write(root_);
    const PageRef page = newPage(root.isLeaf());
    IndexPage below(page, table_);
    below.setTail(root.tail());
    const PageRef& rootPage = root.page();
    IndexPage::make(rootPage, table_, false);
    IndexPage(rootPage, table_).setTail(page.number());
    path_.front().page = page.number();
    path_.insert(path_.begin(), {root_, 0});
}

void IndexTree::linkBefore(const PageRef& page, IndexPage& next) {
    IndexPage added(page, table_);
    added.setNext(next.page().number());
    added.setPrevious(next.previous());
    if (next.previous() != 0) write(next.previous()).setNext(page.number());
    next.setPrevious(page.number());
}

// Pages that lead to others are linked with those alone that the same page leads to.
void IndexTree::separate(std::uint32_t lastOfLeft) {
    if (read(lastOfLeft).isLeaf()) return;
    IndexPage last = write(lastOfLeft);
    if (last.next() != 0) write(last.next()).setPrevious(0);
    last.setNext(0);
}

// Gives the page these entries; what does not go in goes to new pages before it.
void IndexTree::assign(std::size_t level, const std::vector<Buffer>& entries) {
    if (write(path_[level].page).assign(entries)) return;
    if (level == 0) {
        nestRoot();
        ++level;
    }
    IndexPage page = write(path_[level].page);
    const bool leaf = page.isLeaf();
    const std::size_t tail = IndexPage::placeSize + (leaf ? 0 : childSize), kept = leaf ? 0 : 1;
    const bool behindAll = leaf && page.next() == 0 && addsBehindAll_;
    std::vector<Buffer> above;
    std::span<const Buffer> left(entries);
    while (sizeTogether(left, tail) > IndexPage::room || above.empty()) {
        // Half of them, or all but the last where more is to come behind it; fewer when these do not go in.
        std::size_t count = behindAll ? left.size() - 1 : std::max<std::size_t>(left.size() / 2, kept + 1);
        while (count > kept + 1 && sizeTogether(left.first(count - kept), tail) > IndexPage::room) --count;
        require(count >= 1 && left.size() > count, page.page().number(), sentence::noIndexPage);
        const PageRef added = newPage(leaf);
        IndexPage first(added, table_);
        require(first.assign(left.first(count - kept)), added.number(), sentence::noIndexPage);
        const Buffer& last = left[count - 1];
        if (!leaf) {
            first.setTail(childOf(last));
            separate(childOf(last));
        }
        linkBefore(added, page);
        above.push_back(withChild(leaf ? Bytes(last) : withoutChild(last), added.number()));
        left = left.subspan(count);
    }
    require(page.assign(left), page.page().number(), sentence::noIndexPage);
    std::vector<Buffer> parent = read(path_[level - 1].page).all();
    parent.insert(parent.begin() + path_[level - 1].slot, above.begin(), above.end());
    assign(level - 1, parent);
}

// --- removing

bool IndexTree::remove(Bytes key, Place place) {
    const Buffer entry = withPlace(key, place);
    std::uint32_t at = 0;
    bool wasLast = false, empty = false;
    {
        const IndexPage leaf = descend(entry);
        at = leaf.find(entry);
        if (at == leaf.entries() || !leaf.equals(at, entry)) return false;
        wasLast = at + 1 == leaf.entries();
        empty = leaf.entries() == 1;
    }
    write(leaf_).erase(at);
    if (path_.empty()) return true;
    if (empty) {
        near_ = 0;
        path_.push_back({leaf_, 0});
        removeChild(path_.size() - 1);
    } else if (wasLast) {
        shrink(lastKey(leaf_));
    }
    return true;
}

// The last entry below is this one now: the pages that tell it tell the right one.
void IndexTree::shrink(Bytes keyAndPlace) {
    for (std::size_t level = path_.size(); level > 0; --level) {
        const Step& step = path_[level - 1];
        const IndexPage page = read(step.page);
        const bool isTail = step.slot == page.entries();
        const bool isLast = isTail || (step.slot + 1 == page.entries() && page.tail() == 0);
        if (!isTail) replaceKey(step, keyAndPlace);
        if (!isLast) return;
    }
}

Buffer IndexTree::lastKey(std::uint32_t number) {
    Buffer key;
    for (std::size_t depth = 0;; ++depth) {
        const IndexPage page = read(number);
        require(depth < deepest && (page.entries() > 0 || (!page.isLeaf() && page.tail() != 0)), number,
                sentence::noIndexPage);
        if (page.isLeaf()) {
            page.appendKey(key, page.entries() - 1);
            return key;
        }
        number = page.tail() != 0 ? page.tail() : page.child(page.entries() - 1);
    }
}

// The page has no entries any more.
void IndexTree::removeChild(std::size_t level) {
    const std::uint32_t number = path_[level].page;
    if (level == 0) return IndexPage::make(pages_->write(root_), table_, true);
    {
        const IndexPage gone = read(number);
        if (gone.previous() != 0) write(gone.previous()).setNext(gone.next());
        if (gone.next() != 0) write(gone.next()).setPrevious(gone.previous());
    }
    UsageMap(*pages_, own_).remove(number);
    space_->release(number);
    path_.resize(level);
    const Step step = path_.back();
    IndexPage parent = write(step.page);
    const bool wasTail = step.slot == parent.entries();
    const bool wasLast = wasTail || (parent.tail() == 0 && step.slot + 1 == parent.entries());
    if (wasTail) parent.setTail(0);
    else parent.erase(step.slot);
    if (parent.entries() == 0 && parent.tail() == 0) return removeChild(level - 1);
    if (parent.entries() == 0) {  // the only child has an entry
        const std::uint32_t child = parent.tail();
        parent.setTail(0);
        const Buffer entry = withChild(lastKey(child), child);
        require(parent.insert(0, entry), step.page, sentence::noIndexPage);
    } else if (parent.tail() == 0 && parent.entries() > 1) {
        parent.setTail(parent.child(parent.entries() - 1));
        parent.erase(parent.entries() - 1);
    }
    path_.pop_back();
    if (wasLast && !path_.empty()) shrink(lastKey(step.page));
}

// --- looking after it

std::uint64_t IndexTree::check(const Report& report) {
    std::uint64_t entries = 0;
    Buffer last;
    try {
        checkPage(root_, 0, last, report, entries);
    } catch (const Damaged& damage) {
        report(root_,
               {damage.description(automation::Language::english), damage.description(automation::Language::german)});
    }
    return entries;
}

void IndexTree::checkPage(std::uint32_t number, int depth, Buffer& last, const Report& report, std::uint64_t& entries) {
    require(depth < static_cast<int>(deepest), number, sentence::noIndexPage);
    const IndexPage page = read(number);
    if (!UsageMap(*pages_, own_).contains(number)) report(number, sentence::notOwned);
    for (std::uint32_t i = 0; i < page.entries(); ++i) {
        Buffer key;
        if (!page.isLeaf()) checkPage(page.child(i), depth + 1, last, report, entries);
        page.appendKey(key, i);
        if (page.isLeaf()) {
            if (!last.empty() && !std::ranges::lexicographical_compare(last, key)) report(number, sentence::wrongOrder);
            last = std::move(key);
            require(++entries <= std::uint64_t{pages_->count()} * IndexPage::room, number, sentence::noIndexPage);
        } else if (std::ranges::lexicographical_compare(key, last)) {
            report(number, sentence::wrongOrder);
        }
    }
    if (!page.isLeaf() && page.tail() != 0) checkPage(page.tail(), depth + 1, last, report, entries);
}

}  // namespace hx::jet
