// SPDX-License-Identifier: MIT
#include "server/sessions.h"

#include "adapters/com/failure.h"
#include "adapters/com/server.h"
#include "adapters/com/text.h"

namespace hx::server {

Sessions::Sessions(HMODULE library, MakeView makeView, com::Border& border)
    : library_(library),
      file_(com::fileOf(library)),
      makeView_(std::move(makeView)),
      border_(border),
      components_(border) {}

void Sessions::requireThread() {
    if (thread_ == 0 || border_.lifetime().isOver()) thread_ = GetCurrentThreadId();
    if (thread_ != GetCurrentThreadId()) com::fail(RPC_E_WRONG_THREAD);
}

std::shared_ptr<const host::Services> Sessions::lent(const host::Services& services) {
    requireThread();
    com::keepLoaded(library_);
    const auto own = std::make_shared<host::Services>(services);
    own->moduleFile = com::toUtf8(file_);
    own->libraryName = builtLibrary;
    return own;
}

std::shared_ptr<Session> Sessions::open() {
    requireThread();
    return std::make_shared<Session>(makeView_(), components_, com::toUtf8(file_));
}

}  // namespace hx::server
