#include <fstream>

#include "macro_fixture.h"
#include "support/temporary_folder.h"

namespace hx::lua {
namespace {

using testing::HasSubstr;

struct Sandbox : MacroTest {
    Sandbox() {
        std::filesystem::create_directories(files.file("project"));
        folder = files.file("project");
        std::ofstream(files.file("secret.txt")) << "secret";
        std::ofstream(files.file("project/list.txt")) << "Cola\nTee\n";
        std::ofstream(files.file("project/Plant.hxs")) << "data";
    }
    support::TemporaryFolder files;
};

struct Trusted : MacroTest {
    Trusted() : MacroTest(true) {}
};

TEST_F(Sandbox, HasNoProcessesAndNoCodeOfOtherFiles) {
    EXPECT_EQ(run("print(os.execute, os.remove, os.rename, os.exit, os.getenv, os.tmpname, io.popen, io.tmpfile)"),
              "nil\tnil\tnil\tnil\tnil\tnil\tnil\tnil\n");
    EXPECT_EQ(run("print(require, package, debug, dofile, loadfile)"), "nil\tnil\tnil\tnil\tnil\n");
}

TEST_F(Sandbox, HasTheLibrariesThatStayInside) {
    EXPECT_EQ(run("print(#os.date('%Y'), math.floor(2.5), ('x'):rep(2), utf8.len('ä'), table.concat({1, 2}))"),
              "4\t2\txx\t1\t12\n");
}

TEST_F(Sandbox, LoadsTextButNoPrecompiledCode) {
    EXPECT_EQ(run("print(load('return 1 + 1')())"), "2\n");
    EXPECT_EQ(run("print(load('return x', 'c', 't', {x = 3})())"), "3\n");
    EXPECT_EQ(run("print((load(string.dump(function() end), 'c', 'b')))"), "nil\n");
}

TEST_F(Sandbox, ReadsAndWritesFilesOfTheProjectsFolder) {
    EXPECT_EQ(run("for line in io.lines('list.txt') do print(line) end"), "Cola\nTee\n");
    run("local f = io.open('out.txt', 'w') f:write('x') f:close()");
    EXPECT_TRUE(std::filesystem::exists(files.file("project/out.txt")));
    EXPECT_EQ(run("local f = io.open('" + files.file("project/list.txt") + "') print(f:read()) f:close()"), "Cola\n");
    EXPECT_EQ(run("print((select(2, io.open('none.txt'))):match('No such file') ~= nil)"), "true\n");
}

TEST_F(Sandbox, RefusesFilesElsewhere) {
    std::filesystem::create_symlink(files.file("secret.txt"), files.file("project/link.txt"));
    for (const std::string name : {"../secret.txt", "link.txt", "/etc/hostname", "../project", "."}) {
        EXPECT_THAT(failure("io.open('" + name + "')"), HasSubstr("is not in the project's folder")) << name;
        EXPECT_THAT(failure("io.lines('" + name + "')"), HasSubstr("is not in the project's folder")) << name;
    }
    EXPECT_THAT(failure("io.lines()"), HasSubstr("text expected"));
    folder.clear();
    EXPECT_THAT(failure("io.open('list.txt')"), HasSubstr("No project is open"));
}

TEST_F(Sandbox, DoesNotWriteOverAProject) {
    EXPECT_THAT(failure("io.open('Plant.hxs', 'w')"), HasSubstr("cannot be written by a macro"));
    EXPECT_THAT(failure("io.open('plant.HXS', 'r+')"), HasSubstr("cannot be written by a macro"));
    EXPECT_THAT(failure("io.open('Plant.hxs-journal', 'w')"), HasSubstr("cannot be written by a macro"));
    EXPECT_FALSE(std::filesystem::exists(files.file("project/Plant.hxs-journal")));
    EXPECT_EQ(std::filesystem::file_size(files.file("project/Plant.hxs")), 4U);
    EXPECT_EQ(run("print(io.open('Plant.hxs', 'rb'):read('a'))"), "data\n");
}

TEST_F(Sandbox, HidesTheMetatableOfFiles) {
    EXPECT_EQ(run("local f = io.open('list.txt') print(getmetatable(f), io.type(f)) f:close() print(io.type(f))"),
              "file\tfile\nclosed file\n");
}

TEST_F(Sandbox, TakesTheMarkOfUtf8AndALineForTheProgramInFront) {
    EXPECT_EQ(run("\xEF\xBB\xBFprint(1)"), "1\n");
    EXPECT_EQ(run("#!/usr/bin/env hxrecipe\nprint(2)"), "2\n");
    EXPECT_EQ(failure("\xEF\xBB\xBF#!/usr/bin/env hxrecipe\n\nx = ="), "test.lua:3: unexpected symbol near '='");
    EXPECT_EQ(run("#!"), "");
}

TEST_F(Sandbox, PrintsToTheGivenPlace) {
    EXPECT_EQ(run("print(1, nil, true, tank) print() io.write('a', 2, '\\n')"), "1\tnil\ttrue\tTank\n\na2\n");
}

TEST_F(Sandbox, HandsArgumentsToTheMacro) {
    engine.run("print(select('#', ...), arg[2], ...)", "test.lua", {"a", "b"});
    EXPECT_EQ(printed, "2\tb\ta\tb\n");
}

TEST_F(Sandbox, NamesWhatCannotBeReadWithItsLine) {
    EXPECT_THAT(failure("\nx = = 1"), HasSubstr("test.lua:2: unexpected symbol"));
    EXPECT_EQ(traceback, "");
    EXPECT_EQ(failure("error({})").substr(0, 6), "table:");
    EXPECT_EQ(failure("error()"), "nil");
}

TEST_F(Trusted, HasAllLibraries) {
    EXPECT_EQ(run("print(type(os.execute), type(io.popen), type(require), type(debug.traceback))"),
              "function\tfunction\tfunction\tfunction\n");
}

}  // namespace
}  // namespace hx::lua
