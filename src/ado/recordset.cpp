// SPDX-License-Identifier: MIT
#include "ado/recordset.h"

#include <algorithm>
#include <array>

#include "ado/errors.h"
#include "ado/keyset.h"
#include "ado/row_edit.h"
#include "automation/text.h"

namespace hx::ado {

using Place = Cursor::Place;
using automation::Variant;

namespace {

bool readsAsSql(std::string_view source) {
    static constexpr std::array<std::string_view, 4> verbs = {"SELECT", "DELETE", "INSERT", "UPDATE"};
    const std::string_view text = automation::trim(source);
    const std::string_view first = text.substr(0, text.find_first_of(" \t\r\n("));
    for (const std::string_view verb : verbs) {
        if (automation::equalIgnoreCase(first, verb)) return true;
    }
    return false;
}

CommandType kindOf(std::string_view source, CommandType type) {
    if (type != adCmdUnknown) return type;
    return readsAsSql(source) ? adCmdText : adCmdTable;
}

}  // namespace

Recordset::Recordset() : cursor_(std::make_unique<Cursor>()), edit_(std::make_unique<RowEdit>()) {}

Recordset::~Recordset() {
    if (list_) list_->detach(*cursor_);
}

void Recordset::setSource(std::string source) {
    if (state() == adStateOpen) throwObjectOpen();
    source_ = std::move(source);
}

void Recordset::setActiveConnection(std::shared_ptr<Connection> connection) {
    if (state() == adStateOpen) throwObjectOpen();
    connection_ = std::move(connection);
}

ObjectState Recordset::state() const noexcept { return keyset_ && keyset_->isOpen() ? adStateOpen : adStateClosed; }

Keyset& Recordset::requireOpen() const {
    if (state() == adStateClosed) throwObjectClosed();
    return *keyset_;
}

void Recordset::open() {
    if (state() == adStateOpen) throwObjectOpen();
    if (!connection_ || connection_->state() == adStateClosed) throwInvalidConnection();
    if (source_.empty()) throw automation::Error(dbErrBadCommand, "Command text was not set.");
    auto rowset = connection_->withSession(
        [this](Session& session) { return session.open(source_, kindOf(source_, commandType_)); });
    if (rowset) {
        start(std::move(rowset));
    } else {
        connection_->noteWrite();
    }
}

void Recordset::open(const std::string& source, std::shared_ptr<Connection> connection, CursorType, LockType lock,
                     CommandType type) {
    setSource(source);
    if (connection) connection_ = std::move(connection);
    commandType_ = type;
    readOnly_ = lock == adLockReadOnly;
    open();
}

void Recordset::start(std::unique_ptr<Rowset> rowset) {
    edit_->end();
    filter_.clear();
    keyset_ = std::make_shared<Keyset>(connection_, std::move(rowset));
    useList(keyset_->all());
    while (fields_.size() < keyset_->columns().size()) {
        fields_.push_back(std::make_unique<Field>(*this, fields_.size()));
    }
}

void Recordset::useList(std::shared_ptr<KeyList> list) {
    if (list_) list_->detach(*cursor_);
    list_ = std::move(list);
    cursor_->set(Cursor::Place::first);
    if (list_) list_->attach(*cursor_);
}

void Recordset::close() {
    requireOpen();
    if (edit_->pending()) throwIllegalOperation();
    useList(nullptr);
    keyset_.reset();
    filter_.clear();
}

void Recordset::requery() {
    leaveRow();
    if (!isUpToDate()) keyset_->dropKeys();
    cursor_->set(Cursor::Place::first);
}

bool Recordset::isUpToDate() const { return requireOpen().isUpToDate(); }

std::shared_ptr<Recordset> Recordset::clone() const {
    requireOpen();
    auto copy = std::make_shared<Recordset>();
    copy->source_ = source_;
    copy->connection_ = connection_;
    copy->commandType_ = commandType_;
    copy->readOnly_ = readOnly_;
    copy->keyset_ = keyset_;
    copy->useList(keyset_->all());
    for (std::size_t i = 0; i < keyset_->columns().size(); ++i) {
        copy->fields_.push_back(std::make_unique<Field>(*copy, i));
    }
    return copy;
}

const std::vector<Column>& Recordset::columns() const { return requireOpen().columns(); }
std::size_t Recordset::fieldCount() const { return columns().size(); }

std::size_t Recordset::columnNumber(std::string_view name) const {
    const auto& all = columns();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].name == name) return i;
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (automation::equalIgnoreCase(all[i].name, name)) return i;
    }
    throwItemNotFound();
}

Field& Recordset::field(std::string_view name) { return *fields_[columnNumber(name)]; }

Field& Recordset::field(std::size_t index) {
    if (index >= columns().size()) throwItemNotFound();
    return *fields_[index];
}

// Works out which row the cursor stands on, when it was moved without asking for the keys or the keys were dropped.
void Recordset::settle() const {
    requireOpen().refresh();
    if (cursor_->place == Place::first) {
        if (list_->size() == 0) cursor_->set(Place::eof);
        else cursor_->set(Place::row, 0, list_->key(0));
    } else if (cursor_->place == Place::key) {
        const auto found = list_->find(cursor_->key);
        cursor_->deleted = !found;
        cursor_->position = found.value_or(std::min(cursor_->position, list_->size()));
        cursor_->place = Place::row;
    }
}

// Writes a pending edit: the row is about to be left.
void Recordset::leaveRow() {
    requireOpen();
    if (edit_->pending()) update();
}

