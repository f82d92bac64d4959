// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "automation/sentence.h"

namespace hx::automation {

/// A failed call. `number` is the 32-bit code that an OLE Automation client sees in Err.Number:
/// an HRESULT of the source (0x8002xxxx automation, 0x800Axxxx ADO, 0x8004xxxx provider).
class Error : public std::exception {
  public:
    /// Described in one language alone, whichever the user's is.
    Error(std::int32_t number, std::string description) : number_(number), description_(std::move(description)) {}
    Error(std::int32_t number, std::string english, std::string german)
        : number_(number), description_(std::move(english)), german_(std::move(german)) {}
    Error(std::int32_t number, const Sentence& sentence, std::initializer_list<std::string_view> names = {})
        : Error(number, say(Language::english, sentence, names), say(Language::german, sentence, names)) {}
    /// The same failure under the number that another gives it.
    [[nodiscard]] Error withNumber(std::int32_t number) const { return {number, description_, german_}; }

    [[nodiscard]] std::int32_t number() const noexcept { return number_; }
    [[nodiscard]] const std::string& description(Language language = Language::english) const noexcept {
        return language == Language::german && !german_.empty() ? german_ : description_;
    }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

    /// "number: description" with the number in decimal: the text of every error message box.
    [[nodiscard]] std::string message(Language language) const {
        return std::to_string(number_) + ": " + description(language);
    }

  private:
    std::int32_t number_;
    std::string description_;
    std::string german_;  // empty: the description is all there is
};

/// For a catch handler: the exception that is being handled, whatever it is, as an error that the user can be told.
[[nodiscard]] Error caughtError();

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
inline constexpr std::int32_t errOutOfMemory = hresult(0x8007000E);

}  // namespace hx::automation
