// SPDX-License-Identifier: MIT
#include <QDir>

#include "studio/windows_served_add_in.h"
// The interface's members come before what names them.
#include "adapters/com/class_context.h"
#include "adapters/com/failure.h"
#include "adapters/com/lending.h"
#include "adapters/com/text.h"
#include "adapters/qt/add_in_file.h"
#include "adapters/qt/text.h"
#include "studio/add_ins.h"

namespace hx::studio {

namespace {

constexpr automation::Sentence otherMake{"The add-in %1 belongs to another version of the studio",
                                         "Das Add-in %1 gehört zu einer anderen Version des Studios"};

com::Pointer<com::ILendingFactory> factoryOf(std::string_view programId) {
    CLSID id{};
    com::require(CLSIDFromProgID(com::toWide(programId).c_str(), &id));
    com::Pointer<com::ILendingFactory> factory;
    com::require(CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, __uuidof(com::ILendingFactory), factory.out()));
    return factory;
}

}  // namespace

class AddIns::Loader {
  public:
    explicit Loader(const QStringList& folders) : folders_(folders) {}

    const host::Services* services = nullptr;

    automation::ObjectRef create(std::string_view programId) {
        const QString file = qt::addInFile(folders_, programId);
        const com::ClassContext context(QDir::toNativeSeparators(file).toStdWString());
        com::Pointer<IUnknown> made;
        automation::ObjectRef direct;
        const HRESULT result = factoryOf(programId)->CreateLent(com::makeOfLenders, *services,
                                                                reinterpret_cast<IUnknown**>(made.out()), direct);
        if (result == E_NOINTERFACE) throw automation::Error(result, otherMake, {qt::fromQt(file)});
        com::require(result);
        auto served = com::Pointer<::CHX4Extensibility>::of(made.get(), __uuidof(::CHX4Extensibility));
        if (served) return std::make_shared<ServedAddIn>(std::move(served), std::move(direct), border_);
        return border_.take(com::Pointer<IDispatch>::of(made.get(), IID_IDispatch).get());
    }

  private:
    QStringList folders_;
    com::Border border_;
};

AddIns::AddIns(const QStringList& folders) : loader_(std::make_unique<Loader>(folders)) {}
AddIns::~AddIns() = default;

void AddIns::setServices(const host::Services& services) noexcept { loader_->services = &services; }
automation::ObjectRef AddIns::create(std::string_view programId) { return loader_->create(programId); }

}  // namespace hx::studio
