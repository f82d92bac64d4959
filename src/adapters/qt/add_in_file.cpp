// SPDX-License-Identifier: MIT
#include "adapters/qt/add_in_file.h"

#include <QDir>
#include <QFileInfo>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr automation::Sentence notInstalled{"The class %1 is not installed: there is no %2 in %3",
                                            "Die Klasse %1 ist nicht installiert: %2 gibt es nicht in %3"};

}  // namespace

QString addInFile(const QStringList& folders, std::string_view programId) {
    const QString name = toQt(programId.substr(0, programId.find('.')));
    const QString file = name + QStringLiteral(HX_MODULE_SUFFIX);
    for (const QString& folder : folders) {
        const QString path = QDir(folder).absoluteFilePath(file);
        if (!name.isEmpty() && QFileInfo(path).isFile()) return path;
    }
    throw automation::Error(errClassNotRegistered, notInstalled,
                            {programId, fromQt(file), fromQt(folders.join(QStringLiteral(", ")))});
}

}  // namespace hx::qt
