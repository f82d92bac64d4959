// SPDX-License-Identifier: MIT
#include "server/connect_server.h"

#include "addin/connect.h"

namespace hx::server {

ConnectServer::ConnectServer(HMODULE library, Sessions::MakeView makeView, std::vector<com::Server::Class> others)
    : server_(library, withConnect(std::move(others)), com::Types::own),
      sessions_(library, std::move(makeView), server_.border()) {}

std::vector<com::Server::Class> ConnectServer::withConnect(std::vector<com::Server::Class> others) {
    others.push_back({.id = __uuidof(::Connect),
                      .programId = std::string(addin::connectProgramId),
                      .description = "Recipe editor of a project",
                      .make = [this] { return makeConnect(); },
                      .makeLent = [this](const host::Services& services) { return makeLent(services); }});
    return others;
}

com::Pointer<IUnknown> ConnectServer::makeConnect() {
    const std::shared_ptr<Session> session = sessions_.open();
    const std::shared_ptr<addin::Connect> addIn(new addin::Connect(session->services()),
                                                [session](const addin::Connect* ended) { delete ended; });
    session->view().setProject([raw = addIn.get()] { return raw->ProjectPath(); });
    return serve(addIn, [session](com::Explorer* explorer) { session->meet(explorer); });
}

com::ClassFactory::Lent ConnectServer::makeLent(const host::Services& services) {
    const std::shared_ptr<const host::Services> lent = sessions_.lent(services);
    const std::shared_ptr<addin::Connect> addIn(new addin::Connect(*lent),
                                                [lent](const addin::Connect* ended) { delete ended; });
    return {serve(addIn, {}), addIn};
}

com::Pointer<IUnknown> ConnectServer::serve(std::shared_ptr<host::CHX4Extensibility> addIn,
                                            com::ExtensibilityObject::Meet meet) {
    return com::Pointer<IUnknown>::adopt(
        new com::ExtensibilityObject(std::move(addIn), com::typesOf(__uuidof(::CHX4Extensibility), sessions_.file()),
                                     server_.border(), std::move(meet)));
}

}  // namespace hx::server
