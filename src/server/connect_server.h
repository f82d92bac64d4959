// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "adapters/com/components.h"
#include "adapters/com/server.h"
#include "server/view.h"

namespace hx::server {

/// The server of the class HXRecipeEditor.Connect. Its objects live in one thread at a time: that of the first of them.
class ConnectServer {
  public:
    /// `makeView` is called for each add-in; `others` are classes beside Connect.
    using MakeView = std::function<std::unique_ptr<View>()>;
    ConnectServer(HMODULE library, MakeView makeView, std::vector<com::Server::Class> others = {});

    [[nodiscard]] com::Server& com() noexcept { return server_; }

  private:
    [[nodiscard]] std::vector<com::Server::Class> withConnect(std::vector<com::Server::Class> others);
    [[nodiscard]] com::Pointer<IUnknown> makeConnect();

    std::wstring file_;
    MakeView makeView_;
    com::Server server_;
    com::Components components_;
    DWORD thread_ = 0;
};

/// The one server of this library; what is built defines it.
[[nodiscard]] com::Server& serverOf(HMODULE library);

}  // namespace hx::server
