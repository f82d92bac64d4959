// SPDX-License-Identifier: MIT

// The files that a macro reaches past Lua's own libraries.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

class MacroFiles : public MacroTextTest {
  protected:
    MacroFiles() {
        std::filesystem::create_directory(folder_.file("project"));
        projects_ = folder_.file("project");
        file_ = folder_.file("project/plant.hxs");
        outside_ = write("outside.txt", "mine\n");
    }
    // What a statement with `inits` raises, or "nothing".
    std::string raised(const std::string& statement) { return raised(statement, inProject()); }
    std::string raised(const std::string& statement, const std::vector<const char*>& options) {
        std::filesystem::remove(file_);
        return printed(std::string(oneRecipe) + "local inits = editor.inits local ok, e = pcall(function() " +
                           automation::replaceAll(statement, "$OUT", outside_) +
                           " end) print(ok and 'nothing' or e.description)",
                       options);
    }
    std::vector<const char*> inProject(std::vector<const char*> options = {}) {
        options.insert(options.end(), {"--folder", projects_.c_str()});
        return options;
    }
    std::string isOutside(const std::string& name) const {
        const std::string folder = std::filesystem::path(projects_).make_preferred().string();
        return "The file '" + name + "' is not in the folder '" + folder + "', whose files the macro may use\n";
    }
    // The description of what the macro raises by this call.
    std::string refusal(const std::string& call, const std::vector<const char*>& options) {
        return printed("print(select(2, pcall(" + call + ")).description)", options);
    }
    std::string outside_, projects_;
};

TEST_F(MacroFiles, AreNotWrittenOrReadOutsideTheProjectsFolderByTheSettings) {
    const std::string refused = isOutside(outside_);
    EXPECT_EQ(raised("inits.SaveInits('$OUT')"), refused);
    EXPECT_EQ(raised("inits.LoadInits('$OUT')"), refused);
    EXPECT_EQ(raised("pcall(inits.LoadInits, '$OUT') inits.WriteToIni('a', 'b')"), refused);
    EXPECT_EQ(raised("inits.SaveInits('../outside.txt')"), isOutside("../outside.txt"));
    EXPECT_EQ(raised("inits.SaveInits('..')"), isOutside(".."));
    std::filesystem::create_symlink(outside_, folder_.file("project/link.ini"));
    EXPECT_EQ(raised("inits.SaveInits('link.ini')"), isOutside("link.ini"));
    EXPECT_EQ(contents(outside_), "mine\n");
}

TEST_F(MacroFiles, ThatAreProjectsAreNotWrittenByTheSettings) {
    EXPECT_EQ(raised("inits.SaveInits('$P')"),
              "The file '" + file_ + "' is a project and cannot be written by a macro\n");
    EXPECT_EQ(raised("inits.SaveInits('new.HXS')"),
              "The file 'new.HXS' is a project and cannot be written by a macro\n");
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Neues Rezept");
    EXPECT_FALSE(std::filesystem::exists(folder_.file("project/new.HXS")));
}

TEST_F(MacroFiles, OfTheProjectsFolderAreWrittenByTheSettings) {
    EXPECT_EQ(raised("inits.SaveInits('own.ini')"), "nothing\n");
    EXPECT_THAT(contents(folder_.file("project/own.ini")), HasSubstr("SaveOnExit=True"));
    EXPECT_EQ(raised("inits.WriteAValueToCInits('SaveOnExit', false) inits.LoadInits('own.ini')"), "nothing\n");
    EXPECT_THAT(contents(folder_.file("project/HXEditors.ini")), HasSubstr("SaveOnExit=True"));
}

TEST_F(MacroFiles, AreThoseOfTheProjectThatItWasStartedOnWhicheverIsOpen) {
    const std::string inside = folder_.file("project/line/other.hxs"), elsewhere = folder_.file("elsewhere/other.hxs");
    for (const std::string& path : {file_, inside, elsewhere}) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        sqlite::createProject(path);
    }
    EXPECT_EQ(macro("studio.OpenProject('" + inside + "') print(io.open('plant.hxs') ~= nil)\n" +
                        "print((pcall(studio.OpenProject, '" + elsewhere + "')), (pcall(io.open, '" + outside_ + "')))",
                    {"--project", file_.c_str()})
                  .results,
              "true\nfalse\tfalse\n");
}

