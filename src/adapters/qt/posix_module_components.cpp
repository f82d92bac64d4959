// SPDX-License-Identifier: MIT
#include "adapters/qt/posix_module_components.h"

#include "adapters/qt/add_in_file.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr automation::Sentence unknownClass{"The module %1 does not know the class %2",
                                            "Das Modul %1 kennt die Klasse %2 nicht"};
constexpr automation::Sentence notLoaded{"The module cannot be loaded: %1", "Das Modul lässt sich nicht laden: %1"};
constexpr automation::Sentence noModule{"The file %1 is no add-in module: it has no %2",
                                        "Die Datei %1 ist kein Add-in-Modul: %2 fehlt darin"};

}  // namespace

automation::ObjectRef ModuleComponents::create(std::string_view programId) {
    const Module& module = load(addInFile(folders_, programId));
    automation::ObjectRef object;
    module.entry(programId, module.services, object);
    if (!object) {
        throw automation::Error(errClassNotRegistered, unknownClass, {module.services.moduleFile, programId});
    }
    return object;
}

const ModuleComponents::Module& ModuleComponents::load(const QString& path) {
    if (const auto known = modules_.find(path); known != modules_.end()) return known->second;
    auto library = std::make_unique<QLibrary>(path);
    if (!library->load()) {
        throw automation::Error(errModuleNotLoaded, notLoaded, {fromQt(library->errorString())});
    }
    const auto entry = reinterpret_cast<host::ModuleEntry>(library->resolve(host::moduleEntryName));
    if (entry == nullptr) {
        throw automation::Error(errNoEntry, noModule, {fromQt(path), host::moduleEntryName});
    }
    host::Services services = *services_;
    services.moduleFile = fromQt(path);
    return modules_.emplace(path, Module{std::move(library), services, entry}).first->second;
}

}  // namespace hx::qt
