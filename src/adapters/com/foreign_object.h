// SPDX-License-Identifier: MIT
#pragma once

#include <oaidl.h>
#include <string>
#include <unordered_map>

#include "adapters/com/border.h"
#include "automation/dispatch.h"

namespace hx::com {

/// An object of somebody else's, reached by name as a client without type information does it. Used in the thread that
/// it came in. Its failures are automation::Error with the object's own number and description.
class ForeignObject : public automation::Dispatch {
  public:
    ForeignObject(IDispatch* object, Border& border);

    [[nodiscard]] const Pointer<IDispatch>& reference() const noexcept { return object_; }

    /// Nobody knows its members before they are asked for.
    [[nodiscard]] const automation::MemberTable& members() const override;
    automation::Variant get(std::string_view name, automation::Args args = {}) override;
    void set(std::string_view name, const automation::Variant& value, automation::Args index = {}) override;
    /// Reads what is known to be a property: some objects take get() for a call.
    [[nodiscard]] automation::Variant read(std::string_view name);

  private:
    [[nodiscard]] DISPID idOf(std::string_view name);

    Pointer<IDispatch> object_;
    Border& border_;
    Lifetime::Counted counted_;
    std::unordered_map<std::string, DISPID> ids_;
};

}  // namespace hx::com
