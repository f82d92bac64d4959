// SPDX-License-Identifier: MIT
#include "addin/database_connection.h"

#include "addin/trap.h"

namespace hx::addin {

namespace {

std::string connectionString(const std::string& path) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;"
           "Data Source=" +
           path + ";Mode=Read|Write|Share Deny None;";
}

}  // namespace

void ConnectToDataBase(const host::Services& services, editor::frmtabgrid& window, const std::string& path, bool& ok) {
    ok = trap(services.screen, "ConnectToDataBase", [&] {
        if (!window.dataEnvironment()) {
            window.setDataEnvironment(std::make_shared<recipe::DataEnvironment>(services.database));
        }
        ado::Connection& connection = *window.dataEnvironment()->CnnRecipes;
        if (connection.state() == ado::adStateClosed) connection.open(connectionString(path));
    });
}

void disconnectFromDataBase(editor::frmtabgrid& window) {
    const std::shared_ptr<recipe::DataEnvironment> data = window.dataEnvironment();
    window.setDataEnvironment(nullptr);
    if (!data || data->CnnRecipes->state() == ado::adStateClosed) return;
    for (const auto& recordset : data->recordsets()) recipe::CloseRecordset(*recordset, window.saveFirst());
    data->CnnRecipes->close();
}

}  // namespace hx::addin
