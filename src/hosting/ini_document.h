// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/error.h"
#include "host/system_services.h"

namespace hx::hosting {

/// The text of an INI file: sections in square brackets, a line "key=text" each, comments behind ";". Whatever it does
/// not understand it keeps: every line that is not assigned keeps its bytes and its line end.
///
/// Sections and keys compare ignoring case and the blanks around them. The text is all that stands behind the first
/// "=", blanks included. A section may stand several times; of two equal keys the first counts.
class IniDocument {
  public:
    IniDocument() = default;
    explicit IniDocument(std::string_view bytes);

    /// UTF-8; a text that is not is taken as Windows-1252.
    [[nodiscard]] std::optional<std::string> text(std::string_view section, std::string_view key) const;
    /// Adds section and key as needed: a key behind the last one of its section, a section at the end. Throws errFail
    /// for a section, key or text that would not be read again as it is, and for a file that is not made of bytes
    /// (UTF-16).
    void setText(std::string_view section, std::string_view key, std::string_view text);
    /// All that can be set. The error of the first that cannot.
    [[nodiscard]] std::optional<automation::Error> setTexts(std::string_view section,
                                                            std::span<const host::IniText> texts);

    [[nodiscard]] std::string bytes() const;
    /// The bytes of a UTF-16 file: none of its texts are found.
    [[nodiscard]] bool isUtf16() const noexcept { return utf16_; }

  private:
    struct Line {
        std::string text;
        std::string end;  ///< CR LF, LF, or nothing in the last line
    };
    struct Place {
        std::optional<std::size_t> line;    ///< of the key
        std::optional<std::size_t> behind;  ///< where a new key of the section goes
    };
    [[nodiscard]] Place find(std::string_view section, std::string_view key) const;
    void insert(std::size_t at, std::string text);
    [[nodiscard]] std::string lineEnd() const;

    std::string mark_;  ///< the byte order mark of UTF-8, if there is one
    std::vector<Line> lines_;
    bool utf16_ = false;
};

}  // namespace hx::hosting
