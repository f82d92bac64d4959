// SPDX-License-Identifier: MIT
#include "layers/layer_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace hx::layers {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LayerRules, AFolderIncludesItselfAndTheFoldersBelowIt) {
    EXPECT_THAT(wrongIncludes("recipe/node_key.cpp", "#include \"project/schema.h\"\n#include \"ado/recordset.h\"\n"),
                IsEmpty());
}

TEST(LayerRules, AFolderThatIncludesALaterOneIsNamedWithFileAndLine) {
    EXPECT_THAT(wrongIncludes("recipe/node_key.cpp", "#include <string>\n\n#include \"editor/frmtabgrid.h\"\n"),
                ElementsAre("recipe/node_key.cpp:3: includes editor/frmtabgrid.h: recipe may not include editor"));
}

TEST(LayerRules, AngleBracketsDoNotHideALaterFolder) {
    EXPECT_THAT(wrongIncludes("ado/field.h", "#include <forms/form.h>\n"),
                ElementsAre("ado/field.h:1: includes forms/form.h: ado may not include forms"));
}

TEST(LayerRules, TheEditorsFoldersStandOnTheStandardLibraryAlone) {
    EXPECT_THAT(wrongIncludes("forms/grid.cpp",
                              "#include <QString>\n#include <vector>\n#include <windows.h>\n#include <string.h>\n"),
                ElementsAre("forms/grid.cpp:1: includes QString: forms stands on the standard library alone",
                            "forms/grid.cpp:3: includes windows.h: forms stands on the standard library alone",
                            "forms/grid.cpp:4: includes string.h: forms stands on the standard library alone"));
}

TEST(LayerRules, OnlyTheServersViewKnowsTheToolkit) {
    EXPECT_THAT(
        wrongIncludes("server/toolkit/view.cpp", "#include \"adapters/qt/text.h\"\n#include \"server/view.h\"\n"),
        IsEmpty());
    EXPECT_THAT(wrongIncludes("server/session.cpp", "#include \"adapters/qt/text.h\"\n"),
                ElementsAre("server/session.cpp:1: includes adapters/qt/text.h: server may not include adapters/qt"));
}

TEST(LayerRules, OnlyTheFilesOfTheOperatingSystemIncludeItsHeaders) {
    EXPECT_THAT(wrongIncludes("hosting/posix_disk.cpp", "#include <fcntl.h>\n#include \"hosting/disk.h\"\n"),
                IsEmpty());
    EXPECT_THAT(
        wrongIncludes("hosting/windows_disk.h", "#include <windows.h>\n"),
        ElementsAre("hosting/windows_disk.h:1: includes windows.h: hosting stands on the standard library alone"));
    EXPECT_THAT(wrongIncludes("host/posix_disk.cpp", "#include \"editor/frmtabgrid.h\"\n"),
                ElementsAre("host/posix_disk.cpp:1: includes editor/frmtabgrid.h: host may not include editor"));
    EXPECT_THAT(wrongIncludes("host/file_lock.cpp", "#include <fcntl.h>\n"),
                ElementsAre("host/file_lock.cpp:1: includes fcntl.h: host stands on the standard library alone"));
}

TEST(LayerRules, AnAdapterIncludesWhatIsInstalledAndTheContracts) {
    EXPECT_THAT(
        wrongIncludes("adapters/qt/grid_view.cpp",
                      "#include <QTableView>\n#include \"adapters/qt/grid_view.h\"\n#include \"forms/grid.h\"\n"),
        IsEmpty());
}

std::string includedFrom(const std::string& room, const std::string& other) {
    const auto fileIn = [](const std::string& name) { return "adapters/qt/" + (name.empty() ? "" : name + "/") + "a"; };
    const auto findings = wrongIncludes(fileIn(room) + ".cpp", "#include \"" + fileIn(other) + ".h\"\n");
    return findings.empty() ? "" : findings.front();
}

TEST(LayerRules, TheRoomsOfAnAdapterIncludeEachOtherInOneDirection) {
    const std::vector<std::vector<std::string>> levels = {
        {""}, {"controls"}, {"grid", "choosers"}, {"screen"}, {"explorer", "help"}};
    for (std::size_t from = 0; from < levels.size(); ++from) {
        for (std::size_t to = 0; to < levels.size(); ++to) {
            for (const std::string& room : levels[from]) {
                for (const std::string& other : levels[to]) {
                    const bool allowed = room == other || to < from;
                    EXPECT_EQ(includedFrom(room, other).empty(), allowed)
                        << "'" << room << "' includes '" << other << "'";
                }
            }
        }
    }
}

