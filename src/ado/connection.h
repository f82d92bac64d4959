#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"
#include "ado/types.h"
#include "automation/dispatch.h"

namespace hx::ado {

/// One error of the provider, kept in Connection::errors.
struct ProviderError {
    std::int32_t number = 0;
    std::string description;
};

/// ADO's Connection over one provider. Recordsets opened on it must be closed before it is.
class Connection : public automation::Dispatch {
  public:
    explicit Connection(Provider& provider) : provider_(provider) {}

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
    [[nodiscard]] const std::vector<ProviderError>& errors() const noexcept { return errors_; }
    void clearErrors() { errors_.clear(); }

    /// Runs `action` on the open session and records the provider's error before passing it on. Throws
    /// adErrObjectClosed when closed.
    template <class Action>
    decltype(auto) withSession(Action&& action);

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    Session& session();
    void record(const automation::Error& error);

    Provider& provider_;
    std::unique_ptr<Session> session_;
    std::string connectionString_;
    std::vector<ProviderError> errors_;
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
