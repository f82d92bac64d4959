// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "settings/init_items.h"

namespace hx::settings {

/// Walks over the entries that a collection had when it was made.
class ItemEnumerator : public automation::Dispatch {
  public:
    explicit ItemEnumerator(std::vector<std::shared_ptr<CInitItem>> items) : items_(std::move(items)) {}
    [[nodiscard]] automation::ObjectRef Next();  ///< empty behind the last one
    void Reset() noexcept { next_ = 0; }
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<std::shared_ptr<CInitItem>> items_;
    std::size_t next_ = 0;
};

}  // namespace hx::settings
