// SPDX-License-Identifier: MIT
#include "ado/row_edit.h"

#include <string>

#include "ado/errors.h"
#include "automation/convert.h"
#include "automation/text.h"

namespace hx::ado {

using automation::Error;
using automation::Language;
using automation::Variant;

void RowEdit::begin(EditMode mode, std::size_t columns) {
    mode_ = mode;
    values_.assign(columns, std::nullopt);
    row_.clear();
}

void RowEdit::begin(std::vector<Variant> row) {
    begin(adEditInProgress, row.size());
    row_ = std::move(row);
}

void RowEdit::end() noexcept {
    mode_ = adEditNone;
    values_.clear();
    row_.clear();
}

const Variant* RowEdit::value(std::size_t column) const noexcept {
    return column < values_.size() && values_[column] ? &values_[column]->value : nullptr;
}

void RowEdit::set(std::size_t column, Variant value, Variant read) {
    std::optional<Value>& assigned = values_[column];
    if (assigned) assigned->value = std::move(value);
    else assigned = {std::move(value), std::move(read)};
}

const Variant* RowEdit::read(std::size_t column) const noexcept {
    if (column < row_.size()) return &row_[column];
    return column < values_.size() && values_[column] ? &values_[column]->read : nullptr;
}

std::vector<ColumnValue> RowEdit::assigned() const {
    std::vector<ColumnValue> assigned;
    for (std::size_t i = 0; i < values_.size(); ++i) {
        if (values_[i]) assigned.push_back({i, values_[i]->value});
    }
    return assigned;
}

RowEdit::Changes RowEdit::changes() const {
    Changes changes;
    for (std::size_t i = 0; i < values_.size(); ++i) {
        if (!values_[i] || sameValue(values_[i]->value, values_[i]->read)) continue;
        changes.values.push_back({i, values_[i]->value});
        changes.read.push_back({i, values_[i]->read});
    }
    return changes;
}

namespace {

constexpr automation::Sentence doesNotFit{"The value does not fit the column \"%1\": %2.",
                                          "Der Wert passt nicht in die Spalte \"%1\": %2."};

std::string fittingText(const Column& column, const Variant& value) {
    if (value.isObject()) throwError(automation::errTypeMismatch, {"text expected", "es muss ein Text sein"});
    std::string text = automation::toText(value);
    const std::size_t longest = longestText(column);
    if (longest > 0 && automation::characterCount(text) > longest) {
        throwError(automation::errOverflow,
                   {"the text is longer than %1 characters", "der Text ist länger als %1 Zeichen"},
                   {std::to_string(column.definedSize)});
    }
    return text;
}

Variant convert(const Column& column, const Variant& value) {
    if (value.isNull()) return value;
    switch (column.type) {
        case adSmallInt: return automation::toInt32(Variant(automation::toInt16(value)));
        case adInteger: return automation::toInt32(value);
        case adDouble: return automation::toDouble(value);
        case adBoolean: return automation::toBoolean(value);
        default: return fittingText(column, value);
    }
}

}  // namespace

std::size_t longestText(const Column& column) noexcept {
    const bool limited = column.type == adVarWChar && column.definedSize > 0;
    return limited ? static_cast<std::size_t>(column.definedSize) : 0;
}

Variant convertFor(const Column& column, const Variant& value) {
    if (column.isKey || !column.updatable) {
        throwError(adErrIllegalOperation,
                   {"Column \"%1\" cannot be assigned.", "Der Spalte \"%1\" kann nichts zugewiesen werden."},
                   {column.name});
    }
    try {
        return convert(column, value);
    } catch (const Error& error) {
        const auto told = [&](Language language) {
            return say(language, doesNotFit, {column.name, error.description(language)});
        };
        throw Error(dbErrCannotConvert, told(Language::english), told(Language::german));
    }
}

}  // namespace hx::ado
