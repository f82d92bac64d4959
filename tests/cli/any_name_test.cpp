// SPDX-License-Identifier: MIT
// Files and folders whose names have letters of any script.
#include "run_cli.h"

namespace hx::cli {

namespace {

class AnyName : public CliTest {
  protected:
    AnyName() { std::filesystem::create_directory(pathOf(place(""))); }
    static std::filesystem::path pathOf(const std::string& name) { return std::u8string(name.begin(), name.end()); }
    [[nodiscard]] std::string place(const std::string& name) const { return folder_.file("Größe € 配方/" + name); }
    static std::string done(const std::vector<const char*>& arguments) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 0) << testing::PrintToString(arguments) << result.problems;
        return result.results;
    }
};

TEST_F(AnyName, IsOneForEveryFile) {
    const std::string project = place("Süß.hxs"), json = place("Süß.json"), list = place("Süß.csv"),
                      macro = place("Süß.lua"), many = place("Viele.hxs"), config = place("Einstellungen");
    done({"new", project.c_str()});
    std::ofstream(pathOf(list), std::ios::binary) << "Wärme;REAL\n";
    done({"variables", "import", project.c_str(), list.c_str()});
    EXPECT_NE(done({"variables", "list", project.c_str()}).find("Wärme"), std::string::npos);
    done({"export", project.c_str(), json.c_str()});
    done({"export", project.c_str(), json.c_str()});
    done({"import", project.c_str(), json.c_str()});
    EXPECT_EQ(done({"diff", project.c_str(), json.c_str()}), "No differences.\n");
    done({"generate", "--recipes", "2", "--members", "4", "--big", "0", many.c_str()});
    done({"check", project.c_str()});
    std::ofstream(pathOf(macro), std::ios::binary)
        << "print(addin.ProjectName) local f = io.open('neu.txt', 'w') f:write('x') f:close()";
    EXPECT_EQ(done({"run", "--project", project.c_str(), "--config", config.c_str(), macro.c_str()}), "Süß\n");
    EXPECT_EQ(hxrecipe({"new", project.c_str()}).problems, "hxrecipe: The file '" + project + "' exists already.\n");
}

}  // namespace

}  // namespace hx::cli
