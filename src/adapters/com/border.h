// SPDX-License-Identifier: MIT
#pragma once

#include <oaidl.h>
#include <unordered_map>

#include "adapters/com/lifetime.h"
#include "adapters/com/pointer.h"
#include "automation/dispatch.h"

namespace hx::com {

/// Where values and objects change sides. An object that comes back is the one that it was. What COM cannot have, or
/// this program cannot, throws automation::Error. It outlives all objects that have crossed, and belongs to
/// one thread.
class Border {
  public:
    [[nodiscard]] Lifetime& lifetime() noexcept { return lifetime_; }
    [[nodiscard]] const Lifetime& lifetime() const noexcept { return lifetime_; }

    /// Ours for COM, the same one as long as somebody there holds it; null for an empty reference.
    [[nodiscard]] Pointer<IDispatch> give(const automation::ObjectRef& object);
    /// `to` holds nothing yet, and is the caller's to clear.
    void give(const automation::Variant& value, VARIANT& to);

    /// COM's for us; empty for null.
    [[nodiscard]] automation::ObjectRef take(IDispatch* object);
    /// Numbers become the narrowest kind that holds them, currencies, dates and decimals doubles, arrays Array objects;
    /// an argument that is left out is empty. What lies behind a reference is taken.
    [[nodiscard]] automation::Variant take(const VARIANT& value);

    /// What stands for one of ours says so while it lives.
    void enter(IDispatch* object, const automation::ObjectRef& ours);
    void leave(IDispatch* object) noexcept;
    /// One of ours stands for one of theirs, which is given in its place; until it is forgotten.
    void equate(const automation::ObjectRef& ours, const Pointer<IDispatch>& theirs);
    void forget(const automation::ObjectRef& ours) noexcept;

  private:
    // Another program in the same process has objects of the same make, which are not ours.
    std::unordered_map<IDispatch*, automation::ObjectRef> ours_;
    std::unordered_map<const automation::Dispatch*, IDispatch*> given_;  ///< the last one that stands for it
    std::unordered_map<const automation::Dispatch*, Pointer<IDispatch>> equals_;
    Lifetime lifetime_;
};

}  // namespace hx::com
