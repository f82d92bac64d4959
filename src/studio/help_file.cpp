// SPDX-License-Identifier: MIT
#include "studio/help_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "automation/error.h"
#include "hosting/file_bytes.h"

namespace hx::studio {

namespace {

namespace keys = host::registry_keys;

constexpr std::string_view commonValue = "Common";
const QString fileName = QStringLiteral("Rezeptsystem.chm");

// Beside the help: the sums of the files that the studio put there, a line each.
const QString recordSuffix = QStringLiteral(".installed");

QByteArray read(const QString& path) {
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& bytes) {
    try {
        hosting::replaceFile(hosting::fileSystemPath(qt::fromQt(path)), bytes.toStdString());
        return true;
    } catch (const automation::Error&) {
        return false;
    }
}

QByteArray sumOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

bool isRecorded(const QString& path, const QByteArray& sum) {
    return read(path + recordSuffix).split('\n').contains(sum);
}

// The record is written first: at whatever moment this ends, the file that is there is known as the studio's.
bool replace(const QString& path, const QByteArray& before, const QByteArray& bytes) {
    QByteArray record = sumOf(bytes) + '\n';
    if (!before.isEmpty()) record += sumOf(before) + '\n';
    return write(path + recordSuffix, record) && write(path, bytes);
}

}  // namespace

HelpFile::HelpFile(host::Registry& registry, const QStringList& folders, QString usualCommon)
    : registry_(registry), folders_(folders), usualCommon_(std::move(usualCommon)) {}

void HelpFile::nameCommonFolder() {
    if (!registry_.readString(keys::tarnwell, commonValue).empty()) return;
    registry_.writeString(keys::tarnwell, commonValue, qt::fromQt(usualCommon_));
}

QString HelpFile::path() const {
    const QString common = qt::toQt(registry_.readString(keys::tarnwell, commonValue)).replace('\\', '/');
    return common + QStringLiteral("/helpfiles/") + fileName;
}

QString HelpFile::source(std::int32_t lcid) const {
    const QString language = lcid == qt::Wording::english ? QStringLiteral("en") : QStringLiteral("de");
    for (const QString& folder : folders_) {
        const QString file = QStringLiteral("%1/help/%2/%3").arg(folder, language, fileName);
        if (QFileInfo(file).isFile()) return file;
    }
    return {};
}

HelpFile::Result HelpFile::install(std::int32_t lcid) {
    const QString target = path();
    const QByteArray wanted = read(source(lcid));
    // A folder of another system, such as "C:\Shared", is no place for it here.
    if (wanted.isEmpty() || !QDir::isAbsolutePath(target) || target.startsWith(QStringLiteral("/helpfiles/"))) {
        return Result::absent;
    }
    const bool exists = QFileInfo::exists(target) || QFileInfo(target).isSymLink();
    const QByteArray present = read(target);
    if (exists && present == wanted) {
        // Known as the studio's from now on; a folder that cannot be written does no harm.
        if (!isRecorded(target, sumOf(present))) write(target + recordSuffix, sumOf(present) + '\n');
        return Result::ready;
    }
    if (exists && !isRecorded(target, sumOf(present))) return Result::foreign;
    if (!QDir().mkpath(QFileInfo(target).absolutePath())) return Result::failed;
    return replace(target, present, wanted) ? Result::ready : Result::failed;
}

}  // namespace hx::studio
