// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace hx::automation {

/// The languages in which the user is spoken to.
enum class Language : std::uint8_t { english, german };

/// Windows locale identifiers of the two languages.
inline constexpr std::int32_t germanLcid = 1031, englishLcid = 1033;

/// The language of a Windows locale identifier: 1033 is English, all else German.
[[nodiscard]] constexpr Language languageOf(std::int32_t lcid) noexcept {
    return lcid == englishLcid ? Language::english : Language::german;
}

/// What the user is told; "%1", "%2", ... stand for the names and numbers in it.
struct Sentence {
    std::string_view english, german;
};

[[nodiscard]] std::string say(Language language, const Sentence& sentence,
                              std::initializer_list<std::string_view> names = {});

}  // namespace hx::automation
