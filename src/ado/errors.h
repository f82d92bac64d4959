#pragma once

#include <string>

#include "ado/types.h"

/// ADO's own errors with ADO's texts.
namespace hx::ado {

[[noreturn]] inline void throwObjectClosed() {
    throw automation::Error(adErrObjectClosed, "Operation is not allowed when the object is closed.");
}

[[noreturn]] inline void throwObjectOpen() {
    throw automation::Error(adErrObjectOpen, "Operation is not allowed when the object is open.");
}

[[noreturn]] inline void throwNoCurrentRecord() {
    throw automation::Error(adErrNoCurrentRecord,
                            "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                            "requires a current record.");
}

[[noreturn]] inline void throwIllegalOperation() {
    throw automation::Error(adErrIllegalOperation, "Operation is not allowed in this context.");
}

[[noreturn]] inline void throwInvalidConnection() {
    throw automation::Error(adErrInvalidConnection,
                            "The connection cannot be used to perform this operation. It is either closed or invalid "
                            "in this context.");
}

[[noreturn]] inline void throwItemNotFound() {
    throw automation::Error(adErrItemNotFound,
                            "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

[[noreturn]] inline void throwDeletedRow() { throw automation::Error(dbErrDeletedRow, "The row has been deleted."); }

[[noreturn]] inline void throwRowChanged(const std::string& column) {
    throw automation::Error(dbErrRowChanged, "The row was changed by another: column \"" + column +
                                                 "\" does not hold any more what was read.");
}

[[noreturn]] inline void throwInvalidArgument(const std::string& what) {
    throw automation::Error(adErrInvalidArgument, what);
}

}  // namespace hx::ado
