// SPDX-License-Identifier: MIT
#include "server/sessions.h"

#include "adapters/com/failure.h"
#include "adapters/com/server.h"
#include "adapters/com/text.h"

namespace hx::server {

Sessions::Sessions(HMODULE library, MakeView makeView, com::Border& border)
    : file_(com::fileOf(library)), makeView_(std::move(makeView)), border_(border), components_(border) {}

std::shared_ptr<Session> Sessions::open() {
    if (thread_ == 0 || border_.lifetime().isOver()) thread_ = GetCurrentThreadId();
    if (thread_ != GetCurrentThreadId()) com::fail(RPC_E_WRONG_THREAD);
    return std::make_shared<Session>(makeView_(), components_, com::toUtf8(file_));
}

}  // namespace hx::server
