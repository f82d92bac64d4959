// SPDX-License-Identifier: MIT
#include <fstream>

#include "macro_fixture.h"
#include "support/temporary_folder.h"

namespace hx::lua {
namespace {

using testing::HasSubstr;

struct ProjectFolder {
    ProjectFolder() {
        std::filesystem::create_directories(files.file("project"));
        std::ofstream(files.file("secret.txt")) << "secret";
        std::ofstream(files.file("project/list.txt"), std::ios::binary) << "Cola\nTee\n";
        std::ofstream(files.file("project/Plant.hxs")) << "data";
    }
    support::TemporaryFolder files;
};

struct Sandbox : ProjectFolder, MacroTest {
    Sandbox() : MacroTest(false, files.file("project")) {}
};

struct WithoutFolder : MacroTest {};

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
    const std::string outside = "is not in the folder '" + files.file("project") + "', whose files the macro may use";
    for (const std::string name : {"../secret.txt", "link.txt", "/etc/hostname", "../project", "."}) {
        EXPECT_THAT(failure("io.open('" + name + "')"), HasSubstr(outside)) << name;
        EXPECT_THAT(failure("io.lines('" + name + "')"), HasSubstr(outside)) << name;
    }
    EXPECT_THAT(failure("io.lines()"), HasSubstr("text expected"));
}

TEST_F(Sandbox, MakesNoFileElsewhereByALinkToNothing) {
    std::filesystem::create_symlink(files.file("made.txt"), files.file("project/link.txt"));
    EXPECT_THAT(failure("io.open('link.txt', 'w')"), HasSubstr("is not in the folder"));
    EXPECT_FALSE(std::filesystem::exists(files.file("made.txt")));
}

TEST_F(Sandbox, RefusesWhatIsNoFile) {
    std::filesystem::create_directory(files.file("project/folder"));
    EXPECT_THAT(failure("io.open('folder')"), HasSubstr("The file 'folder' is no file"));
    EXPECT_THAT(failure("io.open('Plant.hxs-journal\\0.txt', 'w')"), HasSubstr("zero byte"));
}

TEST_F(WithoutFolder, UsesNoFileAtAll) {
    EXPECT_THAT(failure("io.open('list.txt')"), HasSubstr("The macro has no files"));
}

TEST_F(Sandbox, DoesNotWriteOverAProject) {
    EXPECT_THAT(failure("io.open('Plant.hxs', 'w')"), HasSubstr("cannot be written by a macro"));
    EXPECT_THAT(failure("io.open('plant.HXS', 'r+')"), HasSubstr("cannot be written by a macro"));
    EXPECT_THAT(failure("io.open('Plant.hxs-journal', 'w')"), HasSubstr("cannot be written by a macro"));
    EXPECT_FALSE(std::filesystem::exists(files.file("project/Plant.hxs-journal")));
    EXPECT_EQ(std::filesystem::file_size(files.file("project/Plant.hxs")), 4U);
    EXPECT_EQ(run("print(io.open('Plant.hxs', 'rb'):read('a'))"), "data\n");
}

TEST_F(Sandbox, DoesNotWriteOverAProjectByAnotherName) {
    const std::string database("SQLite format 3\0 and what follows", 33),
        journal("\xD9\xD5\x05\xF9\x20\xA1\x63\xD7 a journal");
    std::ofstream(files.file("plant.hxs"), std::ios::binary) << database;
    std::filesystem::create_hard_link(files.file("plant.hxs"), files.file("project/notes.txt"));
    std::ofstream(files.file("project/more.txt"), std::ios::binary) << journal;
    for (const std::string name : {"notes.txt", "more.txt"}) {
        for (const std::string mode : {"w", "a", "r+"}) {
            EXPECT_THAT(failure("io.open('" + name + "', '" + mode + "')"), HasSubstr("is a project")) << name << mode;
        }
    }
    EXPECT_EQ(std::filesystem::file_size(files.file("plant.hxs")), database.size());
    EXPECT_EQ(run("print(#io.open('notes.txt', 'rb'):read('a'))"), "33\n");
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
