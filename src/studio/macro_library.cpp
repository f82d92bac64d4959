// SPDX-License-Identifier: MIT
#include "studio/macro_library.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>

#include "adapters/qt/text.h"
#include "automation/error.h"
#include "hosting/file_bytes.h"
#include "hosting/file_replacement.h"

namespace hx::studio {

namespace {

const QStringList macroNames{QStringLiteral("*.lua")};
constexpr qint64 hintSearched = 4096;  // bytes

QStringList byName(QStringList names) {
    // The language of the environment may order by bytes alone.
    QCollator order{QLocale(QLocale::German)};
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(names, [&](const QString& a, const QString& b) { return order.compare(a, b) < 0; });
    return names;
}

// The dashes of a comment, the brackets of a long one, and lines drawn with them.
QString withoutMarks(QString line) {
    line = line.trimmed();
    while (line.startsWith('-') || line.startsWith('[') || line.startsWith('=')) line.remove(0, 1);
    if (line.endsWith(QStringLiteral("]]"))) line.chop(2);
    return line.trimmed();
}

QString hintOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QString start = QString::fromUtf8(file.read(hintSearched));
    bool inComment = false;
    for (const QString& line : start.split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith(QStringLiteral("#!"))) continue;
        inComment = inComment || line.trimmed().startsWith(QStringLiteral("--"));
        if (!inComment) return {};
        if (const QString text = withoutMarks(line); !text.isEmpty()) return text;
    }
    return {};
}

MacroFolder read(const QString& name, const QDir& folder) {
    MacroFolder found{name, {}};
    for (const QString& file : byName(folder.entryList(macroNames, QDir::Files | QDir::Readable))) {
        const QString path = folder.absoluteFilePath(file);
        found.macros.append({QFileInfo(file).completeBaseName(), path, hintOf(path)});
    }
    return found;
}

// What was installed for all may be protected; the copy is the user's own.
bool copyFile(const QString& from, const QString& to) {
    try {
        const auto bytes = hosting::readFile(hosting::fileSystemPath(qt::fromQt(from)));
        hosting::FileReplacement file(hosting::fileSystemPath(qt::fromQt(to)));
        file.write(bytes.value_or(""));
        return bytes && file.publishNew();
    } catch (const automation::Error&) {
        return false;
    }
}

}  // namespace

MacroLibrary::MacroLibrary(QString folder, QStringList programFolders)
    : folder_(std::move(folder)), programFolders_(std::move(programFolders)) {}

QList<MacroFolder> MacroLibrary::list() const {
    const QDir root(folder_);
    QList<MacroFolder> all{read({}, root)};
    for (const QString& name : byName(root.entryList(QDir::Dirs | QDir::NoDotAndDotDot))) {
        MacroFolder inner = read(name, root.absoluteFilePath(name));
        if (!inner.macros.isEmpty()) all.append(std::move(inner));
    }
    return all;
}

bool MacroLibrary::makeFolder() const { return QDir().mkpath(folder_); }

QString MacroLibrary::sampleFolder() const { return QDir(folder_).absoluteFilePath(QStringLiteral("samples")); }

QStringList MacroLibrary::samples() const {
    QStringList paths;
    for (const QString& folder : programFolders_) {
        const QDir macros(QDir(folder).absoluteFilePath(QStringLiteral("macros")));
        for (const QString& name : macros.entryList(macroNames, QDir::Files))
            paths.append(macros.absoluteFilePath(name));
        if (!paths.isEmpty()) break;
    }
    return paths;
}

int MacroLibrary::copySamples() const {
    const QDir target(sampleFolder());
    if (!QDir().mkpath(target.path())) return -1;
    int copied = 0;
    for (const QString& path : samples()) {
        const QString copy = target.absoluteFilePath(QFileInfo(path).fileName());
        if (QFileInfo::exists(copy)) continue;
        if (!copyFile(path, copy)) return -1;
        ++copied;
    }
    return copied;
}

}  // namespace hx::studio
