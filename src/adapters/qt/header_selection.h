// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTableView>

namespace hx::qt {

/// Lets a table's column headers know no selection: to paint one they would ask whether each row of the column is
/// selected. After the table's own selection has been set.
inline void ignoreSelection(QTableView& table) {
    QHeaderView& header = *table.horizontalHeader();
    header.setSelectionModel(new QItemSelectionModel(table.model(), &header));
}

}  // namespace hx::qt
