// SPDX-License-Identifier: MIT
#include "server/connect_server.h"

#include "adapters/com/extensibility_object.h"
#include "addin/connect.h"

namespace hx::server {

ConnectServer::ConnectServer(HMODULE library, Sessions::MakeView makeView, std::vector<com::Server::Class> others)
    : server_(library, withConnect(std::move(others)), com::Types::own),
      sessions_(library, std::move(makeView), server_.border()) {}

std::vector<com::Server::Class> ConnectServer::withConnect(std::vector<com::Server::Class> others) {
    others.push_back({.id = __uuidof(::Connect),
                      .programId = std::string(addin::connectProgramId),
                      .description = "Recipe editor of a project",
                      .make = [this] { return makeConnect(); }});
    return others;
}

com::Pointer<IUnknown> ConnectServer::makeConnect() {
    const std::shared_ptr<Session> session = sessions_.open();
    const std::shared_ptr<addin::Connect> addIn(new addin::Connect(session->services()),
                                                [session](const addin::Connect* ended) { delete ended; });
    session->view().setProject([raw = addIn.get()] { return raw->ProjectPath(); });
    const auto meet = [session](com::Explorer* explorer) { session->meet(explorer); };
    return com::Pointer<IUnknown>::adopt(new com::ExtensibilityObject(
        addIn, com::typesOf(__uuidof(::CHX4Extensibility), sessions_.file()), server_.border(), meet));
}

}  // namespace hx::server
