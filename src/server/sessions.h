// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "adapters/com/components.h"
#include "server/session.h"

namespace hx::server {

/// Makes what the objects of a library are lent, each for itself. All live in one thread at a time: that of the first
/// of them.
class Sessions {
  public:
    /// `makeView` is called for each.
    using MakeView = std::function<std::unique_ptr<View>()>;
    /// The border is lent, and counts the library's objects.
    Sessions(HMODULE library, MakeView makeView, com::Border& border);

    /// Throws RPC_E_WRONG_THREAD in another thread than that of the objects that there are.
    [[nodiscard]] std::shared_ptr<Session> open();
    /// For an object whose host lends everything: its services, as of this library. What such a host keeps of the
    /// library's is not counted, so the library stays loaded. Throws as open() does.
    [[nodiscard]] std::shared_ptr<const host::Services> lent(const host::Services& services);

    /// The library's file.
    [[nodiscard]] const std::wstring& file() const noexcept { return file_; }

  private:
    void requireThread();

    HMODULE library_;
    std::wstring file_;
    MakeView makeView_;
    com::Border& border_;
    com::Components components_;
    DWORD thread_ = 0;
};

}  // namespace hx::server
