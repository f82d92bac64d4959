// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <random>

#include "adapters/qt/help/help_html.h"
#include "adapters/qt/help/help_site_map.h"
#include "adapters/qt/help/help_tables.h"
#include "adapters/qt/text.h"

namespace hx::help {
namespace {

QByteArray number(std::uint32_t value) {
    QByteArray bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> 8 * i);
    return bytes;
}

QByteArray entry(int code, const QByteArray& text) {
    return number(static_cast<std::uint32_t>(code | static_cast<int>(text.size()) << 16)) + text;
}

TEST(HelpTables, TheContextsOfATableAreReadWithTheirTexts) {
    const QByteArray strings("a.htm\0b.htm\0", 12);
    const auto contexts =
        qt::readHelpContexts(number(16) + number(100001) + number(0) + number(100019) + number(6), strings);
    EXPECT_EQ(contexts, (QMap<std::int32_t, QString>{{100001, "a.htm"}, {100019, "b.htm"}}));
}

TEST(HelpTables, WhatLeadsOutOfTheTablesIsLeftOut) {
    const QByteArray strings("a.htm\0b.h", 9);
    const QByteArray table =
        number(0xFFFFFFFF) + number(1) + number(0) + number(2) + number(0xFFFFFFF0) + number(3) + number(6) + number(4);
    EXPECT_EQ(qt::readHelpContexts(table, strings), (QMap<std::int32_t, QString>{{1, "a.htm"}, {3, "b.h"}}));
    EXPECT_TRUE(qt::readHelpContexts({}, strings).isEmpty());
    EXPECT_TRUE(qt::readHelpContexts("abc", strings).isEmpty());
    EXPECT_TRUE(qt::readHelpContexts(table, {}).isEmpty());
}

TEST(HelpTables, TheSystemTableNamesTitleContentsAndFirstTopic) {
    const QByteArray table = number(3) + entry(2, QByteArray("a.htm\0", 6)) + entry(9, "x") +
                             entry(3, QByteArray("Men\xFC\0", 5)) + entry(0, "c.hhc");
    const qt::HelpSystem system = qt::readHelpSystem(table);
    EXPECT_EQ(system.title, "Menü");
    EXPECT_EQ(system.start, "a.htm");
    EXPECT_EQ(system.contents, "c.hhc");
}

TEST(HelpTables, ASystemTableThatEndsTooSoonGivesWhatItHas) {
    const QByteArray table = number(3) + entry(2, "a.htm") + entry(3, "Title").chopped(1);
    EXPECT_EQ(qt::readHelpSystem(table).start, "a.htm");
    EXPECT_EQ(qt::readHelpSystem(table).title, "");
    EXPECT_EQ(qt::readHelpSystem("ab").start, "");
}

TEST(HelpTables, TextIsUtf8OrElseWestern) {
    EXPECT_EQ(qt::decodeHelpText("Größe"), "Größe");
    EXPECT_EQ(qt::decodeHelpText("Gr\xF6\xDF"
                                 "e \x84x\x93 \x80"),
              "Größe „x“ €");
}

TEST(HelpSiteMap, ListsAreLevelsAndObjectsAreEntries) {
    const auto entries = qt::readSiteMap(
        "<UL><LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"A &amp; B\"><param name='Local' "
        "value=a.htm>"
        "</OBJECT><UL><LI><OBJECT><param name=\"Name\" value=\"C\"><param name=\"Local\" value=\"c.htm\"></OBJECT></UL>"
        "<LI><OBJECT><param name=\"Name\" value=\"D\"></OBJECT></UL>");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].title, "A & B");
    EXPECT_EQ(entries[0].path, "a.htm");
    ASSERT_EQ(entries[0].children.size(), 1u);
    EXPECT_EQ(entries[0].children[0].title, "C");
    EXPECT_EQ(entries[1].title, "D");
    EXPECT_EQ(entries[1].path, "");
}

TEST(HelpSiteMap, AnUntidyMapIsReadAsFarAsItGoes) {
    const auto entries = qt::readSiteMap(
        "</ul></ul><object><param name=Name value=A></object><ul><ul><object><param name=name value=\"B\"></object>"
        "<object></object><param name=\"Name\" value=\"no object\"><object><param");
    ASSERT_EQ(entries.size(), 1u);
    ASSERT_EQ(entries[0].children.size(), 1u);
    EXPECT_EQ(entries[0].children[0].title, "B");
}

TEST(HelpSiteMap, AThousandLevelsAreNotTooMany) {
    QString html;
    for (int i = 0; i < 1000; ++i) html += "<ul><object><param name=\"Name\" value=\"x\"></object>";
    for (int i = 0; i < 1000; ++i) html += "</ul>";
    html += "<object><param name=\"Name\" value=\"last\"></object>";
    const auto entries = qt::readSiteMap(html);
    ASSERT_FALSE(entries.empty());
    EXPECT_EQ(entries.back().title, "last");
}

TEST(HelpHtml, ThePlainTextHasNoTagsScriptsAndEntities) {
    EXPECT_EQ(qt::plainText("<head><title>T</title></head><body><style>p{}</style><p>Ein&nbsp;<b>Re</b>zept</p>"
                            "<!-- <p>nichts --><p>a&#228;&#xE4;&lt;b&unknown;&"),
              QString("Ein Rezept aää<b&unknown;&"));
}

TEST(HelpHtml, TheTitleIsFoundInAnyCase) {
    EXPECT_EQ(qt::titleOfHtml("<HTML><TITLE lang=de>\n Men&uuml;s\n</TITLE>"), "Menüs");
    EXPECT_EQ(qt::titleOfHtml("<p>none</p>"), "");
}

TEST(HelpHtml, NoNumberIsACharacterThatIsNone) {
    EXPECT_EQ(qt::decodeEntities("&#0;&#xD800;&#1114112;&#99999999999;"), "&#0;&#xD800;&#1114112;&#99999999999;");
}

// Any bytes at all are read by every reader, without an end of the program.
TEST(HelpReading, NoBytesAreTooStrange) {
    std::mt19937 random(7);  // NOLINT: the same bytes at each run
    std::size_t read = 0;
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes;
        const std::string parts = "<ulobject/>&;#\"'= param name value \n";
        for (int i = 0; i < 400; ++i) {
            bytes += round % 2 == 0 ? static_cast<char>(random()) : parts[random() % parts.size()];
        }
        const QString text = qt::decodeHelpText(bytes);
        read += qt::readSiteMap(text).size() + static_cast<std::size_t>(qt::plainText(text).size());
        (void)qt::readHelpSystem(bytes);
        (void)qt::readHelpContexts(bytes, bytes);
    }
    EXPECT_GT(read, 0u);
}

}  // namespace
}  // namespace hx::help
