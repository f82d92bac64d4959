// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "ado/types.h"

/// ADO's own errors with ADO's texts, and German ones.
namespace hx::ado {

[[noreturn]] inline void throwError(std::int32_t number, const automation::Sentence& sentence,
                                    std::initializer_list<std::string_view> names = {}) {
    throw automation::Error(number, sentence, names);
}

[[noreturn]] inline void throwObjectClosed() {
    throwError(adErrObjectClosed, {"Operation is not allowed when the object is closed.",
                                   "Der Vorgang ist bei einem geschlossenen Objekt nicht zugelassen."});
}

[[noreturn]] inline void throwObjectOpen() {
    throwError(adErrObjectOpen, {"Operation is not allowed when the object is open.",
                                 "Der Vorgang ist bei einem geöffneten Objekt nicht zugelassen."});
}

[[noreturn]] inline void throwNoCurrentRecord() {
    throwError(
        adErrNoCurrentRecord,
        {"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
         "current record.",
         "BOF oder EOF ist wahr, oder der aktuelle Datensatz wurde gelöscht. Der Vorgang braucht einen aktuellen "
         "Datensatz."});
}

[[noreturn]] inline void throwIllegalOperation() {
    throwError(adErrIllegalOperation, {"Operation is not allowed in this context.",
                                       "Der Vorgang ist in diesem Zusammenhang nicht zugelassen."});
}

[[noreturn]] inline void throwInvalidConnection() {
    throwError(adErrInvalidConnection,
               {"The connection cannot be used to perform this operation. It is either closed or invalid in this "
                "context.",
                "Die Verbindung kann für diesen Vorgang nicht benutzt werden. Sie ist geschlossen oder in diesem "
                "Zusammenhang ungültig."});
}

[[noreturn]] inline void throwItemNotFound() {
    throwError(adErrItemNotFound,
               {"Item cannot be found in the collection corresponding to the requested name or ordinal.",
                "In der Auflistung gibt es kein Element mit diesem Namen oder dieser Nummer."});
}

[[noreturn]] inline void throwDeletedRow() {
    throwError(dbErrDeletedRow, {"The row has been deleted.", "Die Zeile wurde gelöscht."});
}

[[noreturn]] inline void throwRowChanged(const std::string& column) {
    throwError(
        dbErrRowChanged,
        {"The row was changed by another: column \"%1\" does not hold any more what was read.",
         "Die Zeile wurde von jemand anderem geändert: Die Spalte \"%1\" enthält nicht mehr, was gelesen wurde."},
        {column});
}

[[noreturn]] inline void throwInvalidArgument(const std::string& what) {
    throw automation::Error(adErrInvalidArgument, what);
}

}  // namespace hx::ado
