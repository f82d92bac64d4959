// SPDX-License-Identifier: MIT
#include "ado/field.h"

#include "ado/errors.h"
#include "ado/recordset.h"
#include "automation/member_rows.h"

namespace hx::ado {

namespace {

const Column& columnOf(const Recordset& recordset, std::size_t column) {
    const auto& columns = recordset.columns();
    if (column >= columns.size()) throwItemNotFound();
    return columns[column];
}

}  // namespace

const std::string& Field::name() const { return columnOf(recordset_, column_).name; }
DataType Field::type() const { return columnOf(recordset_, column_).type; }
std::int32_t Field::definedSize() const { return columnOf(recordset_, column_).definedSize; }

automation::Variant Field::value() const {
    columnOf(recordset_, column_);
    return recordset_.currentValue(column_);
}

void Field::setValue(const automation::Variant& value) {
    columnOf(recordset_, column_);
    recordset_.setCurrentValue(column_, value);
}

automation::Variant Field::originalValue() const {
    columnOf(recordset_, column_);
    return recordset_.originalValue(column_);
}

automation::Variant Field::underlyingValue() const {
    columnOf(recordset_, column_);
    return recordset_.underlyingValue(column_);
}

const automation::MemberTable& Field::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Field::name>("Name", "The column's name"),
        property<&Field::type>("Type", "The column's type, as ADO numbers it"),
        property<&Field::definedSize>("DefinedSize", "Characters for text, bytes otherwise"),
        property<&Field::value, &Field::setValue>("Value", "The value in the current row"),
        property<&Field::originalValue>("OriginalValue", "The value before the edit of the row began"),
        property<&Field::underlyingValue>("UnderlyingValue", "The value that is stored now"),
    };
    static constexpr automation::MemberTable table{"Field", rows};
    return table;
}

}  // namespace hx::ado
