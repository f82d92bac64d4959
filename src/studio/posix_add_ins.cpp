// SPDX-License-Identifier: MIT
#include "adapters/qt/posix_module_components.h"
#include "studio/add_ins.h"

namespace hx::studio {

class AddIns::Loader : public qt::ModuleComponents {
  public:
    using ModuleComponents::ModuleComponents;
};

AddIns::AddIns(const QStringList& folders) : loader_(std::make_unique<Loader>(folders)) {}
AddIns::~AddIns() = default;

void AddIns::setServices(const host::Services& services) noexcept { loader_->setServices(services); }
automation::ObjectRef AddIns::create(std::string_view programId) { return loader_->create(programId); }

}  // namespace hx::studio