TEST_F(MacroFiles, AreThoseOfTheProjectAndOfTheFolderThatIsNamed) {
    sqlite::createProject(file_);
    const std::string other = folder_.file("other");
    std::filesystem::create_directory(other);
    EXPECT_EQ(printed("io.open('a.txt', 'w'):close() io.open('" + other +
                          "/b.txt', 'w'):close()\n"
                          "studio.Click('RCPE0') print((pcall(io.open, '" +
                          outside_ + "')), #studio.Messages())",
                      {"--project", file_.c_str(), "--folder", other.c_str()}),
              "false\t0\n");
    EXPECT_TRUE(std::filesystem::exists(folder_.file("project/a.txt")));
    EXPECT_TRUE(std::filesystem::exists(folder_.file("other/b.txt")));
}

TEST_F(MacroFiles, AreOfNoFolderWithoutOne) {
    macro_ = write("m.lua", "print(select(2, pcall(studio.NewProject, '" + file_ + "')).description)");
    EXPECT_EQ(hxrecipe({"run", macro_.c_str()}).results,
              "The macro has no files: it was started without a project or a folder of its own\n");
    EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(MacroFiles, HoldTheProjectsThatItOpensAndMakes) {
    const std::string other = folder_.file("other.hxs");
    sqlite::createProject(other);
    std::filesystem::create_symlink(other, folder_.file("project/link.hxs"));
    const std::string link = folder_.file("project/link.hxs"), made = folder_.file("made.hxs");
    EXPECT_EQ(refusal("studio.OpenProject, '" + other + "'", inProject()), isOutside(other));
    EXPECT_EQ(refusal("studio.OpenProject, '" + link + "'", inProject()), isOutside(link));
    EXPECT_EQ(refusal("studio.NewProject, '" + made + "'", inProject()), isOutside(made));
    EXPECT_FALSE(std::filesystem::exists(made));
    EXPECT_EQ(macro("studio.OpenProject('" + other + "') print(addin.ProjectName)", {"--trust"}).results, "other\n");
}

TEST_F(MacroFiles, HoldTheProjectsOfTheRegistryThatItOpensByName) {
    const std::string other = folder_.file("other.hxs"), config = folder_.file("config");
    sqlite::createProject(other);
    ASSERT_EQ(printed("", {"--config", config.c_str(), "--project", other.c_str()}), "");
    EXPECT_EQ(refusal("studio.OpenProject, 'other'", inProject({"--config", config.c_str()})), isOutside(other));
}

TEST_F(MacroFiles, HoldTheProjectsThatTheAddInIsHanded) {
    const std::string other = folder_.file("other.hxs");
    makeProject(other, "INSERT INTO TrcpRecipe (Name) VALUES ('Secret')");
    const Result result = macro("studio.NewProject('$P') addin.Initialize('" + other +
                                    "', '', addin.Explorer, nil) addin.OpenEditor()\n"
                                    "for _, node in ipairs(studio.Nodes()) do print(node.caption) end\n"
                                    "for _, message in ipairs(studio.Messages()) do print(message.text) end",
                                inProject());
    EXPECT_THAT(result.results, testing::AllOf(HasSubstr(isOutside(other)), testing::Not(HasSubstr("Secret"))));
}

TEST_F(MacroFiles, DoNotHoldTheRegistryThatStays) {
    const std::string config = folder_.file("config");
    const std::string set = "studio.SetRegistry, 'Key', 'Value', 'x'";
    EXPECT_THAT(refusal(set, {"--config", config.c_str()}), HasSubstr("The registry's values stay"));
    EXPECT_EQ(printed("pcall(" + set + ") print(studio.Registry('Key', 'Value'))"), "x\n");
    EXPECT_EQ(printed("pcall(" + set + ")", {"--trust", "--config", config.c_str()}), "");
    EXPECT_EQ(printed("print(studio.Registry('Key', 'Value'))", {"--config", config.c_str()}), "x\n");
}

TEST_F(MacroFiles, CanBeAnyWhenTheMacroIsTrusted) {
    EXPECT_EQ(raised("inits.SaveInits('$OUT')", {"--trust"}), "nothing\n");
    EXPECT_THAT(contents(outside_), HasSubstr("SaveOnExit=True"));
}

}  // namespace

}  // namespace hx::cli
