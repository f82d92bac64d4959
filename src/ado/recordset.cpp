#include "ado/recordset.h"

#include <array>

#include "ado/errors.h"
#include "ado/keyset.h"
#include "ado/row_edit.h"
#include "automation/text.h"

namespace hx::ado {

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
    keyset_->requery();
    cursor_->set(Cursor::Place::first);
}

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

}  // namespace hx::ado
