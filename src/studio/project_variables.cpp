// SPDX-License-Identifier: MIT
#include "studio/project_variables.h"

#include "adapters/sqlite/project_check.h"

namespace hx::studio {

// Without a recordset, which would ask for each page of a list of which every row is wanted. The index of the names
// tells the order, and the rows are read as they lie there: much faster than each by way of the index.
qt::VariableList ProjectVariables::variables() const {
    qt::VariableList result;
    if (file_.empty()) return result;
    sqlite::ProjectDatabase database(file_, options_());
    database.execute("BEGIN");
    sqlite::Statement names(database, "SELECT hx_keys(rowid) FROM (SELECT rowid FROM ThxVariable ORDER BY Name)");
    const ado::RowKeys byName = database.collect(names).keys;
    ado::RowKeys byId = byName;
    byId.sort(false);
    result.reserve(byId.size());
    sqlite::Statement rows(database, "SELECT Name, Type, Comment FROM ThxVariable ORDER BY rowid");
    while (rows.step()) result.add(rows.textView(0), rows.textView(1), rows.textView(2));
    std::vector<std::uint32_t> order;
    order.reserve(byName.size());
    for (std::size_t row = 0; row < byName.size(); ++row) {
        order.push_back(static_cast<std::uint32_t>(byId.lowerBound(byName[row])));
    }
    result.arrange(std::move(order));
    return result;
}

}  // namespace hx::studio
