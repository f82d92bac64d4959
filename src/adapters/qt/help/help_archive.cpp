// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_archive.h"

#include <QFile>
#include <chm_lib.h>

#include "adapters/qt/help/help_file_check.h"

namespace hx::qt {

namespace {

constexpr qint64 largestFile = 64 << 20, largestObject = 16 << 20;

std::span<const std::uint8_t> bytesOf(const QByteArray& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

int addName(chmFile*, chmUnitInfo* object, void* names) {
    static_cast<QList<QByteArray>*>(names)->append(QByteArray(object->path));
    return CHM_ENUMERATOR_CONTINUE;
}

}  // namespace

void HelpArchive::Close::operator()(chmFile* file) const { chm_close(file); }

HelpArchive::HelpArchive(const QString& file) {
    QFile source(file);
    if (source.open(QIODevice::ReadOnly) && source.size() <= largestFile) load(source.read(largestFile));
}

void HelpArchive::load(const QByteArray& bytes) {
    if (!isSoundHelpFile(bytesOf(bytes)) || !copy_.open()) return;
    if (copy_.write(bytes) != bytes.size() || !copy_.flush()) return;
    file_.reset(chm_open(copy_.fileName().toUtf8().constData()));
    if (file_) list();
}

void HelpArchive::list() {
    QList<QByteArray> names;
    chm_enumerate(file_.get(), CHM_ENUMERATE_ALL, addName, &names);
    for (const QByteArray& name : names) {
        const QString path = QString::fromUtf8(name);
        names_.insert(path.toLower(), name);
        const bool own = path.startsWith(QStringLiteral("/#")) || path.startsWith(QStringLiteral("/$"));
        if (path.startsWith('/') && !path.endsWith('/') && !own) paths_.append(path);
    }
}

std::optional<QByteArray> HelpArchive::read(const QString& path) const {
    const auto name = names_.constFind(path.toLower());
    chmUnitInfo object;
    if (name == names_.constEnd()) return std::nullopt;
    if (chm_resolve_object(file_.get(), name->constData(), &object) != CHM_RESOLVE_SUCCESS) return std::nullopt;
    const auto length = static_cast<qint64>(object.length);
    if (length < 0 || length > largestObject) return std::nullopt;
    QByteArray bytes(length, '\0');
    auto* place = reinterpret_cast<unsigned char*>(bytes.data());
    if (length > 0 && chm_retrieve_object(file_.get(), &object, place, 0, length) != length) return std::nullopt;
    return bytes;
}

}  // namespace hx::qt
