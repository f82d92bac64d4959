#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace hx::automation {

/// A failed call. `number` is the 32-bit code that an OLE Automation client sees in Err.Number:
/// an HRESULT of the source (0x8002xxxx automation, 0x800Axxxx ADO, 0x8004xxxx provider).
class Error : public std::exception {
  public:
    Error(std::int32_t number, std::string description) : number_(number), description_(std::move(description)) {}

    [[nodiscard]] std::int32_t number() const noexcept { return number_; }
    [[nodiscard]] const std::string& description() const noexcept { return description_; }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

    /// "number: description" with the number in decimal: the text of every error message box.
    [[nodiscard]] std::string message() const { return std::to_string(number_) + ": " + description_; }

  private:
    std::int32_t number_;
    std::string description_;
};

/// An HRESULT as the signed number that Err.Number carries.
constexpr std::int32_t hresult(std::uint32_t code) noexcept { return static_cast<std::int32_t>(code); }

// The failures of late-bound access, with OLE Automation's codes.
inline constexpr std::int32_t errMemberNotFound = hresult(0x80020003);  ///< read-only, or no such kind of access
inline constexpr std::int32_t errTypeMismatch = hresult(0x80020005);
inline constexpr std::int32_t errUnknownName = hresult(0x80020006);
inline constexpr std::int32_t errOverflow = hresult(0x8002000A);
inline constexpr std::int32_t errBadIndex = hresult(0x8002000B);
inline constexpr std::int32_t errBadParamCount = hresult(0x8002000E);
inline constexpr std::int32_t errFail = hresult(0x80004005);

}  // namespace hx::automation
