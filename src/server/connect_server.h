// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

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

    com::Server server_;
    Sessions sessions_;
};

}  // namespace hx::server
