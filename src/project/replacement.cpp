// SPDX-License-Identifier: MIT
#include "project/replacement.h"

#include <algorithm>
#include <array>
#include <memory>

#include "ado/row_edit.h"
#include "automation/text.h"
#include "project/sentences.h"

namespace hx::project {

using automation::Error;
using automation::Sentence;

namespace {

/// A reason in either language, with a number in it.
Error refusal(const Replacement& replacement, const Sentence& reason, std::size_t number = 0) {
    const std::string shown = std::to_string(number);
    const auto inWords = [&](automation::Language language) {
        return automation::say(language, sentence::notReplaced,
                               {replacement.before, replacement.after, automation::say(language, reason, {shown})});
    };
    return {automation::errFail, inWords(automation::Language::english), inWords(automation::Language::german)};
}

/// Writes texts into the tables of a session.
class Writer {
  public:
    explicit Writer(ado::Session& session) : session_(session) {}

    /// False when the text must not be there twice, and is.
    [[nodiscard]] bool write(const Replacement& replacement) {
        Open& open = opened(*replacement.column);
        check(replacement, open);
        try {
            const std::array after{ado::ColumnValue{open.number, replacement.after}};
            const std::array before{ado::ColumnValue{open.number, asStored(replacement, open)}};
            open.rows->update(replacement.row, after, before);
            return true;
        } catch (const Error& error) {
            if (error.number() == ado::dbErrDuplicate) return false;
            if (error.number() != ado::dbErrRowChanged && error.number() != ado::dbErrDeletedRow) throw;
            throw refusal(replacement, sentence::changedSince);
        }
    }

  private:
    struct Open {
        const SearchedColumn* column;
        std::shared_ptr<ado::Rowset> rows;
        std::size_t number;
    };

    Open& opened(const SearchedColumn& column) {
        const auto known = std::ranges::find(open_, &column, &Open::column);
        if (known != open_.end()) return *known;
        const auto sameTable =
            std::ranges::find(open_, column.table, [](const Open& open) { return open.column->table; });
        std::shared_ptr<ado::Rowset> rows =
            sameTable != open_.end() ? sameTable->rows : session_.open(nameOf(column.table), ado::adCmdTableDirect);
        const auto& columns = rows->columns();
        const auto found = std::ranges::find_if(
            columns, [&](const ado::Column& one) { return automation::equalIgnoreCase(one.name, column.name); });
        const auto number = static_cast<std::size_t>(found - columns.begin());
        return open_.emplace_back(Open{&column, std::move(rows), number});
    }

    // What is shown as nothing may be missing.
    static automation::Variant asStored(const Replacement& replacement, const Open& open) {
        automation::Variant before = replacement.before;
        if (!replacement.before.empty()) return before;
        open.rows->readStored({&replacement.row, 1}, [&](std::span<const ado::StoredValue> row) {
            if (row[open.number].kind == ado::StoredValue::Kind::null) before = automation::Null{};
        });
        return before;
    }

    static void check(const Replacement& replacement, const Open& open) {
        if (replacement.column->isName && automation::trim(replacement.after).empty())
            throw refusal(replacement, sentence::noName);
        const std::size_t longest = ado::longestText(open.rows->columns().at(open.number));
        if (longest > 0 && automation::characterCount(replacement.after) > longest)
            throw refusal(replacement, sentence::tooLong, longest);
    }

    ado::Session& session_;
    std::vector<Open> open_;
};

}  // namespace

// A name that is still another row's may be free once that row has got its own new one.
void replaceTexts(ado::Session& session, std::span<const Replacement> replacements) {
    session.beginTransaction();
    try {
        Writer writer(session);
        std::vector<const Replacement*> left;
        for (const Replacement& replacement : replacements) left.push_back(&replacement);
        while (!left.empty()) {
            const std::size_t before = left.size();
            std::erase_if(left, [&](const Replacement* replacement) { return writer.write(*replacement); });
            if (left.size() == before) throw refusal(*left.front(), sentence::taken);
        }
    } catch (...) {
        session.rollback();
        throw;
    }
    session.commit();
}

}  // namespace hx::project
