// SPDX-License-Identifier: MIT
#include "forms/selected_rows.h"

#include <algorithm>

#include "automation/member_rows.h"

namespace hx::forms {

using ado::Bookmark;

bool SelectedRows::contains(const Bookmark& bookmark) const {
    return !bookmark.isNull() && keys_.contains(bookmark.key());
}

void SelectedRows::add(const Bookmark& bookmark) {
    if (bookmark.isNull() || !keys_.insert(bookmark.key())) return;
    bookmarks_.push_back(bookmark);
    changed.raise();
}

void SelectedRows::remove(const Bookmark& bookmark) {
    if (bookmark.isNull() || !keys_.erase(bookmark.key())) return;
    bookmarks_.erase(std::ranges::find(bookmarks_, bookmark));
    changed.raise();
}

void SelectedRows::set(std::vector<Bookmark> bookmarks) {
    ado::KeyMarks keys;
    std::erase_if(bookmarks,
                  [&](const Bookmark& bookmark) { return bookmark.isNull() || !keys.insert(bookmark.key()); });
    if (bookmarks == bookmarks_) return;
    bookmarks_ = std::move(bookmarks);
    keys_ = std::move(keys);
    changed.raise();
}

void SelectedRows::clear() {
    if (bookmarks_.empty()) return;
    bookmarks_.clear();
    keys_.clear();
    changed.raise();
}

namespace {

automation::Variant bookmarkOf(SelectedRows& rows, std::int32_t number) {
    if (number < 0 || number >= rows.count()) {
        automation::throwBadIndex("SelectedRows", automation::Variant(number));
    }
    return rows.bookmarks()[static_cast<std::size_t>(number)].toVariant();
}
void addRow(SelectedRows& rows, const automation::Variant& bookmark) { rows.add(Bookmark::fromVariant(bookmark)); }
void removeRow(SelectedRows& rows, const automation::Variant& bookmark) {
    rows.remove(Bookmark::fromVariant(bookmark));
}

}  // namespace

const automation::MemberTable& SelectedRows::members() const {
    using automation::method;
    static constexpr automation::Member rows[] = {
        automation::property<&SelectedRows::count>("Count", "The number of selected rows"),
        automation::indexed<&bookmarkOf>("Item", "The bookmark of a selected row, in the order of selection, from 0"),
        method<&addRow>("Add", "Selects the row of a bookmark"),
        method<&removeRow>("Remove", "Takes the row of a bookmark out of the selection"),
        method<&SelectedRows::clear>("Clear", "Selects nothing"),
    };
    static constexpr automation::MemberTable table{"SelectedRows", rows};
    return table;
}

}  // namespace hx::forms
