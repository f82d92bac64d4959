// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_sql.h"

#include <algorithm>
#include <array>

#include "ado/types.h"
#include "automation/convert.h"
#include "automation/text.h"

namespace hx::sqlite {

using automation::Error;
using automation::Variant;
using Kind = Token::Kind;

namespace {

[[noreturn]] void fail(const std::string& problem) { throw Error(ado::dbErrBadCommand, problem); }

bool isComma(const Token& token) { return token.isSymbol(","); }

/// Takes a SELECT apart as long as it is as plain as a TableSelect must be.
class SelectReader {
  public:
    explicit SelectReader(std::span<const Token> tokens) : tokens_(tokens) {}

    std::optional<TableSelect> read() {
        TableSelect select;
        if (!takeWord("SELECT") || !readColumns(select) || !takeWord("FROM") || !atName()) return std::nullopt;
        select.table = take().text;
        if (takeWord("WHERE") && !readCondition(select)) return std::nullopt;
        if (takeWord("ORDER") && !readOrder(select)) return std::nullopt;
        if (!atEnd()) return std::nullopt;
        return select;
    }

  private:
    bool readColumns(TableSelect& select) {
        if (atSymbol("*")) {
            take();
            return true;
        }
        while (atName() && !atWord("FROM")) {
            if (atWord("DISTINCT") || atWord("TOP")) return false;
            select.columns.push_back(take().text);
            if (!atSymbol(",")) return true;
            take();
        }
        return false;
    }

    bool readCondition(TableSelect& select) {
        static constexpr std::array<std::string_view, 4> beyond = {"GROUP", "HAVING", "UNION", "LIMIT"};
        int depth = 0;
        for (; !atEnd(); take()) {
            if (depth == 0 && atWord("ORDER")) break;
            if (std::ranges::any_of(beyond, [this](std::string_view word) { return atWord(word); })) return false;
            if (atSymbol("(")) ++depth;
            if (atSymbol(")")) --depth;
            select.condition.push_back(tokens_[at_]);
        }
        return !select.condition.empty();
    }

    bool readOrder(TableSelect& select) {
        if (!takeWord("BY")) return false;
        for (;;) {
            if (!atName()) return false;
            OrderTerm term{take().text, false};
            if (takeWord("DESC")) term.descending = true;
            else takeWord("ASC");
            select.order.push_back(std::move(term));
            if (atEnd()) return true;
            if (!isComma(take())) return false;
        }
    }

    bool atEnd() const { return at_ >= tokens_.size(); }
    bool atName() const { return !atEnd() && tokens_[at_].isName(); }
    bool atWord(std::string_view word) const { return !atEnd() && tokens_[at_].is(word); }
    bool atSymbol(std::string_view symbol) const { return !atEnd() && tokens_[at_].isSymbol(symbol); }
    const Token& take() { return tokens_[at_++]; }
    bool takeWord(std::string_view word) {
        if (!atWord(word)) return false;
        ++at_;
        return true;
    }

    std::span<const Token> tokens_;
    std::size_t at_ = 0;
};

std::string quotedText(std::string_view text) { return '\'' + automation::replaceAll(text, "'", "''") + '\''; }

Variant numberLiteral(const Token& token) {
    try {
        const double number = automation::wholeNumber(token.text);
        const bool whole = token.text.find_first_not_of("0123456789") == std::string::npos;
        constexpr double largest = 2147483647;
        return whole && number <= largest ? Variant(static_cast<std::int32_t>(number)) : Variant(number);
    } catch (const Error&) {
        fail("\"" + token.text + "\" is not a number.");
    }
}

/// Writes tokens as SQLite reads them.
class Writer {
  public:
    /// With `parameters` the literals are collected there. With `table` its columns are written as its values read in
    /// Jet SQL.
    Writer(const TableInfo* table, std::vector<Variant>* parameters) : table_(table), parameters_(parameters) {}

    void write(const Token& token) {
        if (!sql_.empty()) sql_ += ' ';
        sql_ += translated(token);
    }
    void useTable(const TableInfo* table) { table_ = table; }
    [[nodiscard]] std::string take() { return std::move(sql_); }