TEST(LayerRules, ARoomThatIncludesALaterOneIsNamed) {
    EXPECT_EQ(includedFrom("controls", "screen"),
              "adapters/qt/controls/a.cpp:1: includes adapters/qt/screen/a.h: controls may not include screen");
    EXPECT_EQ(includedFrom("", "grid"),
              "adapters/qt/a.cpp:1: includes adapters/qt/grid/a.h: adapters/qt may not include grid");
    EXPECT_EQ(includedFrom("attic", "grid"),
              "adapters/qt/attic/a.cpp:1: includes adapters/qt/grid/a.h: this room has no place among the others");
}

TEST(LayerRules, NoAdapterIncludesAnother) {
    EXPECT_THAT(
        wrongIncludes("adapters/qt/screen.cpp", "#include \"adapters/headless/screen.h\"\n"),
        ElementsAre("adapters/qt/screen.cpp:1: includes adapters/headless/screen.h: adapters/qt may not include "
                    "adapters/headless"));
}

TEST(LayerRules, NothingIncludesAProgram) {
    EXPECT_THAT(
        wrongIncludes("adapters/sqlite/rowset.cpp", "#include \"cli/progress.h\"\n"),
        ElementsAre("adapters/sqlite/rowset.cpp:1: includes cli/progress.h: adapters/sqlite may not include cli"));
}

TEST(LayerRules, WhatAMacroFindsStandsOnTheAdaptersAndOnNoProgram) {
    EXPECT_THAT(wrongIncludes("macros/data.cpp",
                              "#include <lua.hpp>\n#include \"adapters/lua/value.h\"\n#include \"macros/studio.h\"\n"),
                IsEmpty());
    EXPECT_THAT(wrongIncludes("macros/data.cpp", "#include \"cli/progress.h\"\n"),
                ElementsAre("macros/data.cpp:1: includes cli/progress.h: macros may not include cli"));
    EXPECT_THAT(wrongIncludes("adapters/lua/value.cpp", "#include \"macros/studio.h\"\n"),
                ElementsAre("adapters/lua/value.cpp:1: includes macros/studio.h: adapters/lua may not include macros"));
}

TEST(LayerRules, NoProgramIncludesTheOtherNorItsToolkit) {
    EXPECT_THAT(wrongIncludes("cli/list.cpp", "#include \"studio/project.h\"\n#include \"adapters/qt/text.h\"\n"),
                ElementsAre("cli/list.cpp:1: includes studio/project.h: cli may not include studio",
                            "cli/list.cpp:2: includes adapters/qt/text.h: cli may not include adapters/qt"));
    EXPECT_THAT(wrongIncludes("studio/project.cpp", "#include \"cli/list.h\"\n"),
                ElementsAre("studio/project.cpp:1: includes cli/list.h: studio may not include cli"));
    EXPECT_THAT(wrongIncludes("macros/data.cpp", "#include \"adapters/qt/text.h\"\n"),
                ElementsAre("macros/data.cpp:1: includes adapters/qt/text.h: macros may not include adapters/qt"));
    EXPECT_THAT(
        wrongIncludes("report/preview/pages.cpp", "#include \"studio/project.h\"\n"),
        ElementsAre("report/preview/pages.cpp:1: includes studio/project.h: report/preview may not include studio"));
}

TEST(LayerRules, TheEditorSeesTheContractAndNotWhatHostsAreMadeOf) {
    EXPECT_THAT(wrongIncludes("addin/connect.cpp", "#include \"host/services.h\"\n#include \"hosting/node_tree.h\"\n"),
                ElementsAre("addin/connect.cpp:2: includes hosting/node_tree.h: addin may not include hosting"));
}

TEST(LayerRules, WhatIsSaidOfAWholeProjectSeesItsTablesAndNoDialog) {
    EXPECT_THAT(wrongIncludes("project/reader.cpp", "#include \"ado/provider.h\"\n#include \"forms/form.h\"\n"),
                ElementsAre("project/reader.cpp:2: includes forms/form.h: project may not include forms"));
    EXPECT_THAT(wrongIncludes("forms/form.cpp", "#include \"project/reader.h\"\n"),
                ElementsAre("forms/form.cpp:1: includes project/reader.h: forms may not include project"));
}

TEST(LayerRules, ExchangeAndListsSeeStoresAndNeitherEachOtherNorAWindow) {
    EXPECT_THAT(wrongIncludes("lists/variables.cpp",
                              "#include \"adapters/sqlite/session.h\"\n#include \"exchange/content.h\"\n"),
                ElementsAre("lists/variables.cpp:2: includes exchange/content.h: lists may not include exchange"));
    EXPECT_THAT(
        wrongIncludes("exchange/content.cpp", "#include \"adapters/qt/text.h\"\n"),
        ElementsAre("exchange/content.cpp:1: includes adapters/qt/text.h: exchange may not include adapters/qt"));
}

