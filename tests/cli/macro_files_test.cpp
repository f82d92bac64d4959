// The files that a macro reaches past Lua's own libraries.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

class MacroFiles : public MacroTextTest {
  protected:
    MacroFiles() {
        std::filesystem::create_directory(folder_.file("project"));
        file_ = folder_.file("project/plant.hxs");
        outside_ = write("outside.txt", "mine\n");
    }
    // What a statement with `inits` raises, or "nothing".
    std::string raised(const std::string& statement, const std::vector<const char*>& options = {}) {
        std::filesystem::remove(file_);
        return printed(std::string(oneRecipe) + "local inits = editor.inits local ok, e = pcall(function() " +
                           automation::replaceAll(statement, "$OUT", outside_) +
                           " end) print(ok and 'nothing' or e.description)",
                       options);
    }
    std::string outside_;
};

TEST_F(MacroFiles, AreNotWrittenOrReadOutsideTheProjectsFolderByTheSettings) {
    const std::string refused = "The file '" + outside_ + "' is not in the project's folder\n";
    EXPECT_EQ(raised("inits.SaveInits('$OUT')"), refused);
    EXPECT_EQ(raised("inits.LoadInits('$OUT')"), refused);
    EXPECT_EQ(raised("pcall(inits.LoadInits, '$OUT') inits.WriteToIni('a', 'b')"), refused);
    EXPECT_EQ(raised("inits.SaveInits('../outside.txt')"),
              "The file '../outside.txt' is not in the project's folder\n");
    EXPECT_EQ(raised("inits.SaveInits('..')"), "The file '..' is not in the project's folder\n");
    std::filesystem::create_symlink(outside_, folder_.file("project/link.ini"));
    EXPECT_EQ(raised("inits.SaveInits('link.ini')"), "The file 'link.ini' is not in the project's folder\n");
    EXPECT_EQ(contents(outside_), "mine\n");
}

TEST_F(MacroFiles, ThatAreProjectsAreNotWrittenByTheSettings) {
    EXPECT_EQ(raised("inits.SaveInits('$P')"), "The file '" + file_ + "' is a project and holds no settings\n");
    EXPECT_EQ(raised("inits.SaveInits('new.HXS')"), "The file 'new.HXS' is a project and holds no settings\n");
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Neues Rezept");
    EXPECT_FALSE(std::filesystem::exists(folder_.file("project/new.HXS")));
}

TEST_F(MacroFiles, OfTheProjectsFolderAreWrittenByTheSettings) {
    EXPECT_EQ(raised("inits.SaveInits('own.ini')"), "nothing\n");
    EXPECT_THAT(contents(folder_.file("project/own.ini")), HasSubstr("SaveOnExit=True"));
    EXPECT_EQ(raised("inits.WriteAValueToCInits('SaveOnExit', false) inits.LoadInits('own.ini')"), "nothing\n");
    EXPECT_THAT(contents(folder_.file("project/HXEditors.ini")), HasSubstr("SaveOnExit=True"));
}

TEST_F(MacroFiles, CannotBeReachedOnceTheProjectIsClosed) {
    EXPECT_EQ(raised("studio.CloseProject() inits.SaveInits('own.ini')"),
              "No project is open whose folder could hold settings\n");
}

TEST_F(MacroFiles, CanBeAnyWhenTheMacroIsTrusted) {
    EXPECT_EQ(raised("inits.SaveInits('$OUT')", {"--trust"}), "nothing\n");
    EXPECT_THAT(contents(outside_), HasSubstr("SaveOnExit=True"));
}

}  // namespace

}  // namespace hx::cli
