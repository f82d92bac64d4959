// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace hx::sqlite {

/// A part of a command in Jet SQL.
struct Token {
    enum class Kind { word, bracketed, text, number, symbol };

    Kind kind;
    std::string text;      ///< of a bracketed name and of a text: what is inside, with doubled quotes as one
    std::size_t position;  ///< in the command, in bytes

    /// A word that equals, ignoring case.
    [[nodiscard]] bool is(std::string_view word) const;
    [[nodiscard]] bool isSymbol(std::string_view symbol) const { return kind == Kind::symbol && text == symbol; }
    [[nodiscard]] bool isName() const { return kind == Kind::word || kind == Kind::bracketed; }
};

/// Texts stand in '...' or "...", a doubled quote is one; names may stand in [...]. Throws dbErrBadCommand with what
/// is wrong and where.
[[nodiscard]] std::vector<Token> tokenize(std::string_view command);

}  // namespace hx::sqlite
