// SPDX-License-Identifier: MIT
#include "ado/connection.h"

#include "ado/errors.h"
#include "automation/member_rows.h"

namespace hx::ado {

using automation::Args;
using automation::Error;
using automation::Variant;

Connection::~Connection() {
    while (!clients_.empty()) {
        ConnectionClient* client = clients_.back();
        clients_.pop_back();
        client->connectionCloses();
    }
}

void Connection::open(const std::string& connectionString, const std::string&, const std::string&, std::int32_t) {
    if (session_) throwObjectOpen();
    try {
        session_ = provider_.connect(connectionString);
    } catch (const Error& error) {
        record(error);
        throw;
    }
    connectionString_ = connectionString;
}

void Connection::close() {
    session();
    while (!clients_.empty()) {
        ConnectionClient* client = clients_.back();
        clients_.pop_back();
        client->connectionCloses();
    }
    const std::unique_ptr<Session> closing = std::move(session_);
    if (!inTransaction_) return;
    inTransaction_ = false;
    ++rollbacks_;
    try {
        closing->rollback();
    } catch (const Error& error) {
        // The database rolls back what was not committed when the session ends; there is nothing left to do.
        record(error);
    }
}

void Connection::beginTrans() {
    if (inTransaction_) {
        throwError(adErrInTransaction, {"Only one transaction can be active on this connection.",
                                        "Auf dieser Verbindung kann nur eine Transaktion laufen."});
    }
    withSession([](Session& open) { open.beginTransaction(); });
    inTransaction_ = true;
}

void Connection::commitTrans() {
    session();
    if (!inTransaction_) throwIllegalOperation();
    withSession([](Session& open) { open.commit(); });
    inTransaction_ = false;
}

void Connection::rollbackTrans() {
    session();
    if (!inTransaction_) throwIllegalOperation();
    withSession([](Session& open) { open.rollback(); });
    inTransaction_ = false;
    ++writes_;
    ++rollbacks_;
}

std::optional<Connection::State> Connection::databaseState() {
    const auto changes = withSession([](Session& open) { return open.othersChanges(); });
    if (!changes) return {};
    return State{*changes, writes_, rollbacks_};
}

Session& Connection::session() {
    if (!session_) throwObjectClosed();
    return *session_;
}

void Connection::record(const Error& error) {
    errors_.clear();
    errors_.push_back(error);
}

namespace {

/// One entry of the error list, for late-bound use.
class ErrorItem : public automation::Dispatch {
  public:
    // NOLINTNEXTLINE(bugprone-throw-keyword-missing)
    explicit ErrorItem(Error error) : error_(std::move(error)) {}
    [[nodiscard]] std::int32_t number() const { return error_.number(); }
    [[nodiscard]] const std::string& description() const { return error_.description(); }

    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&ErrorItem::number>("Number", "The provider's error code"),
            automation::property<&ErrorItem::description>("Description", "What failed, and where"),
        };
        static constexpr automation::MemberTable table{"Error", rows};
        return table;
    }

  private:
    Error error_;
};

automation::ObjectRef errorAt(Connection& connection, std::int32_t index) {
    const auto& errors = connection.errors();
    if (index < 0 || static_cast<std::size_t>(index) >= errors.size()) automation::throwBadIndex("Errors", index);
    return std::make_shared<ErrorItem>(errors[static_cast<std::size_t>(index)]);
}

std::int32_t errorCount(Connection& connection) { return static_cast<std::int32_t>(connection.errors().size()); }

std::string textArgument(Args args, std::size_t index) {
    return index < args.size() ? automation::toText(args[index]) : std::string();
}

Variant callOpen(Connection& connection, Args args) {
    constexpr std::size_t most = 4;
    if (args.empty() || args.size() > most) throw Error(automation::errBadParamCount, "Invalid number of arguments");
    connection.open(textArgument(args, 0), textArgument(args, 1), textArgument(args, 2),
                    args.size() == most ? automation::toInt32(args[3]) : -1);
    return {};
}

}  // namespace

const automation::MemberTable& Connection::members() const {
    using automation::indexed;
    using automation::method;
    using automation::methodWithArgs;
    using automation::property;
    static constexpr automation::Member rows[] = {
        methodWithArgs<Connection, &callOpen>("Open", "Opens the database of a connection string"),
        method<&Connection::close>("Close", "Closes the connection and the recordsets on it"),
        property<&Connection::state>("State", "0 closed, 1 open"),
        property<&Connection::connectionString>("ConnectionString", "The string of the last successful Open"),
        method<&Connection::beginTrans>("BeginTrans", "Begins a transaction"),
        method<&Connection::commitTrans>("CommitTrans", "Makes the changes since BeginTrans lasting"),
        method<&Connection::rollbackTrans>("RollbackTrans", "Takes the changes since BeginTrans back"),
        indexed<&errorAt>("Errors", "The errors of the last operation that failed, from 0"),
        property<&errorCount>("ErrorCount", "The number of those errors"),
    };
    static constexpr automation::MemberTable table{"Connection", rows};
    return table;
}

}  // namespace hx::ado
