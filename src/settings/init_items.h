// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/dispatch.h"
#include "automation/variant.h"

namespace hx::settings {

class CInitItems;

/// One entry of the settings: a value, or the parent of further entries.
class CInitItem : public automation::Dispatch {
  public:
    CInitItem(std::string name, automation::Variant value, std::int16_t index);
    ~CInitItem() override;
    std::string Name;
    automation::Variant val;  ///< no object
    std::int16_t Index;
    std::shared_ptr<CInitItems> itms;  ///< never null
    [[nodiscard]] const automation::MemberTable& members() const override;
};

/// Entries in the order in which they were added, found by name ignoring case.
class CInitItems : public automation::Dispatch {
  public:
    ~CInitItems() override;
    /// An existing entry of that name gets the value and is returned.
    CInitItem& Add(const std::string& name, const automation::Variant& value, std::int16_t index);
    /// By name or 1-based position; a missing one throws errBadIndex.
    void Delete(const automation::Variant& key);
    /// Null when there is none.
    [[nodiscard]] CInitItem* Item(const automation::Variant& key) const;
    [[nodiscard]] CInitItem* Item(std::string_view name) const;
    [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }
    void Clear();
    // Enumeration in insertion order.
    [[nodiscard]] auto begin() const noexcept { return items_.begin(); }
    [[nodiscard]] auto end() const noexcept { return items_.end(); }
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    enum class Taken { all, ofNobodyElse };
    void takeApart(Taken taken);

    std::vector<std::shared_ptr<CInitItem>> items_;
};

/// Calls `use(path, entry)` for the entry of a path when it has none below, else for each such entry below it, depth
/// first. Entries may lie as deep as a path is long.
void visitLeaves(std::string path, CInitItem& entry,
                 const std::function<void(const std::string& path, CInitItem& leaf)>& use);

/// A value that an entry can hold: an object throws errTypeMismatch.
[[nodiscard]] const automation::Variant& plain(const automation::Variant& value);

}  // namespace hx::settings
