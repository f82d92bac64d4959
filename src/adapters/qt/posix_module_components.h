// SPDX-License-Identifier: MIT
#pragma once

#include <QLibrary>
#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <string>

#include "host/module.h"
#include "host/services.h"

namespace hx::qt {

/// Creates components from modules, the files that addInFile names. A module stays loaded.
class ModuleComponents : public host::Components {
  public:
    static constexpr std::int32_t errModuleNotLoaded = automation::hresult(0x8007007E);
    static constexpr std::int32_t errNoEntry = automation::hresult(0x8007007F);

    explicit ModuleComponents(QStringList folders) : folders_(std::move(folders)) {}
    /// What the created objects are lent; must be set before create() and outlive the objects.
    void setServices(const host::Services& services) noexcept { services_ = &services; }

    /// Throws errClassNotRegistered without a module or when it does not know the identifier, errModuleNotLoaded when
    /// the file cannot be loaded, errNoEntry when it is no add-in module; the description names the file.
    [[nodiscard]] automation::ObjectRef create(std::string_view programId) override;

  private:
    struct Module {
        std::unique_ptr<QLibrary> library;
        host::Services services;  ///< with the module's own file name
        host::ModuleEntry entry;
    };
    [[nodiscard]] const Module& load(const QString& path);

    QStringList folders_;
    const host::Services* services_ = nullptr;
    std::map<QString, Module> modules_;
};

}  // namespace hx::qt
