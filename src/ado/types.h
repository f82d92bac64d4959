// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "automation/error.h"

/// The enumerations of ADO that the editor and its providers share, with ADO's names and numbers.
namespace hx::ado {

enum ObjectState : std::int32_t { adStateClosed = 0, adStateOpen = 1 };
enum EditMode : std::int32_t { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2, adEditDelete = 4 };
enum DataType : std::int32_t {
    adEmpty = 0,
    adSmallInt = 2,
    adInteger = 3,
    adDouble = 5,
    adBoolean = 11,
    adVarWChar = 202,
    adLongVarWChar = 203
};
enum CursorType : std::int32_t { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockType : std::int32_t { adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3 };
enum CommandType : std::int32_t { adCmdUnknown = -1, adCmdText = 1, adCmdTable = 2, adCmdTableDirect = 512 };
enum SearchDirection : std::int32_t { adSearchForward = 1, adSearchBackward = -1 };
enum Affect : std::int32_t { adAffectCurrent = 1, adAffectAll = 3 };

using automation::hresult;

// ADO's own errors.
inline constexpr std::int32_t adErrInvalidArgument = hresult(0x800A0BB9);
inline constexpr std::int32_t adErrNoCurrentRecord = hresult(0x800A0BCD);
inline constexpr std::int32_t adErrIllegalOperation = hresult(0x800A0C93);
inline constexpr std::int32_t adErrInTransaction = hresult(0x800A0CAE);
inline constexpr std::int32_t adErrItemNotFound = hresult(0x800A0CC1);
inline constexpr std::int32_t adErrObjectClosed = hresult(0x800A0E78);
inline constexpr std::int32_t adErrObjectOpen = hresult(0x800A0E79);
inline constexpr std::int32_t adErrInvalidConnection = hresult(0x800A0E7D);

// Providers' errors.
inline constexpr std::int32_t dbErrDuplicate = hresult(0x80040E21);   ///< a value that must be unique exists already
inline constexpr std::int32_t dbErrDeletedRow = hresult(0x80040E23);  ///< the row was deleted by somebody else
/// OLE DB's DB_E_CONCURRENCYVIOLATION: the row does not hold any more what was read of it, so that an update under
/// optimistic locking would overwrite what another has stored. ADO passes it on as -2147217864.
inline constexpr std::int32_t dbErrRowChanged = hresult(0x80040E38);
inline constexpr std::int32_t dbErrBadCommand = hresult(0x80040E14);     ///< the command text has an error
inline constexpr std::int32_t dbErrNoTable = hresult(0x80040E37);        ///< no such table
inline constexpr std::int32_t dbErrCannotConvert = hresult(0x80040E07);  ///< the value does not fit the column's type
inline constexpr std::int32_t dbErrIntegrity = hresult(0x80040E2F);      ///< a rule of the table forbids the value
inline constexpr std::int32_t dbErrUnspecified =
    hresult(0x80004005);  ///< file missing, locked, full disk, no project ...

}  // namespace hx::ado
