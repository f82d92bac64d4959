// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_limits.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>

#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_html.h"
#include "adapters/qt/help/help_site_map.h"
#include "adapters/qt/text.h"
#include "help/compiled_help.h"

namespace hx::help {
namespace {

QString nested(const char* tag, int count) {
    return QStringLiteral("<%1>x").arg(QLatin1StringView(tag)).repeated(count);
}

QByteArray picture(const QSize& size, const char* format) {
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

TEST(HelpLimits, EveryTopicOfOursIsLaidOut) {
    for (const char* language : {"de", "en"}) {
        const qt::HelpBook book(compiledHelp(language));
        ASSERT_TRUE(book.isOpen());
        for (const QString& path : book.topics()) EXPECT_TRUE(qt::canBeLaidOut(book.topic(path))) << qt::fromQt(path);
    }
}

TEST(HelpLimits, TablesAndElementsAreNestedOnlySoDeep) {
    EXPECT_TRUE(qt::canBeLaidOut(nested("table", 5)));
    EXPECT_FALSE(qt::canBeLaidOut(nested("table", 24)));
    EXPECT_TRUE(qt::canBeLaidOut(QStringLiteral("<table><tr><td>x</table>").repeated(100)));
    EXPECT_TRUE(qt::canBeLaidOut(nested("div", 90)));
    EXPECT_FALSE(qt::canBeLaidOut(nested("div", 500)));
    EXPECT_TRUE(qt::canBeLaidOut(nested("p", 500) + nested("li", 500) + nested("br", 500)));
}

TEST(HelpLimits, AnEndThatIsNoneEndsNothing) {
    for (const char* end : {"<!-- </table> -->", "<a title=\"</table>\">", "<a title='</table>'>", "<! </table>",
                            "</ tables>", "<a </table x>"}) {
        EXPECT_FALSE(qt::canBeLaidOut(("<table><tr><td>" + QString::fromLatin1(end)).repeated(24))) << end;
    }
}

TEST(HelpLimits, SizeTagsPicturesRulesAndRunsAreLimited) {
    EXPECT_FALSE(qt::canBeLaidOut(QStringLiteral("word ").repeated(100'000)));
    EXPECT_FALSE(qt::canBeLaidOut(QStringLiteral("<p>x").repeated(20'000)));
    EXPECT_FALSE(qt::canBeLaidOut(QStringLiteral("<img src=a.png>").repeated(1000)));
    EXPECT_FALSE(qt::canBeLaidOut("<style>" + QStringLiteral("p{} ").repeated(5000) + "</style>"));
    EXPECT_FALSE(qt::canBeLaidOut(QString(100'000, 'x')));
    EXPECT_FALSE(qt::canBeLaidOut(QStringLiteral("<td colspan=\"20480\">")));
}

TEST(HelpLimits, TheTextAloneIsPlain) {
    const QString text = qt::textAlone(QStringLiteral("<p>a &lt;b&gt;</p>") + nested("table", 30));
    EXPECT_TRUE(text.startsWith(QStringLiteral("<p>a &lt;b&gt; x x"))) << qt::fromQt(text);
    EXPECT_TRUE(qt::canBeLaidOut(text));
    EXPECT_TRUE(qt::canBeLaidOut(qt::textAlone(QString(1'000'000, 'x'))));
}

TEST(HelpLimits, PicturesAreOfPixelsAndNotTooLarge) {
    EXPECT_TRUE(qt::canBeShown(picture({600, 400}, "png")));
    EXPECT_FALSE(qt::canBeShown(picture({20'000, 20'000}, "png")));
    EXPECT_FALSE(qt::canBeShown("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>"));
    EXPECT_FALSE(qt::canBeShown(""));
}

// None of these would come to an end if each beginning were followed to the end of the text.
TEST(HelpLimits, BeginningsWithoutAnEndAreReadOnce) {
    for (const char* beginning : {"<", "<!--", "<head>", "<title>", "<style x='", "<b "}) {
        const QString html = QString::fromLatin1(beginning).repeated(1 << 20);
        // The tags of a title are whole, and no letter stands between them: nothing is left.
        EXPECT_EQ(qt::plainText(html).isEmpty(), beginning == std::string_view("<title>")) << beginning;
        EXPECT_EQ(qt::titleOfHtml(html), "") << beginning;
    }
}

TEST(HelpLimits, AMapOfParametersWithoutEndIsReadAsFarAsAMapGoes) {
    const QString entry = QStringLiteral("<object><param name=\"Name\" value=\"%1\"></object>");
    const auto entries =
        qt::readSiteMap(entry.arg("first") + QStringLiteral("<param name=x>").repeated(600'000) + entry.arg("last"));
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().title, "first");
}

}  // namespace
}  // namespace hx::help