TEST(LayerRules, AProgramIncludesWhatIsInstalledAndWhatLiesBelow) {
    EXPECT_THAT(wrongIncludes(
                    "cli/main.cpp",
                    "#include <CLI/CLI.hpp>\n#include \"adapters/sqlite/provider.h\"\n#include \"addin/connect.h\"\n"),
                IsEmpty());
}

TEST(LayerRules, WhatTheReportSaysStandsOnTheStandardLibraryAndTheEditorsFolders) {
    EXPECT_THAT(wrongIncludes("report/report.cpp", "#include \"report/report.h\"\n#include \"project/schema.h\"\n"),
                IsEmpty());
    EXPECT_THAT(
        wrongIncludes("report/report.cpp",
                      "#include <QString>\n#include \"adapters/qt/text.h\"\n#include \"report/preview/pages.h\"\n"),
        ElementsAre("report/report.cpp:1: includes QString: report stands on the standard library alone",
                    "report/report.cpp:2: includes adapters/qt/text.h: report may not include adapters/qt",
                    "report/report.cpp:3: includes report/preview/pages.h: report may not include report/preview"));
}

TEST(LayerRules, WhatDrawsTheReportIncludesAnything) {
    EXPECT_THAT(wrongIncludes("report/preview/pages.cpp",
                              "#include <QPainter>\n#include \"adapters/qt/text.h\"\n#include \"report/report.h\"\n"),
                IsEmpty());
}

TEST(LayerRules, AHeaderOfTheTreeIsNamedByItsFolder) {
    EXPECT_THAT(
        wrongIncludes("ado/field.cpp", "#include \"field.h\"\n"),
        ElementsAre(
            "ado/field.cpp:1: includes field.h: the path of a header of this tree begins with its folder below src"));
}

TEST(LayerRules, AFolderWithoutAPlaceIsAFinding) {
    EXPECT_THAT(wrongIncludes("misc/tools.cpp", ""),
                ElementsAre("misc/tools.cpp:1: this folder has no place in the layers"));
}

TEST(LayerRules, MoreThanFourHundredLinesNeedAReason) {
    const std::string lines(400, '\n');
    EXPECT_THAT(tooManyLines("ado/field.cpp", lines), IsEmpty());
    EXPECT_THAT(
        tooManyLines("ado/field.cpp", lines + "x"),
        ElementsAre("ado/field.cpp:401: 401 lines: split it, or say behind \"// Long: \" why it is one concept"));
    EXPECT_THAT(tooManyLines("ado/field.cpp", lines + "// Long: a table, a row a line\n"), IsEmpty());
}

TEST(LayerRules, LabelsAndToolTipsShowTextAsItIs) {
    EXPECT_THAT(textsAsHtml("studio/a.h", "#include <QLabel>\nqt::PlainLabel label_;\nQLabel other_;\n"),
                ElementsAre("studio/a.h:1: QLabel shows HTML: use PlainLabel",
                            "studio/a.h:3: QLabel shows HTML: use PlainLabel"));
    EXPECT_THAT(textsAsHtml("adapters/qt/a.cpp",
                            "a.setToolTip(plainToolTip(x));\nb.setToolTip(0,\n  qt::plainToolTip(x));\n"
                            "c.setToolTip(titledToolTip(x, y));\nd.setToolTipsVisible(true);\n"),
                IsEmpty());
    EXPECT_THAT(textsAsHtml("report/preview/a.cpp",
                            "\na.setToolTip(x);\nb.setToolTip(plainToolTip(x));\n"
                            "QToolTip::showText(place, x);\n"),
                ElementsAre("report/preview/a.cpp:2: a tool tip shows HTML: use plainToolTip",
                            "report/preview/a.cpp:4: a tool tip shows HTML: use plainToolTip"));
    EXPECT_THAT(textsAsHtml("adapters/qt/controls/plain_label.h", "QLabel"), IsEmpty());
    EXPECT_THAT(
        textsAsHtml("studio/a.cpp", "#include <QToolTip>\nif (index.data(Qt::ToolTipRole).isValid()) return;\n"),
        IsEmpty());
}

TEST(LayerRules, ExceptionsAreToldByTheHelper) {
    EXPECT_THAT(rawExceptions("editor/a.cpp", "caughtError();\nshow(error.what());\n"),
                ElementsAre("editor/a.cpp:2: what() knows no language: use caughtError()"));
    EXPECT_THAT(rawExceptions("automation/error.cpp", "error.what()"), IsEmpty());
}

}  // namespace
}  // namespace hx::layers
