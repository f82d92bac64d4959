// SPDX-License-Identifier: MIT
#include "ado/errors.h"
#include "ado/keyset.h"
#include "ado/recordset.h"
#include "ado/row_edit.h"

namespace hx::ado {

using automation::Null;
using automation::Variant;
using Place = Cursor::Place;

EditMode Recordset::editMode() const noexcept {
    if (edit_->pending()) return edit_->mode();
    return cursor_->deleted ? adEditDelete : adEditNone;
}

void Recordset::requireRow() const {
    if (edit_->mode() == adEditAdd) return;  // a new row needs no position
    settle();
    if (cursor_->place != Place::row) throwNoCurrentRecord();
    if (cursor_->deleted) throwDeletedRow();
}

void Recordset::requireWritable() const {
    requireOpen();
    if (readOnly_) {
        throwError(adErrIllegalOperation,
                   {"The recordset was opened for reading only.", "Die Datensätze wurden nur zum Lesen geöffnet."});
    }
}

Variant Recordset::storedValue(std::size_t position, std::size_t column) const {
    if (keyset_->columns()[column].isKey) return keyValue(list_->key(position));
    const Variant* value = list_->value(position, column);
    if (value == nullptr) throwDeletedRow();
    return *value;
}

Variant Recordset::currentValue(std::size_t column) const {
    requireRow();
    const Variant* pending = edit_->value(column);
    return pending != nullptr ? *pending : valueBefore(column);
}

Variant Recordset::originalValue(std::size_t column) const {
    requireRow();
    return valueBefore(column);
}

// What the row held before its edit, if there is one, began.
Variant Recordset::valueBefore(std::size_t column) const {
    if (edit_->mode() == adEditAdd) return Null{};
    const Variant* read = edit_->read(column);
    return read != nullptr ? *read : storedValue(cursor_->position, column);
}

Variant Recordset::underlyingValue(std::size_t column) const {
    requireRow();
    return edit_->mode() == adEditAdd ? Null{} : readRow()[column];
}

namespace {

/// One row, whole.
struct WholeRow : RowSink {
    void row(std::size_t, std::span<Variant> values) override { read.assign(values.begin(), values.end()); }
    std::vector<Variant> read;
};

}  // namespace

std::vector<Variant> Recordset::readRow() const {
    WholeRow sink;
    list_->read(cursor_->position, 1, ~ColumnMask{0}, sink);
    if (sink.read.empty()) throwDeletedRow();
    for (std::size_t i = 0; i < sink.read.size(); ++i) {
        if (keyset_->columns()[i].isKey) sink.read[i] = keyValue(cursor_->key);
    }
    return std::move(sink.read);
}

void Recordset::edit() {
    requireWritable();
    leaveRow();
    requireRow();
    edit_->begin(readRow());
}

Variant Recordset::valueAt(std::size_t index, std::size_t column) const {
    requireOpen();
    if (column >= keyset_->columns().size()) throwItemNotFound();
    if (index >= list_->size() || !list_->exists(index)) return Null{};
    return storedValue(index, column);
}

void Recordset::setCurrentValue(std::size_t column, const Variant& value) {
    requireWritable();
    requireRow();
    Variant converted = convertFor(keyset_->columns()[column], value);
    if (edit_->mode() == adEditAdd || edit_->value(column) != nullptr) return edit_->set(column, std::move(converted));
    if (!edit_->pending() && !list_->exists(cursor_->position)) throwDeletedRow();
    const Variant* read = edit_->read(column);
    if (read == nullptr) read = list_->value(cursor_->position, column);  // null: the row is gone, as update() will say
    Variant before = read != nullptr ? *read : Variant();
    if (!edit_->pending()) edit_->begin(adEditInProgress, keyset_->columns().size());
    edit_->set(column, std::move(converted), std::move(before));
}

void Recordset::addNew() {
    requireWritable();
    leaveRow();
    edit_->begin(adEditAdd, keyset_->columns().size());
}

void Recordset::addNew(std::span<const std::pair<std::string, Variant>> values) {
    requireWritable();
    leaveRow();
    std::vector<ColumnValue> row;
    for (const auto& [name, value] : values) {
        const std::size_t column = columnNumber(name);
        row.push_back({column, convertFor(keyset_->columns()[column], value)});
    }
    const Key key = keyset_->insert(row, *list_);
    cursor_->set(Place::key, 0, key);
}

namespace {

/// Rows of which each value has the kind that its column stores.
class ConvertedRows : public RowSource {
  public:
    ConvertedRows(RowSource& rows, const std::vector<Column>& columns, std::span<const std::size_t> fields)
        : rows_(rows), columns_(columns), fields_(fields) {}
    bool next(std::span<Variant> values) override {
        if (!rows_.next(values)) return false;
        for (std::size_t i = 0; i < fields_.size(); ++i) values[i] = convertFor(columns_[fields_[i]], values[i]);
        return true;
    }

  private:
    RowSource& rows_;
    const std::vector<Column>& columns_;
    std::span<const std::size_t> fields_;
};

}  // namespace

void Recordset::addNew(std::span<const std::string> fields, RowSource& rows) {
    requireWritable();
    leaveRow();
    std::vector<std::size_t> numbers;
    for (const std::string& field : fields) numbers.push_back(columnNumber(field));
    ConvertedRows converted(rows, keyset_->columns(), numbers);
    cursor_->set(Place::first);
    keyset_->insertAll(numbers, converted);
}

void Recordset::update() {
    requireOpen();
    if (edit_->mode() == adEditAdd) return storeNew();
    if (edit_->mode() != adEditInProgress) return;
    const RowEdit::Changes changes = edit_->changes();
    if (!changes.values.empty()) keyset_->update(cursor_->key, changes.values, changes.read);
    edit_->end();
}

void Recordset::storeNew() {
    const Key key = keyset_->insert(edit_->assigned(), *list_);
    edit_->end();
    cursor_->set(Place::key, 0, key);
}

void Recordset::cancelUpdate() {
    requireOpen();
    edit_->end();
}

void Recordset::remove() {
    requireWritable();
    if (edit_->mode() == adEditAdd) return cancelUpdate();
    requireRow();
    edit_->end();
    keyset_->remove(cursor_->key);
}

void Recordset::removeRows(std::span<const Key> keys) {
    requireWritable();
    leaveRow();
    keyset_->remove(keys);
}

void Recordset::resync(Affect affect) {
    requireOpen();
    if (affect == adAffectCurrent) requireRow();
    edit_->end();
    keyset_->dropPages();
    if (affect == adAffectCurrent && cursor_->place == Place::row && !list_->exists(cursor_->position)) {
        throwDeletedRow();
    }
}

}  // namespace hx::ado
