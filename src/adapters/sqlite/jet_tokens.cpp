// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_tokens.h"

#include <array>

#include "ado/types.h"
#include "automation/text.h"

namespace hx::sqlite {

bool Token::is(std::string_view word) const { return kind == Kind::word && automation::equalIgnoreCase(text, word); }

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view command) : text_(command) {}

    std::vector<Token> all() {
        std::vector<Token> tokens;
        for (skipBlanks(); at_ < text_.size(); skipBlanks()) tokens.push_back(next());
        return tokens;
    }

  private:
    Token next() {
        const std::size_t start = at_;
        const char c = text_[at_];
        if (c == '\'' || c == '"') return {Token::Kind::text, quoted(c), start};
        if (c == '[') return {Token::Kind::bracketed, bracketed(), start};
        if (isDigit(c) || (c == '.' && at_ + 1 < text_.size() && isDigit(text_[at_ + 1]))) {
            return {Token::Kind::number, number(), start};
        }
        if (isWord(c)) return {Token::Kind::word, word(), start};
        return {Token::Kind::symbol, symbol(), start};
    }

    std::string quoted(char quote) {
        const std::size_t start = at_;
        std::string content;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] != quote) {
                content += text_[at_];
            } else if (at_ + 1 < text_.size() && text_[at_ + 1] == quote) {
                content += text_[at_++];
            } else {
                ++at_;
                return content;
            }
        }
        fail(start, "the closing quote is missing");
    }

    std::string bracketed() {
        const auto close = text_.find(']', at_);
        if (close == std::string_view::npos) fail(at_, "\"]\" is missing");
        const std::string name(text_.substr(at_ + 1, close - at_ - 1));
        if (name.empty()) fail(at_, "a name is missing");
        at_ = close + 1;
        return name;
    }

    std::string number() {
        const std::size_t start = at_;
        while (at_ < text_.size() && (isWord(text_[at_]) || text_[at_] == '.' || isExponentSign())) ++at_;
        return std::string(text_.substr(start, at_ - start));
    }

    bool isExponentSign() const {
        const char before = text_[at_ - 1];
        return (text_[at_] == '-' || text_[at_] == '+') && (before == 'e' || before == 'E');
    }

    std::string word() {
        const std::size_t start = at_;
        while (at_ < text_.size() && isWord(text_[at_])) ++at_;
        return std::string(text_.substr(start, at_ - start));
    }

    std::string symbol() {
        static constexpr std::array<std::string_view, 3> pairs = {"<>", "<=", ">="};
        static constexpr std::string_view singles = "=<>+-*/&(),.;";
        for (const std::string_view pair : pairs) {
            if (!text_.substr(at_).starts_with(pair)) continue;
            at_ += pair.size();
            return std::string(pair);
        }
        if (singles.find(text_[at_]) == std::string_view::npos) {
            fail(at_, std::string("unexpected \"") + text_[at_] + "\"");
        }
        return {text_[at_++]};
    }

    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    }

    [[noreturn]] void fail(std::size_t position, const std::string& problem) const {
        const std::size_t character = automation::characterCount(text_.substr(0, position)) + 1;
        throw automation::Error(ado::dbErrBadCommand, "Command \"" + std::string(text_) + "\", character " +
                                                          std::to_string(character) + ": " + problem + ".");
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

std::vector<Token> tokenize(std::string_view command) { return Tokenizer(command).all(); }

}  // namespace hx::sqlite
