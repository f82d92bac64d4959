// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace hx::lists {

/// Converts bytes of an encoding to UTF-8, piece by piece.
class TextConverter {
  public:
    enum class Stop {
        AtTheEnd,
        WithinACharacter,  ///< that the next piece may complete
        AtNoText,          ///< bytes that stand for no character
    };
    struct Result {
        std::size_t taken = 0;  ///< bytes
        Stop stop = Stop::AtTheEnd;
    };

    /// None for an encoding that is unknown. A name is what iconv calls the encoding.
    [[nodiscard]] static std::unique_ptr<TextConverter> open(const std::string& encoding);
    virtual ~TextConverter() = default;

    /// Appends to `text` what the first bytes stand for. Throws std::system_error when the system fails.
    virtual Result convert(std::string_view bytes, std::string& text) = 0;
};

}  // namespace hx::lists
