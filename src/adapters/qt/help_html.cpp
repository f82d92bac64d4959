#include "adapters/qt/help_html.h"

#include <QRegularExpression>
#include <array>

namespace hx::qt {

namespace {

constexpr auto ignoringCase = QRegularExpression::CaseInsensitiveOption;
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

QString without(QString html, const QString& element) {
    const QRegularExpression pattern(QStringLiteral("<%1\\b.*?</%1\\s*>").arg(element),
                                     ignoringCase | QRegularExpression::DotMatchesEverythingOption);
    return html.replace(pattern, QStringLiteral(" "));
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

QString plainText(const QString& html) {
    QString text = html;
    for (const char* element : {"head", "script", "style"}) text = without(text, QLatin1StringView(element));
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->"),
                                            QRegularExpression::DotMatchesEverythingOption);
    // Between letters these tags part no word.
    static const QRegularExpression inlineTag(QStringLiteral("</?(?:a|b|i|em|strong|kbd|code|span)\\b[^>]*>"),
                                              ignoringCase);
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    text.remove(comment).remove(inlineTag).replace(tag, QStringLiteral(" "));
    return decodeEntities(text).simplified();
}

QString titleOfHtml(const QString& html) {
    static const QRegularExpression pattern(QStringLiteral("<title\\b[^>]*>(.*?)</title"),
                                            ignoringCase | QRegularExpression::DotMatchesEverythingOption);
    return decodeEntities(pattern.match(html).captured(1)).simplified();
}

QStringList linksOfHtml(const QString& html) {
    static const QRegularExpression pattern(QStringLiteral("\\b(?:href|src)\\s*=\\s*[\"']([^\"']*)[\"']"),
                                            ignoringCase);
    QStringList links;
    for (auto matches = pattern.globalMatch(html); matches.hasNext();) {
        links.append(decodeEntities(matches.next().captured(1)));
    }
    return links;
}

}  // namespace hx::qt
