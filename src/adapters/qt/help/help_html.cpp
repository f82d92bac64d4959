// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_html.h"

#include <QRegularExpression>
#include <array>

namespace hx::qt {

namespace {

constexpr qsizetype longestEntity = 10;

struct Entity {
    QLatin1StringView name;
    char32_t character;
};

constexpr auto entities = std::to_array<Entity>({
    {QLatin1StringView("amp"), '&'},      {QLatin1StringView("lt"), '<'},        {QLatin1StringView("gt"), '>'},
    {QLatin1StringView("quot"), '"'},     {QLatin1StringView("apos"), '\''},     {QLatin1StringView("nbsp"), 0xA0},
    {QLatin1StringView("auml"), 0xE4},    {QLatin1StringView("ouml"), 0xF6},     {QLatin1StringView("uuml"), 0xFC},
    {QLatin1StringView("Auml"), 0xC4},    {QLatin1StringView("Ouml"), 0xD6},     {QLatin1StringView("Uuml"), 0xDC},
    {QLatin1StringView("szlig"), 0xDF},   {QLatin1StringView("ndash"), 0x2013},  {QLatin1StringView("mdash"), 0x2014},
    {QLatin1StringView("rarr"), 0x2192},  {QLatin1StringView("hellip"), 0x2026}, {QLatin1StringView("bdquo"), 0x201E},
    {QLatin1StringView("ldquo"), 0x201C}, {QLatin1StringView("rdquo"), 0x201D},
});

// The character that a name between "&" and ";" stands for, 0 for an unknown one.
char32_t characterOf(const QString& name) {
    if (name.startsWith('#')) {
        const bool hexadecimal = name.mid(1, 1).toLower() == QStringLiteral("x");
        const uint code = hexadecimal ? name.mid(2).toUInt(nullptr, 16) : name.mid(1).toUInt();
        return code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code) ? code : 0;
    }
    for (const Entity& entity : entities) {
        if (name == entity.name) return entity.character;
    }
    return 0;
}

// Whether the tag of an element begins there.
bool isTagOf(QStringView html, qsizetype at, QLatin1StringView name) {
    const QStringView rest = html.sliced(at + 1);
    if (!rest.startsWith(name, Qt::CaseInsensitive)) return false;
    return rest.size() == name.size() || !rest[name.size()].isLetterOrNumber();
}

// Behind the end of what begins there, or -1 without an end. A text of beginnings alone is searched once.
qsizetype behind(QStringView html, const QString& end, qsizetype at) {
    const qsizetype found = html.indexOf(end, at, Qt::CaseInsensitive);
    return found < 0 ? -1 : found + end.size();
}

// Between letters these tags part no word.
bool isInline(QStringView tag) {
    static const QStringList names{QStringLiteral("a"),    QStringLiteral("b"),      QStringLiteral("i"),
                                   QStringLiteral("em"),   QStringLiteral("strong"), QStringLiteral("kbd"),
                                   QStringLiteral("code"), QStringLiteral("span")};
    qsizetype begin = tag.startsWith('/') ? 1 : 0, end = begin;
    while (end < tag.size() && tag[end].isLetterOrNumber()) ++end;
    return names.contains(tag.sliced(begin, end - begin), Qt::CaseInsensitive);
}

// Behind a tag, a comment, or an element whose content nobody reads; -1 when it has no end.
qsizetype behindMarkup(QStringView html, qsizetype at) {
    if (html.sliced(at).startsWith(QStringLiteral("<!--"))) return behind(html, QStringLiteral("-->"), at);
    for (const char* element : {"head", "script", "style"}) {
        const QLatin1StringView name(element);
        if (!isTagOf(html, at, name)) continue;
        const qsizetype end = behind(html, QStringLiteral("</") + name, at);
        return end < 0 ? -1 : behind(html, QStringLiteral(">"), end);
    }
    return behind(html, QStringLiteral(">"), at);
}

}  // namespace

QString decodeEntities(const QString& text) {
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QString name = text[at] == '&' ? text.mid(at + 1, longestEntity).section(';', 0, 0) : QString();
        const char32_t character = text.mid(at + 1 + name.size(), 1) == QStringLiteral(";") ? characterOf(name) : 0;
        if (character == 0) {
            result += text[at];
            continue;
        }
        result += QString::fromUcs4(&character, 1);
        at += name.size() + 1;
    }
    return result;
}

// Not by QTextDocument: it wants an application with fonts and takes seven times as long for topics of ours; for 65,536
// times "<b>" it takes 90 s, this 7 ms.
QString plainText(const QString& html) {
    QString text;
    for (qsizetype at = 0; at < html.size();) {
        const qsizetype tag = html.indexOf('<', at);
        text += QStringView(html).sliced(at, (tag < 0 ? html.size() : tag) - at);
        if (tag < 0) break;
        at = behindMarkup(html, tag);
        if (at < 0) return decodeEntities(text + html.sliced(tag)).simplified();
        const QStringView markup = QStringView(html).sliced(tag + 1, at - tag - 1);
        if (!markup.startsWith(QStringLiteral("!--")) && !isInline(markup)) text += ' ';
    }
    return decodeEntities(text).simplified();
}

QString titleOfHtml(const QString& html) {
    static const QRegularExpression title(QStringLiteral("<title[^<>]*>([^<]*)</title"),
                                          QRegularExpression::CaseInsensitiveOption);
    return decodeEntities(title.match(html).captured(1)).simplified();
}

}  // namespace hx::qt