  private:
    std::string translated(const Token& token) {
        switch (token.kind) {
            case Kind::text: return literal(Variant(token.text), quotedText(token.text));
            case Kind::number: return literal(numberLiteral(token), token.text);
            case Kind::bracketed: return name(token.text, quotedName(token.text));
            case Kind::word: return word(token);
            case Kind::symbol: return token.text == "&" ? "||" : token.text;
        }
        return token.text;
    }

    std::string literal(Variant value, std::string text) {
        if (parameters_ == nullptr) return text;
        parameters_->push_back(std::move(value));
        return "?" + std::to_string(parameters_->size());
    }

    std::string word(const Token& token) {
        struct Word {
            std::string_view jet;
            const char* sqlite;
        };
        static constexpr std::array<Word, 5> words = {
            {{"True", "-1"}, {"False", "0"}, {"LIKE", "MATCH"}, {"Yes", "-1"}, {"No", "0"}}};
        if (table_ != nullptr && table_->column(token.text)) return name(token.text, token.text);
        for (const Word& known : words) {
            if (token.is(known.jet)) return known.sqlite;
        }
        return token.text;
    }

    std::string name(const std::string& wanted, std::string otherwise) const {
        const auto column = table_ == nullptr ? std::nullopt : table_->column(wanted);
        if (!column) return otherwise;
        const ado::Column& known = table_->columns[*column];
        const std::string written = quotedName(known.name);
        return known.type == ado::adBoolean ? "(-(" + written + " <> 0))" : written;
    }

    const TableInfo* table_;
    std::vector<Variant>* parameters_;
    std::string sql_;
};

std::vector<Token> withoutSemicolon(std::vector<Token> tokens) {
    while (!tokens.empty() && tokens.back().isSymbol(";")) tokens.pop_back();
    if (std::ranges::any_of(tokens, [](const Token& token) { return token.isSymbol(";"); })) {
        fail("Only one command can be carried out at a time.");
    }
    if (tokens.empty()) fail("Command text was not set.");
    return tokens;
}

// DELETE [*] FROM table ..., UPDATE table ...
std::string targetOf(const std::vector<Token>& tokens) {
    const std::size_t name = tokens[0].is("DELETE") ? 2 : 1;
    if (tokens[0].is("INSERT") || tokens.size() <= name || !tokens[name].isName()) return {};
    return tokens[name].text;
}

}  // namespace

JetCommand JetCommand::parse(std::string_view text) {
    JetCommand command;
    command.tokens = withoutSemicolon(tokenize(text));
    std::vector<Token>& tokens = command.tokens;
    const Token& first = tokens.front();
    if (first.is("SELECT")) {
        command.table = SelectReader(tokens).read();
        return command;
    }
    if (!first.is("DELETE") && !first.is("UPDATE") && !first.is("INSERT")) {
        fail("\"" + first.text + "\" is not a command; SELECT, DELETE, UPDATE or INSERT is.");
    }
    command.verb = Verb::change;
    if (first.is("DELETE") && tokens.size() > 1 && tokens[1].isSymbol("*")) tokens.erase(tokens.begin() + 1);
    command.target = targetOf(tokens);
    return command;
}

BoundSql translateCondition(std::span<const Token> tokens, const TableInfo& table) {
    BoundSql bound;
    Writer writer(&table, &bound.parameters);
    for (const Token& token : tokens) writer.write(token);
    bound.sql = writer.take();
    return bound;
}

std::string translateCommand(std::span<const Token> tokens, const TableInfo* target) {
    constexpr std::size_t behindTop = 3;
    const bool limited = tokens.size() > behindTop && tokens[1].is("TOP") && tokens[2].kind == Kind::number;
    Writer writer(nullptr, nullptr);
    writer.write(tokens.front());
    for (const Token& token : tokens.subspan(limited ? behindTop : 1)) {
        writer.write(token);
        // Before WHERE a column stands for itself (SET Enabled = ...), behind it for its value.
        if (token.is("WHERE")) writer.useTable(target);
    }
    return limited ? writer.take() + " LIMIT " + tokens[2].text : writer.take();
}

}  // namespace hx::sqlite
