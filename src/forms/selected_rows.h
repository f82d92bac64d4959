// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ado/bookmark.h"
#include "ado/key_marks.h"
#include "automation/dispatch.h"
#include "forms/event.h"

namespace hx::forms {

/// The bookmarks of the selected rows, in the order of selection, each once.
class SelectedRows : public automation::Dispatch {
  public:
    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(bookmarks_.size()); }
    [[nodiscard]] const std::vector<ado::Bookmark>& bookmarks() const noexcept { return bookmarks_; }
    [[nodiscard]] bool contains(const ado::Bookmark& bookmark) const;
    void add(const ado::Bookmark& bookmark);  ///< a null bookmark is ignored
    void remove(const ado::Bookmark& bookmark);
    using automation::Dispatch::set;
    void set(std::vector<ado::Bookmark> bookmarks);
    void clear();
    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<ado::Bookmark> bookmarks_;
    ado::KeyMarks keys_;
};

}  // namespace hx::forms
