// SPDX-License-Identifier: MIT

// Projects of the same name in different folders, opened by several programs that share a registry.
#include "run_macro_text.h"
#include "support/rival.h"

namespace hx::cli {

namespace {

class SameName : public MacroTextTest {
  protected:
    SameName() {
        for (const char* folder : {"a", "b"}) {
            std::filesystem::create_directory(folder_.file(folder));
            makeProject(project(folder), std::string("INSERT INTO TrcpRecipe (Name) VALUES ('") + folder + "')");
        }
        macro_ = write("m.lua",
                       "studio.Click('RCPE0') print(addin.ProjectName, addin.ProjectPath, "
                       "project.Query('SELECT Name FROM TrcpRecipe')[1].Name, studio.Nodes()[2].caption)");
    }
    [[nodiscard]] std::string project(const std::string& folder) const { return folder_.file(folder + "/p.hxs"); }
    /// Whether the project of this folder is the one that a macro works on.
    [[nodiscard]] bool isOpened(const std::string& folder) const {
        const std::string path = project(folder);
        const Result result = hxrecipe({"run", "--config", config_.c_str(), "--project", path.c_str(), macro_.c_str()});
        EXPECT_EQ(result.problems, "");
        EXPECT_EQ(result.results, "p\t" + path + "\t" + folder + "\t" + folder + "\n");
        return result.results == "p\t" + path + "\t" + folder + "\t" + folder + "\n";
    }

    std::string config_ = folder_.file("config");
};

TEST_F(SameName, EachOfTwoProgramsWorksOnItsOwnProject) {
    support::Processes programs;
    for (const char* folder : {"a", "b", "a", "b"}) {
        programs.start([this, folder] {
            for (int i = 0; i < 25; ++i) {
                if (!isOpened(folder)) throw std::runtime_error("another project was opened");
            }
        });
    }
    EXPECT_EQ(programs.wait(), 0);
}

TEST_F(SameName, AProgramWorksOnItsProjectWhileAnotherRecordsOneOfThatNameAllTheTime) {
    const support::Rival rival(config_ + "/registry.ini", "p");
    for (int i = 0; i < 50; ++i) EXPECT_TRUE(isOpened(i % 2 == 0 ? "a" : "b"));
}

TEST_F(SameName, TheProjectThatIsOpenIsTheOneOfItsName) {
    const std::string path = project("a"), registry = config_ + "/registry.ini";
    const std::string text = "[SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\p]\nPath=\"" + folder_.file("b") + "\"\n";
    const Result result = macro("local file = io.open([[" + registry + "]], 'w') file:write([[" + text +
                                    "]]) file:close() studio.OpenProject('p') print(addin.ProjectPath)",
                                {"--trust", "--config", config_.c_str(), "--project", path.c_str()});
    EXPECT_EQ(result.problems, "");
    EXPECT_EQ(result.results, path + "\n");
}

}  // namespace

}  // namespace hx::cli
