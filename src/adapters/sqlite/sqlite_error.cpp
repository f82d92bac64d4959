// SPDX-License-Identifier: MIT
#include "adapters/sqlite/sqlite_error.h"

#include <array>
#include <sqlite3.h>

#include "adapters/sqlite/sentences.h"
#include "ado/types.h"

namespace hx::sqlite {

using automation::Error;
using automation::Language;
using automation::say;

namespace {

struct Cause {
    int code;
    const automation::Sentence* sentence;
};

// An extended code comes before the one that it belongs to.
constexpr auto causes = std::to_array<Cause>({
    {SQLITE_READONLY_DBMOVED, &sentence::moved},
    {SQLITE_READONLY_DIRECTORY, &sentence::folderWriteProtected},
    {SQLITE_BUSY, &sentence::locked},
    {SQLITE_LOCKED, &sentence::locked},
    {SQLITE_READONLY, &sentence::writeProtected},
    {SQLITE_FULL, &sentence::full},
    {SQLITE_IOERR, &sentence::broken},
    {SQLITE_CORRUPT, &sentence::damaged},
    {SQLITE_NOTADB, &sentence::noProject},
    {SQLITE_CANTOPEN, &sentence::notOpened},
    {SQLITE_PERM, &sentence::noPermission},
    {SQLITE_INTERRUPT, &sentence::ended},
    {SQLITE_TOOBIG, &sentence::tooLong},
    {SQLITE_NOMEM, &sentence::noMemory},
});

constexpr int primary(int code) { return code & 0xFF; }

// "UNIQUE constraint failed: Table.Column" names the column; so does NOT NULL. Of several columns the last one tells
// the rows of its group apart.
std::string_view columnIn(std::string_view message) {
    for (const std::string_view separator : {", ", ": "}) {
        const auto found = message.rfind(separator);
        if (found != std::string_view::npos) return message.substr(found + separator.size());
    }
    return message;
}

Error constraintError(std::string_view message, Language language) {
    const std::string_view column = columnIn(message);
    if (message.starts_with("UNIQUE")) return {ado::dbErrDuplicate, say(language, sentence::someValueExists, {column})};
    if (message.starts_with("NOT NULL")) return {ado::dbErrIntegrity, say(language, sentence::valueMissing, {column})};
    return {ado::dbErrIntegrity, say(language, sentence::ruleBroken, {message})};
}

Error commandError(std::string_view message, Language language) {
    constexpr std::string_view noTable = "no such table: ";
    constexpr std::string_view noColumn = "no such column: ";
    if (message.starts_with(noTable)) {
        return {ado::dbErrNoTable, say(language, sentence::noTable, {message.substr(noTable.size())})};
    }
    if (message.starts_with(noColumn)) {
        return {ado::dbErrBadCommand, say(language, sentence::noColumn, {message.substr(noColumn.size())})};
    }
    return {ado::dbErrBadCommand, say(language, sentence::notCarriedOut, {message})};
}

}  // namespace

bool isDamage(int code) noexcept { return primary(code) == SQLITE_CORRUPT; }

Error errorOf(int code, std::string_view message, const std::string& path, Language language) {
    for (const Cause& cause : causes) {
        if (cause.code == code || cause.code == primary(code)) {
            return {ado::dbErrUnspecified, say(language, *cause.sentence, {path})};
        }
    }
    if (primary(code) == SQLITE_CONSTRAINT) return constraintError(message, language);
    if (primary(code) == SQLITE_ERROR) return commandError(message, language);
    return {ado::dbErrUnspecified, say(language, sentence::unusable, {path, message})};
}

}  // namespace hx::sqlite
