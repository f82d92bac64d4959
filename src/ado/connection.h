// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"
#include "ado/types.h"
#include "automation/dispatch.h"

namespace hx::ado {

/// Something that lives on an open connection and ends with it.
class ConnectionClient {
  public:
    virtual ~ConnectionClient() = default;
    /// Gives up what it holds of the session; called before the session ends.
    virtual void connectionCloses() noexcept = 0;
};

/// ADO's Connection over one provider. Closing it closes the recordsets that are open on it; their pending edits are
/// lost.
class Connection : public automation::Dispatch {
  public:
    explicit Connection(Provider& provider) : provider_(provider) {}
    ~Connection() override;

    /// Throws adErrObjectOpen when open already, else what the provider says; the connection then stays closed.
    /// User, password and options are accepted as ADO's; no provider here uses them.
    void open(const std::string& connectionString, const std::string& userId = {}, const std::string& password = {},
              std::int32_t options = -1);
    /// Rolls an open transaction back. Throws adErrObjectClosed when closed.
    void close();
    [[nodiscard]] ObjectState state() const noexcept { return session_ ? adStateOpen : adStateClosed; }
    [[nodiscard]] const std::string& connectionString() const noexcept { return connectionString_; }

    /// Opens a transaction; true inside one already throws adErrInTransaction.
    void beginTrans();
    void commitTrans();
    void rollbackTrans();
    [[nodiscard]] bool inTransaction() const noexcept { return inTransaction_; }

    /// The errors of the last operation on the provider that failed, newest last; cleared by the next failing one.
    [[nodiscard]] const std::vector<automation::Error>& errors() const noexcept { return errors_; }
    void clearErrors() { errors_.clear(); }

    /// Runs `action` on the open session and records the provider's error before passing it on. Throws
    /// adErrObjectClosed when closed.
    template <class Action>
    decltype(auto) withSession(Action&& action);

    /// Counts what this connection has written, so that what was read before can be told from what is stored now.
    [[nodiscard]] std::uint64_t writes() const noexcept { return writes_; }
    void noteWrite() noexcept { ++writes_; }
    /// Counts the transactions that were rolled back: rows may have come and gone.
    [[nodiscard]] std::uint64_t rollbacks() const noexcept { return rollbacks_; }

    /// A state of the database, as far as this connection can see it.
    struct State {
        std::int64_t othersChanges;
        std::uint64_t writes, rollbacks;
        friend bool operator==(const State&, const State&) = default;
    };
    /// The present one, equal to an earlier one only when nothing has been changed since; nothing when that cannot be
    /// told.
    [[nodiscard]] std::optional<State> databaseState();

    void attach(ConnectionClient& client) { clients_.push_back(&client); }
    void detach(ConnectionClient& client) noexcept { std::erase(clients_, &client); }

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    Session& session();
    void record(const automation::Error& error);

    Provider& provider_;
    std::unique_ptr<Session> session_;
    std::string connectionString_;
    std::vector<automation::Error> errors_;
    std::vector<ConnectionClient*> clients_;
    std::uint64_t writes_ = 0;
    std::uint64_t rollbacks_ = 0;
    bool inTransaction_ = false;
};

template <class Action>
decltype(auto) Connection::withSession(Action&& action) {
    Session& open = session();
    try {
        return action(open);
    } catch (const automation::Error& error) {
        record(error);
        throw;
    }
}

}  // namespace hx::ado
