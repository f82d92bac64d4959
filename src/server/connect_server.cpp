// SPDX-License-Identifier: MIT
#include "server/connect_server.h"

#include "adapters/com/extensibility_object.h"
#include "adapters/com/text.h"
#include "addin/connect.h"
#include "server/session.h"

namespace hx::server {

ConnectServer::ConnectServer(HMODULE library, MakeView makeView, std::vector<com::Server::Class> others)
    : file_(com::fileOf(library)),
      makeView_(std::move(makeView)),
      server_(library, withConnect(std::move(others)), com::Types::own),
      components_(server_.border()) {}

std::vector<com::Server::Class> ConnectServer::withConnect(std::vector<com::Server::Class> others) {
    others.push_back({.id = __uuidof(::Connect),
                      .programId = std::string(addin::connectProgramId),
                      .description = "Recipe editor of a project",
                      .make = [this] { return makeConnect(); }});
    return others;
}

com::Pointer<IUnknown> ConnectServer::makeConnect() {
    if (thread_ == 0 || server_.canUnloadNow() == S_OK) thread_ = GetCurrentThreadId();
    if (thread_ != GetCurrentThreadId()) com::fail(RPC_E_WRONG_THREAD);
    const auto session = std::make_shared<Session>(makeView_(), components_, com::toUtf8(file_));
    const std::shared_ptr<addin::Connect> addIn(new addin::Connect(session->services()),
                                                [session](const addin::Connect* ended) { delete ended; });
    session->view().setProject([raw = addIn.get()] { return raw->ProjectPath(); });
    const auto meet = [session](com::Explorer* explorer) { session->meet(explorer); };
    return com::Pointer<IUnknown>::adopt(new com::ExtensibilityObject(
        addIn, com::typesOf(__uuidof(::CHX4Extensibility), file_), server_.border(), meet));
}

}  // namespace hx::server
