// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "editor/frmtabgrid.h"
#include "host/services.h"

namespace hx::addin {

/// Opens the connection of the window's data environment (created when it has none) on the project file. A connection
/// that is open stays as it is, whatever its file. An error is shown and leaves `ok` false.
void ConnectToDataBase(const host::Services& services, editor::frmtabgrid& window, const std::string& path, bool& ok);

/// Closes the recordsets and the connection of the window's data environment and takes it from the window. A pending
/// edit is settled first.
void disconnectFromDataBase(editor::frmtabgrid& window);

}  // namespace hx::addin
