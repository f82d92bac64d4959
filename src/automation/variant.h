// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace hx::automation {

class Dispatch;

/// A counted reference to an object that is reached by name. May be empty.
using ObjectRef = std::shared_ptr<Dispatch>;

/// The kinds of value, numbered as OLE Automation's VARTYPE.
enum class VarType : std::uint16_t {
    empty = 0,
    null = 1,
    int16 = 2,
    int32 = 3,
    real8 = 5,
    string = 8,
    object = 9,
    boolean = 11
};

/// The database null: a value that is known to be missing. Differs from the empty Variant.
struct Null {
    friend bool operator==(Null, Null) noexcept { return true; }
};

/// One value of OLE Automation. Text is UTF-8. A boolean converts to the numbers -1 and 0.
class Variant {
  public:
    Variant() noexcept = default;
    // By assignment: when memory is short, the copy constructor of libstdc++ 12 destroys what it has not yet made.
    Variant(const Variant& other) : Variant() { value_ = other.value_; }
    Variant(Variant&&) noexcept = default;
    Variant& operator=(const Variant&) = default;
    Variant& operator=(Variant&&) noexcept = default;
    ~Variant() = default;
    Variant(Null) noexcept : value_(Null{}) {}
    Variant(bool value) noexcept : value_(value) {}
    Variant(std::int16_t value) noexcept : value_(value) {}
    Variant(std::int32_t value) noexcept : value_(value) {}
    Variant(double value) noexcept : value_(value) {}
    Variant(std::string value) noexcept : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    Variant(ObjectRef value) noexcept : value_(std::move(value)) {}

    [[nodiscard]] VarType type() const noexcept;
    [[nodiscard]] bool isEmpty() const noexcept { return type() == VarType::empty; }
    [[nodiscard]] bool isNull() const noexcept { return type() == VarType::null; }
    [[nodiscard]] bool isString() const noexcept { return type() == VarType::string; }
    [[nodiscard]] bool isObject() const noexcept { return type() == VarType::object; }
    /// True for the 16-bit and 32-bit integers and the double; a boolean is not a number here.
    [[nodiscard]] bool isNumber() const noexcept;

    // Typed views without conversion; each throws errTypeMismatch when the kind differs.
    [[nodiscard]] bool asBoolean() const;
    [[nodiscard]] std::int16_t asInt16() const;
    [[nodiscard]] std::int32_t asInt32() const;
    [[nodiscard]] double asDouble() const;
    [[nodiscard]] const std::string& asString() const;
    [[nodiscard]] const ObjectRef& asObject() const;

    /// Same kind and same value; text by bytes.
    friend bool operator==(const Variant&, const Variant&) = default;

  private:
    std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, std::string, ObjectRef> value_;
};

}  // namespace hx::automation
