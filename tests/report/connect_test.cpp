// SPDX-License-Identifier: MIT
#include "report/connect.h"

#include <array>
#include <fstream>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "report_fixture.h"
#include "support/temporary_folder.h"

namespace hx::report {
namespace {

using automation::Error;
using automation::Variant;
using Messages = std::vector<std::string>;

/// Keeps what it was asked to show.
struct RecordingViewer : Viewer {
    struct Shown {
        std::string title;
        forms::WindowHandle owner;
        forms::Pointer pointer;
        std::string recipes;
    };
    RecordingViewer(std::vector<Shown>& list, const forms::Screen& lent) : shown(list), screen(lent) {}
    void show(const Report& report, forms::WindowHandle owner) override {
        shown.push_back({report.fullTitle(), owner, screen.pointer(), {}});
        for (const project::RecipeData& recipe : report.recipes())
            shown.back().recipes += std::string(recipe.name) + ";";
        for (const Property& line : report.summary()) summary = line.caption + ": " + line.value;
        if (onShow) onShow();
    }
    std::vector<Shown>& shown;
    const forms::Screen& screen;
    std::string summary;  // its last line
    std::function<void()> onShow;
};

class ReportConnect : public testing::Test {
  protected:
    ReportConnect() { sqlite::createProject(path); }

    void addRecipe() {
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + path);
        ado::Recordset rows;
        rows.open("TrcpRecipe", connection);
        rows.addNew(std::array{std::pair<std::string, Variant>("Name", "Cola")});
    }
    /// Calls the add-in by name, as the editor does.
    void show(const Variant& subject = "HXRecipe") {
        const std::array<Variant, 3> arguments = {subject, path, Variant(forms::WindowHandle{42})};
        addIn->get("Show", arguments);
    }
    [[nodiscard]] Messages messages() const {
        Messages texts;
        for (const forms::ShownMessage& message : host.record.messages)
            texts.push_back(message.title + "|" + message.text);
        return texts;
    }

    support::TemporaryFolder folder;
    std::string path = folder.file("Anlage.hxs");
    sqlite::Provider provider;
    headless::Host host{provider};
    std::vector<RecordingViewer::Shown> shown;
    RecordingViewer* viewer = nullptr;
    std::shared_ptr<Connect> addIn = makeAddIn();

  private:
    std::shared_ptr<Connect> makeAddIn() {
        auto made = std::make_unique<RecordingViewer>(shown, host.screen);
        viewer = made.get();
        return std::make_shared<Connect>(host.services(), std::move(made));
    }
};

TEST_F(ReportConnect, ShowsSomeRecipesAndThoseThatTheyInclude) {
    const auto session = provider.connect("Data Source=" + path);
    for (const char* command :
         {"INSERT INTO TrcpRecipe (Name) VALUES ('Linie')", "INSERT INTO TrcpRecipe (Name) VALUES ('Cola')",
          "INSERT INTO TrcpRecipe (Name) VALUES ('Tee')", "INSERT INTO TrcpRecipe (Name) VALUES ('Sirup')",
          "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (1, 2, 'x')",
          "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (2, 4, 'y')",
          "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (3, 2, 'z')"})
        (void)session->open(command, ado::adCmdText);
    const std::array<Variant, 3> arguments = {"1", path, Variant(forms::WindowHandle{42})};
    addIn->get("ShowRecipes", arguments);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].recipes, "Cola;Linie;Sirup;");
    EXPECT_EQ(viewer->summary, "Auswahl: nur die ausgewählten Rezepte und die darin enthaltenen");
    addIn->get("ShowRecipes", std::array<Variant, 3>{"4,3", path, Variant(forms::WindowHandle{42})});
    EXPECT_EQ(shown[1].recipes, "Cola;Sirup;Tee;");
    EXPECT_EQ(messages(), Messages());
}

