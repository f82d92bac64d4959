#include "ado/provider.h"

namespace hx::ado {

void Rowset::insertAll(std::span<const std::size_t> columns, RowSource& rows) {
    std::vector<automation::Variant> row(columns.size());
    std::vector<ColumnValue> values(columns.size());
    while (rows.next(row)) {
        for (std::size_t i = 0; i < columns.size(); ++i) values[i] = {columns[i], std::move(row[i])};
        (void)insert(values);
    }
}

}  // namespace hx::ado
