// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "automation/error.h"
#include "automation/variant.h"

namespace hx::automation {

using Args = std::span<const Variant>;

/// How a member may be used. An indexed property takes its index or key as arguments: Columns("VarRecipe").
enum class MemberKind { property, indexed, method };

/// One row of a class's member table.
struct Member {
    std::string_view name;
    MemberKind kind;
    VarType type;                                            ///< of the value; empty when it varies or there is none
    std::string_view doc;                                    ///< one line
    Variant (*get)(Dispatch&, Args);                         ///< reads the property, or runs the method
    void (*set)(Dispatch&, Args, const Variant&) = nullptr;  ///< null for methods and read-only properties
};

/// The members of a class: its own rows, then those of its base class. Built once, never changed.
struct MemberTable {
    std::string_view className;
    std::span<const Member> rows;
    const MemberTable* base = nullptr;

    /// Ignores case; own rows hide those of the base. Null when there is none.
    [[nodiscard]] const Member* find(std::string_view name) const noexcept;
};

/// An object whose members are read, assigned and called by name at run time.
/// Failures are Errors: errUnknownName (no such member), errMemberNotFound (read-only, or a method assigned),
/// errTypeMismatch, errOverflow, errBadIndex (no such item), errBadParamCount.
class Dispatch : public std::enable_shared_from_this<Dispatch> {
  public:
    Dispatch() = default;
    Dispatch(const Dispatch&) = delete;
    Dispatch& operator=(const Dispatch&) = delete;
    virtual ~Dispatch() = default;

    [[nodiscard]] virtual const MemberTable& members() const = 0;
    [[nodiscard]] std::string_view className() const { return members().className; }

    /// Reads a property, or runs a method, as an Automation client without type information does.
    virtual Variant get(std::string_view name, Args args = {});
    virtual void set(std::string_view name, const Variant& value, Args index = {});

    /// A reference that keeps this object alive when it is owned by references, else one that only lends it.
    [[nodiscard]] ObjectRef share();
    /// A reference to a part held by value in this object; it keeps this object alive.
    [[nodiscard]] ObjectRef sharePart(Dispatch& part);
};

[[noreturn]] void throwBadIndex(std::string_view collection, const Variant& index);

}  // namespace hx::automation
