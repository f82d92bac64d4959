// SPDX-License-Identifier: MIT
#pragma once

#include <cctype>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "automation/convert.h"
#include "automation/dispatch.h"

namespace hx::support {

/// What the walker writes to a property in place of a value that it makes up itself, by the member's name.
using Samples = std::map<std::string, automation::Variant, std::less<>>;

/// The number of the error that an action ends in, 0 for none.
inline std::int32_t errorNumber(const std::function<void()>& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error.number();
    }
    return 0;
}

/// Holds every row of an object's member tables to what all tables promise:
///   - each row has a name that is found in any case, and one line of documentation;
///   - a property reads, as the type that the row states, and refuses arguments; an indexed one wants an argument;
///   - a property that can be written gives back what was written, and takes its first value back;
///   - a number or a truth value refuses text that is neither and objects, a text refuses objects: errTypeMismatch;
///   - whatever cannot be written is refused with errMemberNotFound.
/// The value written is the negation, the next number or a longer text, unless `samples` has one for the member.
class TableWalker {
  public:
    explicit TableWalker(automation::Dispatch& object, Samples samples = {})
        : object_(object), samples_(std::move(samples)) {}

    void walk() {
        std::set<const automation::Member*> seen;
        for (const auto* table = &object_.members(); table != nullptr; table = table->base) {
            SCOPED_TRACE(std::string(table->className));
            EXPECT_FALSE(table->className.empty());
            for (const automation::Member& row : table->rows) {
                const bool hidden = object_.members().find(row.name) != &row;
                if (hidden && table == &object_.members()) ADD_FAILURE() << row.name << " stands twice in the table";
                if (!hidden) walkRow(row);
            }
        }
        for (const auto& [name, value] : samples_) {
            EXPECT_NE(object_.members().find(name), nullptr) << "a sample for " << name << ", which is no member";
        }
    }

    /// How many rows have been walked.
    [[nodiscard]] int rows() const { return rows_; }

  private:
    using Variant = automation::Variant;
    using VarType = automation::VarType;

    void walkRow(const automation::Member& row) {
        ++rows_;
        name_ = std::string(row.name);
        SCOPED_TRACE(name_);
        expectFound(row);
        expectDocumented(row);
        if (row.kind == automation::MemberKind::property) walkProperty(row);
        if (row.kind == automation::MemberKind::indexed) {
            EXPECT_EQ(errorNumber([&] { (void)object_.get(name_); }), automation::errBadParamCount);
        }
        if (row.set == nullptr) {
            EXPECT_EQ(errorNumber([&] { object_.set(name_, Variant(std::int32_t{1})); }),
                      automation::errMemberNotFound);
        }
    }

    void expectFound(const automation::Member& row) {
        ASSERT_FALSE(name_.empty());
        std::string lower, upper;
        for (const char c : name_) {
            lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        EXPECT_EQ(object_.members().find(lower), &row);
        EXPECT_EQ(object_.members().find(upper), &row);
    }

    static void expectDocumented(const automation::Member& row) {
        EXPECT_GE(row.doc.size(), 5U) << "no line of documentation";
        EXPECT_EQ(row.doc.find('\n'), std::string_view::npos) << "more than one line of documentation";
    }

    void walkProperty(const automation::Member& row) {
        const Variant first = object_.get(name_);
        EXPECT_TRUE(row.type == VarType::empty || row.type == first.type()) << "reads as another type than it states";
        const std::vector<Variant> arguments(9);
        EXPECT_EQ(errorNumber([&] { (void)object_.get(name_, arguments); }), automation::errBadParamCount);
        if (row.set == nullptr) return;
        expectRoundTrip(first);
        expectTypesChecked(row.type, first);
    }

    void expectRoundTrip(const Variant& first) {
        const Variant other = plausible(first);
        object_.set(name_, other);
        EXPECT_EQ(automation::toText(object_.get(name_)), automation::toText(other));
        object_.set(name_, first);
        EXPECT_EQ(object_.get(name_), first);
    }

    [[nodiscard]] Variant plausible(const Variant& value) const {
        if (const auto sample = samples_.find(name_); sample != samples_.end()) return sample->second;
        switch (value.type()) {
            case VarType::boolean: return !value.asBoolean();
            case VarType::int16:
            case VarType::int32: return automation::toInt32(value) + 1;
            case VarType::real8: return value.asDouble() + 1;
            case VarType::string: return value.asString() + "x";
            default: return value;
        }
    }

    void expectTypesChecked(VarType type, const Variant& first) {
        const bool number = type == VarType::int16 || type == VarType::int32 || type == VarType::real8;
        const Variant object = object_.share();
        if (number || type == VarType::boolean) {
            EXPECT_EQ(errorNumber([&] { object_.set(name_, Variant("abc")); }), automation::errTypeMismatch);
        }
        if (number || type == VarType::boolean || type == VarType::string) {
            EXPECT_EQ(errorNumber([&] { object_.set(name_, object); }), automation::errTypeMismatch);
        }
        if (type == VarType::object) {
            EXPECT_EQ(errorNumber([&] { object_.set(name_, Variant(std::int32_t{1})); }), automation::errTypeMismatch);
        }
        EXPECT_EQ(object_.get(name_), first) << "a refused value has left something behind";
    }

    automation::Dispatch& object_;
    Samples samples_;
    std::string name_;
    int rows_ = 0;
};

/// Walks all tables of an object and says how many rows there were.
inline int walkTables(automation::Dispatch& object, Samples samples = {}) {
    TableWalker walker(object, std::move(samples));
    walker.walk();
    return walker.rows();
}

}  // namespace hx::support
