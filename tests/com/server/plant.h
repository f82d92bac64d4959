// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "automation/dispatch.h"

namespace hx::com {

/// What a Plant is made from, for a table with a base.
class Place : public automation::Dispatch {
  public:
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    void setName(const std::string& name) { name_ = name; }
    [[nodiscard]] static const automation::MemberTable& placeMembers();
    [[nodiscard]] const automation::MemberTable& members() const override { return placeMembers(); }

  private:
    std::string name_ = "Nord";
};

/// An object with all kinds of members, for tests.
class Plant : public Place {
  public:
    [[nodiscard]] automation::Variant value() const { return value_; }
    void setValue(const automation::Variant& value) { value_ = value; }
    [[nodiscard]] std::int32_t count() const noexcept { return 7; }
    [[nodiscard]] automation::Variant item(const automation::Variant& index) const;
    void setItem(const automation::Variant& index, const automation::Variant& value);

    /// What it is given.
    [[nodiscard]] automation::Variant echo(const automation::Variant& value) const { return value; }
    [[nodiscard]] std::string join(const std::string& first, const std::string& second,
                                   const std::string& third) const {
        return first + "," + second + "," + third;
    }
    /// Throws an error of this number that has a description in each language.
    void fail(std::int32_t number) const;
    void failStrangely() const;
    /// Calls a member of an object with an argument.
    automation::Variant call(const automation::ObjectRef& object, const std::string& name,
                             const automation::Variant& argument) const;
    void assign(const automation::ObjectRef& object, const std::string& name, const automation::Variant& value) const;
    /// The number and the description of the error that calling a member ends with.
    [[nodiscard]] std::string failureOf(const automation::ObjectRef& object, const std::string& name) const;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    automation::Variant value_;
    std::vector<automation::Variant> items_ = std::vector<automation::Variant>(3);
};

}  // namespace hx::com
