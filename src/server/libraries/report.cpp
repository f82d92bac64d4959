// SPDX-License-Identifier: MIT
// The report's library as the recipe editor, or a host, loads it.
#include "adapters/com/object.h"
#include "report/connect.h"
#include "report/preview/qt_viewer.h"
#include "server/exports.h"
#include "server/sessions.h"
#include "server/toolkit/make_toolkit_view.h"

namespace hx::server {

namespace {

constexpr CLSID reportId{0x5d1c1b52, 0x66a0, 0x4d0e, {0x8f, 0x6b, 0x0b, 0x2c, 0x1d, 0x6c, 0x9a, 0x09}};

/// The server of the class HXProjectReport.Connect, whose objects are called by name.
class ReportServer {
  public:
    explicit ReportServer(HMODULE library)
        : server_(library, {{reportId, std::string(report::connectProgramId), "Report of a project's recipes",
                             [this] { return makeReport(); },
                             [this](const host::Services& services) { return makeLent(services); }}}),
          sessions_(
              library, [library] { return makeToolkitView(library); }, server_.border()) {}

    [[nodiscard]] com::Server& com() noexcept { return server_; }

  private:
    [[nodiscard]] com::Pointer<IUnknown> makeReport() {
        const std::shared_ptr<Session> session = sessions_.open();
        return serve(reportOn(session->services(), session));
    }
    [[nodiscard]] com::ClassFactory::Lent makeLent(const host::Services& services) {
        const std::shared_ptr<const host::Services> lent = sessions_.lent(services);
        const auto report = reportOn(*lent, lent);
        return {serve(report), report};
    }
    [[nodiscard]] com::Pointer<IUnknown> serve(const std::shared_ptr<report::Connect>& report) {
        return com::Pointer<IUnknown>::adopt(new com::Object(report, server_.border()));
    }
    /// `owner` has the services and ends after the report.
    template <class Owner>
    [[nodiscard]] static std::shared_ptr<report::Connect> reportOn(const host::Services& services, Owner owner) {
        return {new report::Connect(services, std::make_unique<report::QtViewer>(services)),
                [owner](const report::Connect* ended) { delete ended; }};
    }

    com::Server server_;
    Sessions sessions_;
};

}  // namespace

com::Server& serverOf(HMODULE library) {
    static ReportServer only(library);
    return only.com();
}

}  // namespace hx::server
