// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "automation/cancelled.h"
#include "gui/desktop.h"
#include "report/preview/layout_progress.h"
#include "report/preview/output.h"
#include "support/recipe_draft.h"

namespace hx::gui {
namespace {

using report::Pages;
using report::Report;
using support::RecipeDraft;

RecipeDraft recipe(std::int32_t id, const std::string& name) {
    RecipeDraft data;
    data.id = id;
    data.name = name;
    return data;
}

/// The report in German on these recipes.
struct Printed {
    explicit Printed(const std::vector<RecipeDraft>& recipes)
        : report(support::projectOf(recipes), {}, "/plant/Anlage.hxs", {2025, 3, 5, 14, 7}),
          pages(report, report::usualPaper()) {
        while (!pages.complete()) pages.layOutPart();
    }
    const Report report;
    Pages pages;
};

constexpr double pixelsPerTwip = 0.05;

QImage imageOf(const Pages& pages, int page) {
    QImage image((pages.paper() * pixelsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerTwip, pixelsPerTwip);
    pages.paint(painter, page);
    return image;
}

/// Whether nothing stands in a part of a page, in millimetres.
bool isWhite(const QImage& image, QRectF millimetres) {
    const double pixels = 1440 / 25.4 * pixelsPerTwip;
    const QRect rect = QRectF(millimetres.topLeft() * pixels, millimetres.size() * pixels).toRect() & image.rect();
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255)) return false;
        }
    }
    return true;
}

/// Nothing may stand between the text and the footer, or in the margins.
void expectCleanMargins(const Pages& pages) {
    for (int page = 0; page < pages.count(); ++page) {
        const QImage image = imageOf(pages, page);
        EXPECT_TRUE(isWhite(image, {0, 277.5, 210, 3.5})) << page;
        EXPECT_TRUE(isWhite(image, {0, 0, 19.5, 297})) << page;
        EXPECT_TRUE(isWhite(image, {195.5, 0, 15, 297})) << page;
        EXPECT_FALSE(isWhite(image, {20, 20, 175, 40})) << page;
    }
}

std::vector<RecipeDraft> manyRecipes(std::int32_t count) {
    std::vector<RecipeDraft> recipes;
    for (std::int32_t id = 1; id <= count; ++id) {
        recipes.push_back(recipe(id, "Rezept " + std::to_string(id)));
        recipes.back().variables.assign(static_cast<std::size_t>(id % 70), "Mischer.Temperatur.Soll");
        if (id > 1) recipes.back().subRecipes.push_back({id / 2, "Datei" + std::to_string(id)});
    }
    return recipes;
}

TEST(ReportPages, FollowOneAnotherWithoutAnEmptyOne) {
    const Printed printed(manyRecipes(150));
    EXPECT_GT(printed.pages.count(), 80);
    expectCleanMargins(printed.pages);
}

TEST(ReportPages, KnowWhereEachRecipeBegins) {
    const Printed printed(manyRecipes(40));
    for (std::size_t i = 1; i < 40; ++i) {
        const int before = printed.pages.pageOf(i - 1), page = printed.pages.pageOf(i);
        EXPECT_GE(page, before);
        EXPECT_TRUE(page > before || printed.pages.topOf(i) > printed.pages.topOf(i - 1));
        EXPECT_FALSE(isWhite(imageOf(printed.pages, page), {20, printed.pages.topOf(i) / 1440 * 25.4, 1, 2}));
    }
    EXPECT_GT(printed.pages.pageOf(0), 0);
    EXPECT_EQ(printed.pages.recipeAt(0), std::nullopt);
    EXPECT_EQ(printed.pages.recipeAt(printed.pages.count() - 1), 39u);
}

TEST(ReportPages, HoldTextsOfAnyLength) {
    RecipeDraft long_ = recipe(1, std::string(255, 'W'));
    long_.filePath = std::string(30000, 'x');
    long_.comment = "one\ntwo\tthree\r\n\x01";
    for (int i = 0; i < 400; ++i) long_.comment += "word ";
    long_.loadTrigger = std::string(255, 'M');
    long_.variables = {std::string(255, 'm'), "", "M\xFCller"};
    long_.subRecipes = {{2, std::string(255, 'f')}, {77, std::string(255, 'f')}, {1, ""}};
    RecipeDraft other = recipe(2, std::string(200, 'o') + " " + std::string(50, 'p'));
    other.subRecipes = {{1, "x"}};
    const Printed printed({long_, other});
    EXPECT_GT(printed.pages.count(), 5);
    expectCleanMargins(printed.pages);
}

TEST(ReportPages, HoldATreeOfAnyDepth) {
    std::vector<RecipeDraft> recipes;
    for (std::int32_t id = 1; id <= 60; ++id) {
        recipes.push_back(recipe(id, "Recipe with a name of some length, number " + std::to_string(id)));
        recipes.back().subRecipes = {{id + 1, "Linie.Datei.Name.Von.Rezept"}, {id, "Datei"}};
    }
    const Printed printed(recipes);
    expectCleanMargins(printed.pages);
}

