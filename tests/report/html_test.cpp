// SPDX-License-Identifier: MIT
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

#include "report/html_text.h"
#include "report/html_writer.h"
#include "report_fixture.h"

namespace hx::report {
namespace {

std::string htmlOf(const Report& report) {
    std::string html;
    writeHtml(report, [&](std::string_view part, std::size_t) { html += part; });
    return html;
}

/// What is wrong with the nesting of the elements; empty when all is well.
std::string nestingError(const std::string& html) {
    static const std::set<std::string> empty = {"meta", "!DOCTYPE"};
    std::vector<std::string> open;
    const std::regex tag("<(/?)([!A-Za-z0-9]+)[^>]*>");
    for (std::sregex_iterator at(html.begin(), html.end(), tag), end; at != end; ++at) {
        const std::string name = (*at)[2];
        if (empty.contains(name)) continue;
        if ((*at)[1].length() == 0) {
            open.push_back(name);
        } else if (open.empty() || open.back() != name) {
            return "</" + name + "> closes " + (open.empty() ? "nothing" : open.back());
        } else {
            open.pop_back();
        }
    }
    return open.empty() ? "" : open.back() + " is not closed";
}

/// The links that lead nowhere, and the places that are there twice.
std::string brokenLinks(const std::string& html) {
    std::set<std::string> places;
    std::string broken;
    const std::regex id("id=\"([^\"]*)\""), link("href=\"#([^\"]*)\"");
    for (std::sregex_iterator at(html.begin(), html.end(), id), end; at != end; ++at) {
        if (!places.insert((*at)[1]).second) broken += "twice " + (*at)[1].str() + " ";
    }
    for (std::sregex_iterator at(html.begin(), html.end(), link), end; at != end; ++at) {
        if (!places.contains((*at)[1])) broken += (*at)[1].str() + " ";
    }
    return broken;
}

std::string withoutStyle(const std::string& html) {
    const auto from = html.find("<style>"), to = html.find("</style>");
    return html.substr(0, from) + html.substr(to + std::string("</style>").size());
}

/// Two recipes in a cycle, one that is missing, and one with everything set.
project::ProjectData smallProject() {
    support::RecipeDraft juice = recipe(3, "Saft <\"Süß\" & 'sauer'>", {7, 7, 99});
    juice.subRecipes[0].fileVariable = "Datei.Mix";
    juice.fileNameVariable = "Saft.Datei";
    juice.descriptionVariable = "Saft.Beschreibung";
    juice.filePath = "<ProjectDir>\\Säfte & Co";
    juice.fileExtension = "rz";
    juice.comment = "1 < 2 && \"3\" > 2";
    juice.loadTrigger = "Saft.Laden";
    juice.normFactor = 0.25;
    juice.factorVariable = "Saft.Faktor";
    juice.saveSubRecipes = juice.writeThrough = true;
    juice.variables = {"Mischer.Ein", "Füller.<Menge>", ""};
    support::RecipeDraft mix = recipe(7, "Mix", {8});
    support::RecipeDraft base = recipe(8, "Basis", {7});
    base.enabled = false;
    return projectOf({juice, mix, base}, 1);
}

std::string golden(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(std::string(HX_GOLDEN_FOLDER) + "/" + name, std::ios::binary).rdbuf();
    return text.str();
}

TEST(HtmlText, WhatHasAMeaningIsEscaped) {
    EXPECT_EQ(escapeHtml("a < b && c > \"d\" 'e'"), "a &lt; b &amp;&amp; c &gt; &quot;d&quot; &#39;e&#39;");
    EXPECT_EQ(escapeHtml("Süß – 12 € 😀\n"), "Süß – 12 € 😀\n");
    EXPECT_EQ(escapeHtml(""), "");
}

TEST(HtmlText, WhatHtmlCannotHoldIsReplaced) {
    EXPECT_EQ(escapeHtml(std::string("a\0b\x1f"
                                     "c\x7f",
                                     6)),
              "a\uFFFDb\uFFFDc\uFFFD");
    EXPECT_EQ(escapeHtml("M\xFCller"), "M\uFFFDller");
    EXPECT_EQ(escapeHtml("\xC3"), "\uFFFD");
    EXPECT_EQ(escapeHtml("\xE2\x82"), "\uFFFD\uFFFD");
    EXPECT_EQ(escapeHtml("\xC0\xAF"), "\uFFFD\uFFFD");
    EXPECT_EQ(escapeHtml("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(escapeHtml("\xC2\x85"), "\uFFFD\uFFFD");
    EXPECT_EQ(escapeHtml("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
}

class GoldenReport : public testing::TestWithParam<std::string> {};

TEST_P(GoldenReport, IsWrittenAsItWasAgreed) {
    const bool inEnglish = GetParam() == "English";
    const std::string file = inEnglish ? "report_en.html" : "report_de.html";
    const Report report(smallProject(), textsIn(inEnglish ? english : german), "/plant/Anlage <Süd>.hxs", someDay);
    const std::string html = withoutStyle(htmlOf(report));
    if (html != golden(file)) std::ofstream(file + ".actual", std::ios::binary) << html;
    EXPECT_EQ(html, golden(file)) << "what was written is in " << file << ".actual";
}

INSTANTIATE_TEST_SUITE_P(Languages, GoldenReport, testing::Values("German", "English"),
                         [](const auto& language) { return language.param; });

TEST(HtmlReport, IsNestedWellAndLinksOnlyToWhatIsThere) {
    const std::string html = htmlOf(Report(smallProject(), textsIn(german), "/plant/Anlage.hxs", someDay));
    EXPECT_EQ(nestingError(html), "");
    EXPECT_EQ(brokenLinks(html), "");
}

TEST(HtmlReport, NeedsNoOtherFile) {
    const std::string html = htmlOf(Report(smallProject(), textsIn(german), "/plant/Anlage.hxs", someDay));
    for (const char* reference : {"http:", "https:", "src=", "<link", "@import", "url(", "<script"}) {
        EXPECT_EQ(html.find(reference), std::string::npos) << reference;
    }
}

TEST(HtmlReport, TreesOfAnyShapeAreNestedWell) {
    std::vector<support::RecipeDraft> recipes;
    for (std::int32_t id = 1; id <= 60; ++id)
        recipes.push_back(recipe(id, std::to_string(id), {id + 1, id / 2 + 1, 1, 900}));
    const std::string html = htmlOf(Report(projectOf(recipes), textsIn(german), "Anlage.hxs", someDay));
    EXPECT_EQ(nestingError(html), "");
    EXPECT_EQ(brokenLinks(html), "");
}

TEST(HtmlReport, NothingThatAUserTypedBecomesMarkup) {
    support::RecipeDraft bad = recipe(1, "<script>alert(1)</script>", {2});
    bad.subRecipes[0].fileVariable = "<b>";
    bad.comment = bad.filePath = bad.loadTrigger = bad.factorVariable = "\"><img>";
    bad.variables = {"</ul><h1>"};
    support::RecipeDraft other = recipe(2, "&amp;</title>");
    const std::string html = htmlOf(Report(projectOf({bad, other}), textsIn(german), "</title>.hxs", someDay));
    for (const char* markup : {"<script", "<b>", "<img", "</ul><h1>", "&amp;</title>"}) {
        EXPECT_EQ(html.find(markup), std::string::npos) << markup;
    }
    EXPECT_NE(html.find("&amp;amp;&lt;/title&gt;"), std::string::npos);
    EXPECT_EQ(nestingError(html), "");
}

}  // namespace
}  // namespace hx::report
