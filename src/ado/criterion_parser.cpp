// SPDX-License-Identifier: MIT
#include <array>
#include <utility>

#include "ado/criterion.h"
#include "ado/errors.h"
#include "automation/convert.h"
#include "automation/text.h"

namespace hx::ado {

using automation::equalIgnoreCase;
using automation::Variant;

namespace {

constexpr int maxNesting = 100;

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool isNumeric(DataType type) { return type == adSmallInt || type == adInteger || type == adDouble; }

class Parser {
  public:
    Parser(std::string_view text, std::span<const Column> columns) : text_(text), columns_(columns) {}

    Criterion find() {
        Criterion criterion = comparison();
        expectEnd(isJoin() ? "a search takes one comparison" : "unexpected text behind the value");
        return criterion;
    }

    std::optional<Criterion> filter() {
        if (atEnd()) return std::nullopt;
        Criterion criterion = any(0);
        expectEnd("unexpected text behind the value");
        return criterion;
    }

  private:
    Criterion any(int depth) { return joined(Criterion::Kind::any, "OR", depth); }
    Criterion all(int depth) { return joined(Criterion::Kind::all, "AND", depth); }

    Criterion joined(Criterion::Kind kind, std::string_view word, int depth) {
        const auto part = [&] { return kind == Criterion::Kind::any ? all(depth) : operand(depth); };
        Criterion first = part();
        if (!takeWord(word)) return first;
        Criterion criterion{.kind = kind, .parts = {std::move(first)}, .value = {}};
        do criterion.parts.push_back(part());
        while (takeWord(word));
        return criterion;
    }

    Criterion operand(int depth) {
        if (!take('(')) return comparison();
        if (depth >= maxNesting) fail("too many parentheses");
        Criterion inner = any(depth + 1);
        if (!take(')')) fail("\")\" is missing");
        return inner;
    }

    Criterion comparison() {
        Criterion criterion;
        criterion.column = column();
        criterion.relation = relation();
        criterion.value = value(columns_[criterion.column], criterion.relation);
        return criterion;
    }

    std::size_t column() {
        const std::string_view name = columnName();
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (equalIgnoreCase(columns_[i].name, name)) return i;
        }
        fail("there is no column \"" + std::string(name) + "\"");
    }

    std::string_view columnName() {
        if (take('[')) {
            const auto close = text_.find(']', at_);
            if (close == std::string_view::npos) fail("\"]\" is missing");
            const std::string_view name = text_.substr(at_, close - at_);
            at_ = close + 1;
            return name;
        }
        const std::string_view name = word();
        if (name.empty()) fail("a column name is missing");
        return name;
    }

    Relation relation() {
        static constexpr std::array<std::pair<std::string_view, Relation>, 6> signs = {
            {{"<>", Relation::notEqual},
             {"<=", Relation::lessOrEqual},
             {">=", Relation::greaterOrEqual},
             {"=", Relation::equal},
             {"<", Relation::less},
             {">", Relation::greater}}};
        skipBlanks();
        for (const auto& [sign, meaning] : signs) {
            if (!text_.substr(at_).starts_with(sign)) continue;
            at_ += sign.size();
            return meaning;
        }
        if (takeWord("LIKE")) return Relation::like;
        fail("an operator is missing");
    }

    Variant value(const Column& column, Relation relation) {
        skipBlanks();
        valueAt_ = at_;
        const Variant literal = this->literal();
        if (literal.isNull()) {
            if (relation != Relation::equal && relation != Relation::notEqual) failValue("Null compares by = and <>");
            return literal;
        }
        return asColumn(column, relation, literal);
    }

    Variant asColumn(const Column& column, Relation relation, const Variant& literal) {
        const bool text = !isNumeric(column.type) && column.type != adBoolean;
        if (text) return automation::toText(literal);
        if (relation == Relation::like) failValue("LIKE needs a text column");
        try {
            if (column.type == adBoolean) return automation::toBoolean(literal);
            return automation::toDouble(literal);
        } catch (const automation::Error&) {
            failValue("the value does not fit the column \"" + column.name + "\"");
        }
    }

    Variant literal() {
        if (at_ < text_.size() && text_[at_] == '\'') return quoted();
        if (at_ < text_.size() && (isDigit(text_[at_]) || isSign(text_[at_]))) return number();
        if (takeWord("True")) return true;
        if (takeWord("False")) return false;
        if (takeWord("Null")) return automation::Null{};
        fail("a value is missing; a text stands in single quotes");
    }

    static bool isSign(char c) { return c == '-' || c == '+' || c == '.'; }

    Variant quoted() {
        std::string content;
        for (++at_;; ++at_) {
            if (at_ >= text_.size()) {
                at_ = valueAt_;
                fail("the closing quote is missing");
            }
            if (text_[at_] != '\'') {
                content += text_[at_];
            } else if (text_.substr(at_).starts_with("''")) {
                content += text_[at_++];
            } else {
                break;
            }
        }
        ++at_;
        return content;
    }

    Variant number() {
        const std::size_t start = at_;
        while (at_ < text_.size() && continuesNumber(start)) ++at_;
        try {
            return automation::wholeNumber(text_.substr(start, at_ - start));
        } catch (const automation::Error&) {
            failValue("\"" + std::string(text_.substr(start, at_ - start)) + "\" is not a number");
        }
    }

    bool continuesNumber(std::size_t start) const {
        const char c = text_[at_];
        if (c == '-' || c == '+') return at_ == start || text_[at_ - 1] == 'e' || text_[at_ - 1] == 'E';
        return isWord(c) || c == '.';
    }

    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    }
    bool atEnd() {
        skipBlanks();
        return at_ >= text_.size();
    }
    bool take(char c) {
        if (atEnd() || text_[at_] != c) return false;
        ++at_;
        return true;
    }
    std::string_view word() {
        skipBlanks();
        const std::size_t start = at_;
        while (at_ < text_.size() && isWord(text_[at_])) ++at_;
        return text_.substr(start, at_ - start);
    }
    bool takeWord(std::string_view expected) {
        const std::size_t before = at_;
        if (equalIgnoreCase(word(), expected)) return true;
        at_ = before;
        return false;
    }
    bool isJoin() {
        const std::size_t before = at_;
        const bool join = takeWord("AND") || takeWord("OR");
        at_ = before;
        return join;
    }
    void expectEnd(std::string_view problem) {
        if (!atEnd()) fail(std::string(problem));
    }

    [[noreturn]] void failValue(const std::string& problem) {
        at_ = valueAt_;
        fail(problem);
    }
    [[noreturn]] void fail(const std::string& problem) const {
        const std::size_t character = automation::characterCount(text_.substr(0, at_)) + 1;
        throwInvalidArgument("Criterion \"" + std::string(text_) + "\", character " + std::to_string(character) + ": " +
                             problem + ".");
    }

    std::string_view text_;
    std::span<const Column> columns_;
    std::size_t at_ = 0;
    std::size_t valueAt_ = 0;
};

}  // namespace

Criterion parseFind(std::string_view text, std::span<const Column> columns) { return Parser(text, columns).find(); }

std::optional<Criterion> parseFilter(std::string_view text, std::span<const Column> columns) {
    return Parser(text, columns).filter();
}

}  // namespace hx::ado