TEST(ReportPages, TheLinesOfTheContentsLeadToTheirRecipes) {
    const Printed printed(manyRecipes(9));
    std::vector<std::size_t> targets;
    for (double y = 0; y < printed.pages.paper().height(); y += 20) {
        const auto target = printed.pages.targetAt(0, {5000, y});
        if (target && (targets.empty() || targets.back() != *target)) targets.push_back(*target);
    }
    EXPECT_EQ(targets, (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

const report::Progress unheard = [](std::int64_t, std::int64_t) {};

TEST(ReportPages, ALongListOfVariablesHasNoSeam) {
    RecipeDraft whole = recipe(1, "Anlage");
    for (int i = 0; i < 5000; ++i) whole.variables.push_back("Mischer" + std::to_string(i) + ".Temperatur.Soll");
    const Printed printed({whole});
    expectCleanMargins(printed.pages);
    for (int page = 2; page + 2 < printed.pages.count(); ++page) {
        const QImage image = imageOf(printed.pages, page);
        for (double y = 23; y < 272; y += 5) EXPECT_FALSE(isWhite(image, {20, y, 175, 5})) << page << " at " << y;
    }
}

TEST(ReportPages, TheFirstOneIsThereBeforeTheOthersAreLaidOut) {
    const Printed all(manyRecipes(900));
    Pages pages(all.report, report::usualPaper());
    EXPECT_FALSE(pages.complete());
    EXPECT_LT(pages.count(), all.pages.count());
    ASSERT_GE(pages.count(), 1);
    EXPECT_FALSE(pages.knows(0));
    EXPECT_FALSE(isWhite(imageOf(pages, 0), {20, 20, 100, 250}));
    EXPECT_NE(imageOf(pages, 0), imageOf(all.pages, 0)) << "it names pages that it does not know";
    while (!pages.complete()) pages.layOutPart();
    ASSERT_EQ(pages.count(), all.pages.count());
    EXPECT_EQ(imageOf(pages, 0), imageOf(all.pages, 0));
    EXPECT_EQ(pages.pageOf(899), all.pages.pageOf(899));
}

TEST(ReportLayout, GoesOnBesideTheUserUntilHeStopsIt) {
    const Printed all(manyRecipes(900));
    Pages pages(all.report, report::usualPaper());
    const std::size_t first = pages.partsLaidOut();
    report::LayoutProgress layout(pages, "Pages", "Stop", nullptr);
    EXPECT_FALSE(layout.isVisible());
    layout.goOn();
    EXPECT_TRUE(layout.isVisible());
    layout.findChild<QPushButton*>("reportLayoutStop")->click();
    EXPECT_FALSE(layout.isVisible());
    handleEvents();
    EXPECT_EQ(pages.partsLaidOut(), first);
    int advances = 0;
    layout.advanced = [&] { ++advances; };
    layout.goOn();
    EXPECT_TRUE(waitUntil([&] { return pages.complete(); }));
    EXPECT_GT(advances, 0);
    EXPECT_FALSE(layout.isVisible());
    layout.goOn();
    EXPECT_FALSE(layout.isVisible());
}

class ReportFiles : public testing::Test {
  protected:
    QTemporaryDir folder;
    const Printed printed{manyRecipes(12)};
    [[nodiscard]] report::PageRange all() const { return {0, printed.pages.count() - 1}; }
    [[nodiscard]] static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
};

TEST_F(ReportFiles, APdfHasThePagesThatWereAskedFor) {
    const QString path = folder.filePath("a.pdf");
    ASSERT_EQ(report::savePdf(printed.report, printed.pages, all(), path, unheard), "");
    EXPECT_EQ(contentOf(path).count("/Type /Page\n"), printed.pages.count());
    ASSERT_EQ(report::savePdf(printed.report, printed.pages, {1, 3}, path, unheard), "");
    EXPECT_EQ(contentOf(path).count("/Type /Page\n"), 3);
}

TEST_F(ReportFiles, APrinterTakesThePages) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("printed.pdf"));
    printer.setFullPage(true);
    EXPECT_TRUE(report::paintPages(printed.pages, {0, 1}, printer, unheard));
    EXPECT_EQ(contentOf(folder.filePath("printed.pdf")).count("/Type /Page\n"), 2);
}

TEST_F(ReportFiles, WhatCannotBeWrittenIsSaidAndLeavesNothing) {
    const QString nowhere = folder.filePath("none/report.");
    EXPECT_NE(report::savePdf(printed.report, printed.pages, all(), nowhere + "pdf", unheard), "");
    EXPECT_NE(report::saveHtml(printed.report, nowhere + "html", unheard), "");
    EXPECT_NE(report::saveHtml(printed.report, folder.path(), unheard), "");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(ReportFiles, CancellingLeavesNothing) {
    const auto cancelling = [](std::int64_t done, std::int64_t total) {
        EXPECT_LT(done, total);
        throw automation::Cancelled();
    };
    EXPECT_THROW((void)report::savePdf(printed.report, printed.pages, all(), folder.filePath("a.pdf"), cancelling),
                 automation::Cancelled);
    EXPECT_THROW((void)report::saveHtml(printed.report, folder.filePath("a.html"), cancelling), automation::Cancelled);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(EmptyReport, IsWrittenWithATotalThatCanBeDividedBy) {
    const QTemporaryDir folder;
    Printed printed({});
    int heard = 0;
    const auto hears = [&](std::int64_t done, std::int64_t total) {
        EXPECT_GE(total, 1);
        EXPECT_LE(done, total);
        ++heard;
    };
    EXPECT_EQ(report::saveHtml(printed.report, folder.filePath("a.html"), hears), "");
    EXPECT_EQ(
        report::savePdf(printed.report, printed.pages, {0, printed.pages.count() - 1}, folder.filePath("a.pdf"), hears),
        "");
    EXPECT_GE(heard, 2);
}

TEST_F(ReportFiles, AnOlderFileIsReplacedAsAWhole) {
    const QString path = folder.filePath("a.html");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(3'000'000, 'x'));
    file.close();
    ASSERT_EQ(report::saveHtml(printed.report, path, unheard), "");
    EXPECT_TRUE(contentOf(path).endsWith("</html>\n"));
    EXPECT_FALSE(contentOf(path).contains("xxxx"));
}

}  // namespace
}  // namespace hx::gui
