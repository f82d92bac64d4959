#include "ado/provider.h"

#include <cmath>

namespace hx::ado {

bool sameValue(const automation::Variant& stored, const automation::Variant& read) {
    const auto notANumber = [](const automation::Variant& value) {
        return value.type() == automation::VarType::real8 && std::isnan(value.asDouble());
    };
    return stored == read || (notANumber(stored) && notANumber(read));
}

void Rowset::insertAll(std::span<const std::size_t> columns, RowSource& rows) {
    std::vector<automation::Variant> row(columns.size());
    std::vector<ColumnValue> values(columns.size());
    while (rows.next(row)) {
        for (std::size_t i = 0; i < columns.size(); ++i) values[i] = {columns[i], std::move(row[i])};
        (void)insert(values);
    }
}

}  // namespace hx::ado
