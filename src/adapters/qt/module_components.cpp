#include "adapters/qt/module_components.h"

#include <QDir>
#include <QFileInfo>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

const QString moduleExtension = QStringLiteral(".so");

}  // namespace

automation::ObjectRef ModuleComponents::create(std::string_view programId) {
    const QString name = toQt(programId.substr(0, programId.find('.')));
    const Module& module = load(find(name, programId));
    automation::ObjectRef object;
    module.entry(programId, module.services, object);
    if (!object) {
        throw automation::Error(errClassNotRegistered, "The module " + module.services.moduleFile +
                                                           " does not know the class " + std::string(programId));
    }
    return object;
}

QString ModuleComponents::find(const QString& name, std::string_view programId) const {
    const QString file = name + moduleExtension;
    for (const QString& folder : folders_) {
        const QString path = QDir(folder).absoluteFilePath(file);
        if (!name.isEmpty() && QFileInfo(path).isFile()) return path;
    }
    throw automation::Error(errClassNotRegistered, "The class " + std::string(programId) +
                                                       " is not installed: there is no " + fromQt(file) + " in " +
                                                       fromQt(folders_.join(QStringLiteral(", "))));
}

const ModuleComponents::Module& ModuleComponents::load(const QString& path) {
    if (const auto known = modules_.find(path); known != modules_.end()) return known->second;
    auto library = std::make_unique<QLibrary>(path);
    if (!library->load()) {
        throw automation::Error(errModuleNotLoaded, "The module cannot be loaded: " + fromQt(library->errorString()));
    }
    const auto entry = reinterpret_cast<host::ModuleEntry>(library->resolve(host::moduleEntryName));
    if (entry == nullptr) {
        throw automation::Error(
            errNoEntry, "The file " + fromQt(path) + " is no add-in module: it has no " + host::moduleEntryName);
    }
    host::Services services = *services_;
    services.moduleFile = fromQt(path);
    return modules_.emplace(path, Module{std::move(library), services, entry}).first->second;
}

}  // namespace hx::qt
