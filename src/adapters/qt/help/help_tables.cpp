// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_tables.h"

#include <QtEndian>

#include "adapters/qt/text.h"
#include "automation/text.h"
#include "automation/utf8.h"

namespace hx::qt {

namespace {

// "/#SYSTEM": a version, then entries of a code, a length and so many bytes.
constexpr qsizetype versionLength = 4, entryHeaderLength = 4;
enum SystemCode { contentsFile = 0, startTopic = 2, title = 3 };

constexpr qsizetype contextLength = 8;  // the number, and where its text stands in "/#STRINGS"

std::uint32_t number(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<std::uint32_t>(bytes.constData() + at);
}

std::uint16_t shortNumber(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<std::uint16_t>(bytes.constData() + at);
}

QByteArray upToZero(const QByteArray& bytes) {
    const qsizetype zero = bytes.indexOf('\0');
    return zero < 0 ? bytes : bytes.left(zero);
}

}  // namespace

QString decodeHelpText(const QByteArray& bytes) {
    const std::string text = bytes.toStdString();
    return toQt(automation::isUtf8(text) ? text : automation::fromWindows1252(text));
}

HelpSystem readHelpSystem(const QByteArray& system) {
    HelpSystem result;
    for (qsizetype at = versionLength; at + entryHeaderLength <= system.size();) {
        const int code = shortNumber(system, at);
        const qsizetype length = shortNumber(system, at + 2);
        at += entryHeaderLength;
        if (length > system.size() - at) break;
        const QString text = decodeHelpText(upToZero(system.mid(at, length)));
        if (code == contentsFile) result.contents = text;
        if (code == startTopic) result.start = text;
        if (code == title) result.title = text;
        at += length;
    }
    return result;
}

QMap<std::int32_t, QString> readHelpContexts(const QByteArray& table, const QByteArray& strings) {
    QMap<std::int32_t, QString> result;
    if (table.size() < 4) return result;
    const qsizetype end = std::min<qsizetype>(table.size(), qsizetype(4) + number(table, 0));
    for (qsizetype at = 4; at + contextLength <= end; at += contextLength) {
        const qsizetype place = number(table, at + 4);
        if (place >= strings.size()) continue;
        const QString path = decodeHelpText(upToZero(strings.mid(place)));
        if (!path.isEmpty()) result.insert(static_cast<std::int32_t>(number(table, at)), path);
    }
    return result;
}

}  // namespace hx::qt
