// SPDX-License-Identifier: MIT
#include "adapters/qt/module_components.h"

#include <QDir>
#include <QFileInfo>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

const QString moduleExtension = QStringLiteral(HX_MODULE_SUFFIX);

constexpr automation::Sentence unknownClass{"The module %1 does not know the class %2",
                                            "Das Modul %1 kennt die Klasse %2 nicht"};
constexpr automation::Sentence notInstalled{"The class %1 is not installed: there is no %2 in %3",
                                            "Die Klasse %1 ist nicht installiert: %2 gibt es nicht in %3"};
constexpr automation::Sentence notLoaded{"The module cannot be loaded: %1", "Das Modul lässt sich nicht laden: %1"};
constexpr automation::Sentence noModule{"The file %1 is no add-in module: it has no %2",
                                        "Die Datei %1 ist kein Add-in-Modul: %2 fehlt darin"};

}  // namespace

automation::ObjectRef ModuleComponents::create(std::string_view programId) {
    const QString name = toQt(programId.substr(0, programId.find('.')));
    const Module& module = load(find(name, programId));
    automation::ObjectRef object;
    module.entry(programId, module.services, object);
    if (!object) {
        throw automation::Error(errClassNotRegistered, unknownClass, {module.services.moduleFile, programId});
    }
    return object;
}

QString ModuleComponents::find(const QString& name, std::string_view programId) const {
    const QString file = name + moduleExtension;
    for (const QString& folder : folders_) {
        const QString path = QDir(folder).absoluteFilePath(file);
        if (!name.isEmpty() && QFileInfo(path).isFile()) return path;
    }
    throw automation::Error(errClassNotRegistered, notInstalled,
                            {programId, fromQt(file), fromQt(folders_.join(QStringLiteral(", ")))});
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
    services.libraryName = "HXRecipeEditor" HX_MODULE_SUFFIX;
    return modules_.emplace(path, Module{std::move(library), services, entry}).first->second;
}

}  // namespace hx::qt
