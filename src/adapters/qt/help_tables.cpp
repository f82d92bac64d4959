#include "adapters/qt/help_tables.h"

#include <QStringDecoder>
#include <QtEndian>

namespace hx::qt {

namespace {

// "/#SYSTEM": a version, then entries of a code, a length and so many bytes.
constexpr qsizetype versionLength = 4, entryHeaderLength = 4;
enum SystemCode { contentsFile = 0, startTopic = 2, title = 3 };

constexpr qsizetype contextLength = 8;  // the number, and where its text stands in "/#STRINGS"

// What the code page 1252 has where Latin 1 has control characters.
constexpr char16_t westernMarks[] =
    u"\u20ac\u0081\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152\u008d\u017d\u008f"
    u"\u0090\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153\u009d\u017e\u0178";

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

QString decodeWestern(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0) c = QChar(westernMarks[c.unicode() - 0x80]);
    }
    return text;
}

}  // namespace

QString decodeHelpText(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    return utf8.hasError() ? decodeWestern(bytes) : text;
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
