// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_book.h"

#include <QRegularExpression>
#include <gmock/gmock.h>
#include <map>
#include <set>

#include "adapters/qt/help/help_html.h"
#include "adapters/qt/text.h"
#include "help/compiled_help.h"
#include "resources/help.h"

namespace hx::help {
namespace {

using qt::HelpBook;
using qt::HelpEntry;
namespace context = resources::help_context;
using Titles = std::map<std::int32_t, std::string>;

const Titles germanTitles = {{context::root, "Rezepte"},
                             {context::recipe, "Ein Rezept"},
                             {context::subRecipes, "Unterrezepte"},
                             {context::recipeDialog, "Rezeptdefinition"},
                             {context::subRecipeDialog, "Unterrezept auswählen"},
                             {context::itemsDialog, "Variablenauswahl"},
                             {context::configurationDialog, "Optionen"},
                             {context::grid, "Gitter und Zellen"},
                             {context::keys, "Tasten"},
                             {context::overview, "Das Rezeptsystem im Überblick"},
                             {context::menus, "Menüs und Befehle"},
                             {context::report, "Report"},
                             {context::settings, "Einstellungen und Sprache"},
                             {context::messages, "Meldungen und was zu tun ist"},
                             {context::history, "Rückgängig und Verlauf"},
                             {context::find, "Suchen und Probleme"},
                             {context::variables, "Variablenliste"}};

const Titles englishTitles = {{context::root, "Recipes"},
                              {context::recipe, "A Recipe"},
                              {context::subRecipes, "Sub-Recipes"},
                              {context::recipeDialog, "Recipe Definition"},
                              {context::subRecipeDialog, "Select Sub Recipe"},
                              {context::itemsDialog, "Variable Selection"},
                              {context::configurationDialog, "Options"},
                              {context::grid, "Grid and Cells"},
                              {context::keys, "Keys"},
                              {context::overview, "The Recipe System at a Glance"},
                              {context::menus, "Menus and Commands"},
                              {context::report, "Report"},
                              {context::settings, "Settings and Language"},
                              {context::messages, "Messages and What to Do"},
                              {context::history, "Undo and History"},
                              {context::find, "Search and Problems"},
                              {context::variables, "Variable List"}};

QStringList linksOf(const QString& html) {
    static const QRegularExpression pattern(QStringLiteral("\\b(?:href|src)=\"([^\"]*)\""));
    QStringList links;
    for (auto matches = pattern.globalMatch(html); matches.hasNext();) links.append(matches.next().captured(1));
    return links;
}

void collect(const std::vector<HelpEntry>& entries, std::multiset<std::string>& paths) {
    for (const HelpEntry& entry : entries) {
        if (!entry.path.isEmpty()) paths.insert(qt::fromQt(qt::helpPath(entry.path)));
        collect(entry.children, paths);
    }
}

std::multiset<std::string> topicsOf(const HelpBook& book) {
    std::multiset<std::string> paths;
    for (const QString& path : book.topics()) paths.insert(qt::fromQt(path));
    return paths;
}

class CompiledHelp : public testing::TestWithParam<const char*> {
  protected:
    HelpBook book{compiledHelp(GetParam())};
    [[nodiscard]] bool german() const { return std::string(GetParam()) == "de"; }
};

INSTANTIATE_TEST_SUITE_P(Languages, CompiledHelp, testing::Values("de", "en"),
                         [](const auto& language) { return std::string(language.param); });

TEST_P(CompiledHelp, IsASoundFileWithItsTitleAndFirstTopic) {
    ASSERT_TRUE(book.isOpen());
    EXPECT_EQ(book.title(), german() ? "Hilfe zum Rezeptsystem" : "Recipe System Help");
    EXPECT_EQ(book.startTopic(), "/overview.htm");
}

TEST_P(CompiledHelp, EveryContextNumberOpensItsTopic) {
    Titles titles;
    for (auto at = book.contexts().begin(); at != book.contexts().end(); ++at) {
        titles[at.key()] = qt::fromQt(qt::titleOfHtml(book.topic(at.value())));
    }
    EXPECT_EQ(titles, german() ? germanTitles : englishTitles);
}

TEST(HelpContexts, TheNumbersThatAreSettledAreThose) {
    EXPECT_EQ(context::root, 100001);
    EXPECT_EQ(context::recipe, 100019);
    EXPECT_EQ(context::subRecipes, 100020);
}

TEST_P(CompiledHelp, EveryTopicHasAContextNumber) {
    std::multiset<std::string> reached;
    for (const QString& path : book.contexts()) reached.insert(qt::fromQt(path));
    EXPECT_EQ(reached, topicsOf(book));
}

// Any reader finds the topics: none needs to know where the help was compiled.
TEST_P(CompiledHelp, TheContextNumbersNameTopicsWithoutAFolder) {
    const qt::HelpArchive archive(compiledHelp(GetParam()));
    const auto contexts = qt::readHelpContexts(archive.read("/#IVB").value(), archive.read("/#STRINGS").value());
    EXPECT_EQ(contexts.size(), 17);
    for (const QString& path : contexts) EXPECT_FALSE(path.contains('/')) << qt::fromQt(path);
}

TEST_P(CompiledHelp, TheContentsListEveryTopicOnce) {
    std::multiset<std::string> listed;
    collect(book.contents(), listed);
    EXPECT_EQ(listed, topicsOf(book));
}

TEST_P(CompiledHelp, TheContentsNameTheTopicsAsTheyNameThemselves) {
    for (const QString& path : book.topics()) {
        EXPECT_EQ(book.titleOf(path), qt::titleOfHtml(book.topic(path))) << qt::fromQt(path);
    }
}

TEST_P(CompiledHelp, EveryLinkAndPictureOfATopicIsInTheFile) {
    int links = 0;
    for (const QString& path : book.topics()) {
        for (const QString& link : linksOf(book.topic(path))) {
            EXPECT_TRUE(book.contains(link)) << qt::fromQt(path) << " leads to " << qt::fromQt(link);
            ++links;
        }
    }
    EXPECT_GT(links, 60);
    EXPECT_TRUE(book.read("/structure.png").value().startsWith("\x89PNG"));
}

TEST_P(CompiledHelp, EveryEntryOfTheIndexLeadsToATopic) {
    const auto entries = qt::readSiteMap(qt::decodeHelpText(book.read("/index.hhk").value()));
    EXPECT_GT(entries.size(), 40u);
    for (const HelpEntry& entry : entries) EXPECT_TRUE(book.contains(entry.path)) << qt::fromQt(entry.title);
}

TEST_P(CompiledHelp, EveryTopicCanBeReachedByLinksFromTheFirst) {
    std::set<QString> reached = {book.startTopic()};
    for (QStringList waiting = {book.startTopic()}; !waiting.isEmpty();) {
        for (const QString& link : linksOf(book.topic(waiting.takeFirst()))) {
            const QString path = qt::helpPath(link);
            if (path.endsWith(".htm") && reached.insert(path).second) waiting.append(path);
        }
    }
    EXPECT_EQ(reached.size(), static_cast<std::size_t>(book.topics().size()));
}

TEST(CompiledHelpLanguages, GermanAndEnglishHaveTheSameTopicsAndNumbers) {
    const HelpBook german(compiledHelp("de")), english(compiledHelp("en"));
    EXPECT_EQ(topicsOf(german), topicsOf(english));
    EXPECT_EQ(german.contexts(), english.contexts());
}

TEST(CompiledHelpLanguages, ATopicHasTheSameSectionsInBothLanguages) {
    const HelpBook german(compiledHelp("de")), english(compiledHelp("en"));
    for (const QString& path : german.topics()) {
        for (const char* mark : {"<h2", "<tr", "<li", "class=\"note\"", "class=\"tip\"", "href="}) {
            EXPECT_EQ(german.topic(path).count(mark), english.topic(path).count(mark)) << qt::fromQt(path) << mark;
        }
    }
}

TEST(HelpBook, AMissingFileIsNotOpen) { EXPECT_FALSE(HelpBook("/nowhere/Rezeptsystem.chm").isOpen()); }

TEST(HelpBook, APathMayLackItsSlashAndCarryAnAnchor) {
    const HelpBook book(compiledHelp("de"));
    EXPECT_TRUE(book.contains("keys.htm#grid"));
    EXPECT_TRUE(book.contains("/KEYS.htm"));
    EXPECT_FALSE(book.contains("nothing.htm"));
    EXPECT_FALSE(book.contains(""));
    EXPECT_EQ(book.topic("nothing.htm"), "");
}

}  // namespace
}  // namespace hx::help
