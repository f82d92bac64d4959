#include "adapters/sqlite/sqlite_error.h"

#include <array>
#include <sqlite3.h>

#include "ado/types.h"

namespace hx::sqlite {

using automation::Error;

namespace {

struct Cause {
    int code;
    const char* before;  // the file's name stands between the two
    const char* after;
};

constexpr std::array<Cause, 10> causes = {{
    {SQLITE_BUSY, "The file '", "' is locked by another program."},
    {SQLITE_LOCKED, "The file '", "' is locked by another program."},
    {SQLITE_READONLY, "The file '", "' is write-protected."},
    {SQLITE_FULL, "The disk with the file '", "' is full."},
    {SQLITE_IOERR, "The disk does not read or write the file '", "' (input/output error)."},
    {SQLITE_CORRUPT, "The file '", "' is damaged."},
    {SQLITE_NOTADB, "The file '", "' is not a project file."},
    {SQLITE_CANTOPEN, "The file '", "' or its journal beside it cannot be opened."},
    {SQLITE_PERM, "No permission for the file '", "'."},
    {SQLITE_NOMEM, "Not enough memory for the file '", "'."},
}};

// "UNIQUE constraint failed: Table.Column" names the column; so does NOT NULL. Of several columns the last one tells
// the rows of its group apart.
std::string_view columnIn(std::string_view message) {
    for (const std::string_view separator : {", ", ": "}) {
        const auto found = message.rfind(separator);
        if (found != std::string_view::npos) return message.substr(found + separator.size());
    }
    return message;
}

Error constraintError(std::string_view message) {
    const std::string column(columnIn(message));
    if (message.starts_with("UNIQUE")) {
        return {ado::dbErrDuplicate, "The value exists already in column \"" + column + "\"."};
    }
    if (message.starts_with("NOT NULL")) {
        return {ado::dbErrIntegrity, "Column \"" + column + "\" needs a value."};
    }
    return {ado::dbErrIntegrity, "The row breaks a rule of its table (" + std::string(message) + ")."};
}

Error commandError(std::string_view message) {
    constexpr std::string_view noTable = "no such table: ";
    constexpr std::string_view noColumn = "no such column: ";
    if (message.starts_with(noTable)) {
        return {ado::dbErrNoTable, "There is no table \"" + std::string(message.substr(noTable.size())) + "\"."};
    }
    if (message.starts_with(noColumn)) {
        return {ado::dbErrBadCommand, "There is no column \"" + std::string(message.substr(noColumn.size())) + "\"."};
    }
    return {ado::dbErrBadCommand, "The command cannot be carried out: " + std::string(message) + "."};
}

}  // namespace

Error errorOf(int code, std::string_view message, const std::string& path) {
    const int primary = code & 0xFF;
    for (const Cause& cause : causes) {
        if (cause.code == primary) return {ado::dbErrUnspecified, cause.before + path + cause.after};
    }
    if (primary == SQLITE_CONSTRAINT) return constraintError(message);
    if (primary == SQLITE_ERROR) return commandError(message);
    return {ado::dbErrUnspecified, "The file '" + path + "' cannot be used: " + std::string(message) + "."};
}

}  // namespace hx::sqlite