TEST_F(ReportConnect, ShowsTheReportOnTheRecipesOverTheWindow) {
    addRecipe();
    show();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, "Rezeptbericht – Anlage");
    EXPECT_EQ(shown[0].owner, 42);
    EXPECT_EQ(shown[0].pointer, forms::Pointer::standard);
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
    EXPECT_EQ(messages(), Messages{});
}

TEST_F(ReportConnect, SpeaksTheLanguageOfTheRegistry) {
    addRecipe();
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", english);
    show();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, "Recipe Report – Anlage");
}

TEST_F(ReportConnect, AnUnknownSubjectIsSaid) {
    addRecipe();
    show("HXAlarm");
    EXPECT_EQ(messages(), Messages{"Rezeptbericht|Über „HXAlarm“ gibt es keinen Bericht. Es gibt ihn über: HXRecipe"});
    EXPECT_TRUE(shown.empty());
}

TEST_F(ReportConnect, TheSubjectIgnoresCase) {
    addRecipe();
    show("hxrecipe");
    EXPECT_EQ(shown.size(), 1u);
}

TEST_F(ReportConnect, AnEmptyProjectIsSaid) {
    show();
    EXPECT_EQ(messages(), Messages{"Rezeptbericht|Das Projekt „Anlage“ enthält keine Rezepte."});
    EXPECT_TRUE(shown.empty());
}

TEST_F(ReportConnect, AMissingFileIsSaid) {
    path = folder.file("none.hxs");
    show();
    EXPECT_EQ(messages(), Messages{"Rezeptbericht|Der Bericht kann nicht erstellt werden.\r\n\r\n"
                                   "-2147467259: Could not find file '" +
                                   path + "'."});
    EXPECT_EQ(host.record.pointers.back(), forms::Pointer::standard);
}

TEST_F(ReportConnect, ADamagedFileIsSaidInEnglishAsWell) {
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", english);
    std::ofstream(path, std::ios::binary) << "no project";
    show();
    EXPECT_EQ(messages(), Messages{"Recipe Report|The report cannot be made.\r\n\r\n"
                                   "-2147467259: The file '" +
                                   path + "' is not a project file."});
}

TEST_F(ReportConnect, WithoutARegistryItSpeaksGerman) {
    addRecipe();
    host.registry.failWith(Error(automation::errFail, "No registry."));
    show();
    EXPECT_EQ(messages(), Messages{"Rezeptbericht|-2147467259: No registry."});
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, "Rezeptbericht – Anlage");
}

TEST_F(ReportConnect, AFailureOfThePreviewIsSaidAndNotPassedOn) {
    addRecipe();
    viewer->onShow = [] { throw std::runtime_error("out of paper"); };
    EXPECT_NO_THROW(show());
    EXPECT_EQ(messages(),
              Messages{"Rezeptbericht|Der Bericht kann nicht erstellt werden.\r\n\r\n-2147467259: out of paper"});
}

TEST_F(ReportConnect, WantOfMemoryIsSaidInTheReportsLanguage) {
    addRecipe();
    viewer->onShow = [] { throw std::bad_alloc(); };
    show();
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", english);
    show();
    EXPECT_EQ(messages(), (Messages{"Rezeptbericht|Der Bericht kann nicht erstellt werden.\r\n\r\n"
                                    "-2147024882: Der Speicher reicht nicht aus.",
                                    "Recipe Report|The report cannot be made.\r\n\r\n"
                                    "-2147024882: There is not enough memory."}));
}

TEST_F(ReportConnect, ACallWithWrongArgumentsIsRefusedAsByAnyObject) {
    const auto numberOf = [this](std::string_view member, std::vector<Variant> arguments) {
        try {
            addIn->get(member, arguments);
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf("Show", {"HXRecipe"}), automation::errBadParamCount);
    EXPECT_EQ(numberOf("Show", {"HXRecipe", path, "no window"}), automation::errTypeMismatch);
    EXPECT_EQ(numberOf("Print", {}), automation::errUnknownName);
    EXPECT_EQ(addIn->className(), "Connect");
}

}  // namespace
}  // namespace hx::report
