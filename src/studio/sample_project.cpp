// SPDX-License-Identifier: MIT
#include "studio/sample_project.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace hx::studio {

namespace {

const QString sampleName = QStringLiteral("Getraenkelinie");
const QString sampleFile = sampleName + QStringLiteral(".hxs");

}  // namespace

QString sampleProject(const QStringList& programFolders) {
    for (const QString& folder : programFolders) {
        QString file = folder + QStringLiteral("/samples/") + sampleFile;
        if (QFileInfo(file).isFile()) return file;
    }
    return {};
}

QString copyOfSample() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return documents + QStringLiteral("/HelvixStudio/") + sampleName + '/' + sampleFile;
}

bool copySample(const QString& sample) {
    const QString copy = copyOfSample();
    if (QFileInfo::exists(copy)) return true;
    QDir().mkpath(QFileInfo(copy).absolutePath());
    return QFile::copy(sample, copy) && QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
}

}  // namespace hx::studio
