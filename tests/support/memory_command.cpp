// SPDX-License-Identifier: MIT
#include "support/memory_command.h"

#include <algorithm>

#include "ado/types.h"
#include "automation/error.h"
#include "automation/text.h"

namespace hx::support {

using automation::equalIgnoreCase;
using automation::trim;

namespace {

// Takes the command apart at its keywords; quoted text hides them.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text), rest_(trim(text)) {}

    bool takeWord(std::string_view word) {
        const std::string_view next = rest_.substr(0, rest_.find_first_of(" \t\r\n"));
        if (!equalIgnoreCase(next, word)) return false;
        rest_ = trim(rest_.substr(next.size()));
        return true;
    }
    void require(std::string_view word) {
        if (!takeWord(word)) fail();
    }
    // Everything up to the keyword, which stays.
    std::string_view upTo(std::string_view keyword) {
        char quote = 0;
        for (std::size_t i = 0; i < rest_.size(); ++i) {
            if (quote != 0) {
                if (rest_[i] == quote) quote = 0;
            } else if (rest_[i] == '\'' || rest_[i] == '"') {
                quote = rest_[i];
            } else if ((i == 0 || rest_[i - 1] == ' ') && startsWithWord(rest_.substr(i), keyword)) {
                return take(i);
            }
        }
        return take(rest_.size());
    }
    // One word, or all between brackets.
    std::string_view takeName() {
        const bool bracketed = rest_.starts_with('[');
        const auto end = bracketed ? rest_.find(']') : rest_.find_first_of(" \t\r\n");
        if (bracketed && end == std::string_view::npos) fail();
        return take(bracketed ? end + 1 : std::min(end, rest_.size()));
    }
    bool done() const { return rest_.empty(); }
    [[noreturn]] void fail() const {
        throw automation::Error(ado::dbErrBadCommand, "The command \"" + std::string(text_) + "\" cannot be read.");
    }

  private:
    static bool startsWithWord(std::string_view text, std::string_view word) {
        return equalIgnoreCase(text.substr(0, word.size()), word) &&
               (text.size() == word.size() || text[word.size()] == ' ');
    }
    std::string_view take(std::size_t count) {
        const std::string_view taken = trim(rest_.substr(0, count));
        rest_ = trim(rest_.substr(count));
        return taken;
    }

    std::string_view text_;
    std::string_view rest_;
};

std::string plainName(std::string_view name) {
    name = trim(name);
    if (name.size() >= 2 && name.front() == '[' && name.back() == ']') name = name.substr(1, name.size() - 2);
    return std::string(name);
}

std::pair<std::string, bool> orderTerm(std::string_view term) {
    term = trim(term);
    const auto blank = term.rfind(' ');
    if (blank == std::string_view::npos) return {plainName(term), false};
    return {plainName(term.substr(0, blank)), equalIgnoreCase(term.substr(blank + 1), "DESC")};
}

void readTail(Reader& reader, MemoryCommand& command) {
    command.table = plainName(reader.takeName());
    if (reader.takeWord("WHERE")) command.condition = reader.upTo("ORDER");
    if (reader.takeWord("ORDER")) {
        reader.require("BY");
        for (const std::string& term : automation::split(reader.upTo(";"), ',')) {
            command.order.push_back(orderTerm(term));
        }
    }
    if (command.table.empty() || !reader.done()) reader.fail();
}

}  // namespace

MemoryCommand MemoryCommand::parse(std::string_view text) {
    Reader reader(text);
    MemoryCommand command;
    command.deletes = reader.takeWord("DELETE");
    if (!command.deletes) reader.require("SELECT");
    const std::string_view columns = reader.upTo("FROM");
    if (!command.deletes && columns.empty()) reader.fail();
    if (!columns.empty() && columns != "*") {
        for (const std::string& column : automation::split(columns, ',')) command.columns.push_back(plainName(column));
    }
    reader.require("FROM");
    readTail(reader, command);
    return command;
}

}  // namespace hx::support
