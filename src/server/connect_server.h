// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "adapters/com/extensibility_object.h"
#include "adapters/com/server.h"
#include "server/sessions.h"

namespace hx::server {

/// The server of the class HXRecipeEditor.Connect.
class ConnectServer {
  public:
    /// `others` are classes beside Connect.
    ConnectServer(HMODULE library, Sessions::MakeView makeView, std::vector<com::Server::Class> others = {});

    [[nodiscard]] com::Server& com() noexcept { return server_; }

  private:
    [[nodiscard]] std::vector<com::Server::Class> withConnect(std::vector<com::Server::Class> others);
    [[nodiscard]] com::Pointer<IUnknown> makeConnect();
    [[nodiscard]] com::ClassFactory::Lent makeLent(const host::Services& services);
    [[nodiscard]] com::Pointer<IUnknown> serve(std::shared_ptr<host::CHX4Extensibility> addIn,
                                               com::ExtensibilityObject::Meet meet);

    com::Server server_;
    Sessions sessions_;
};

}  // namespace hx::server