bool Recordset::bof() const {
    settle();
    if (edit_->mode() == adEditAdd) return false;
    return cursor_->place == Place::bof || list_->size() == 0;
}

bool Recordset::eof() const {
    settle();
    if (edit_->mode() == adEditAdd) return false;
    return cursor_->place == Place::eof || list_->size() == 0;
}

std::int32_t Recordset::recordCount() const {
    requireOpen();
    return static_cast<std::int32_t>(list_->size());
}

// The first row from `position` on that nobody has deleted, else EOF.
void Recordset::placeForward(std::size_t position) {
    const std::size_t size = list_->size();
    while (position < size && !list_->exists(position)) ++position;
    if (position < size) cursor_->set(Place::row, position, list_->key(position));
    else cursor_->set(Place::eof);
}

// The last of the first `count` rows that nobody has deleted, else BOF.
void Recordset::placeBackward(std::size_t count) {
    while (count > 0 && !list_->exists(count - 1)) --count;
    if (count > 0) cursor_->set(Place::row, count - 1, list_->key(count - 1));
    else cursor_->set(Place::bof);
}

void Recordset::moveFirst() {
    leaveRow();
    if (list_->size() == 0) throwNoCurrentRecord();
    placeForward(0);
}

void Recordset::moveLast() {
    leaveRow();
    if (list_->size() == 0) throwNoCurrentRecord();
    placeBackward(list_->size());
}

void Recordset::moveNext() {
    leaveRow();
    settle();
    switch (cursor_->place) {
        case Place::eof: throwNoCurrentRecord();
        case Place::bof: return placeForward(0);
        default: return placeForward(cursor_->deleted ? cursor_->position : cursor_->position + 1);
    }
}

void Recordset::movePrevious() {
    leaveRow();
    settle();
    switch (cursor_->place) {
        case Place::bof: throwNoCurrentRecord();
        case Place::eof:
            if (list_->size() == 0) throwNoCurrentRecord();
            return placeBackward(list_->size());
        default: return placeBackward(cursor_->position);
    }
}

void Recordset::scan(std::span<const std::string_view> fields, const StoredRowReceiver& receive) {
    leaveRow();
    std::vector<std::size_t> columns;
    for (const std::string_view field : fields) columns.push_back(columnNumber(field));
    list_->giveAll(columns, receive);
}

std::int32_t Recordset::absolutePosition() const {
    settle();
    const bool onRow = cursor_->place == Place::row && !cursor_->deleted && edit_->mode() != adEditAdd;
    return onRow ? static_cast<std::int32_t>(cursor_->position + 1) : -1;
}

void Recordset::setAbsolutePosition(std::int32_t position) {
    leaveRow();
    if (position < 1 || static_cast<std::size_t>(position) > list_->size()) {
        throwInvalidArgument("Position " + std::to_string(position) + " is not within the recordset.");
    }
    placeForward(static_cast<std::size_t>(position) - 1);
}

Bookmark Recordset::bookmark() const {
    settle();
    const bool onRow = cursor_->place == Place::row && !cursor_->deleted && edit_->mode() != adEditAdd;
    return onRow ? Bookmark(cursor_->key) : Bookmark();
}

void Recordset::setBookmark(const Bookmark& bookmark) {
    leaveRow();
    const auto position = bookmark.isNull() ? std::nullopt : list_->find(bookmark.key());
    if (!position) throwInvalidArgument("The bookmark marks no row of the recordset.");
    cursor_->set(Place::row, *position, bookmark.key());
}

void Recordset::find(const std::string& criterion, std::int32_t skip, SearchDirection direction) {
    const Criterion condition = parseFind(criterion, columns());
    leaveRow();
    settle();
    const auto size = static_cast<std::ptrdiff_t>(list_->size());
    const bool forward = direction == adSearchForward;
    std::ptrdiff_t start = static_cast<std::ptrdiff_t>(cursor_->position);
    if (cursor_->place == Place::bof) start = -1 + (forward ? 1 : 0);
    if (cursor_->place == Place::eof) start = size - (forward ? 0 : 1);
    if (cursor_->place == Place::row && cursor_->deleted) start -= forward ? 0 : 1;
    else if (cursor_->place == Place::row) start += forward ? skip : -skip;
    const bool inside = start >= 0 && start < size;
    const auto found = inside ? list_->search(condition, static_cast<std::size_t>(start), direction) : std::nullopt;
    if (found) cursor_->set(Place::row, *found, list_->key(*found));
    else cursor_->set(forward ? Place::eof : Place::bof);
}

void Recordset::setFilter(const std::string& filter) {
    std::optional<Criterion> condition = parseFilter(filter, columns());
    leaveRow();
    useList(condition ? keyset_->filtered(std::move(*condition)) : keyset_->all());
    filter_ = filter;
}

void Recordset::sortBy(std::size_t column, Display display, bool descending) {
    if (column >= columns().size()) throwItemNotFound();
    leaveRow();
    keyset_->sortBy({column, std::move(display), descending});
    cursor_->set(Place::first);
}

Bookmark Recordset::bookmarkAt(std::size_t index) const {
    requireOpen();
    return index < list_->size() ? Bookmark(list_->key(index)) : Bookmark();
}

std::ptrdiff_t Recordset::indexOf(const Bookmark& bookmark) const {
    requireOpen();
    const auto position = bookmark.isNull() ? std::nullopt : list_->find(bookmark.key());
    return position ? static_cast<std::ptrdiff_t>(*position) : -1;
}

}  // namespace hx::ado
