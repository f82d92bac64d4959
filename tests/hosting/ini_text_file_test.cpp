// SPDX-License-Identifier: MIT
#include "hosting/ini_text_file.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/files_folder.h"

namespace hx::hosting {
namespace {

using namespace std::string_literals;

class IniFileTest : public ::testing::Test {
  protected:
    std::string read(const std::string& key, const std::string& section = "frmtabGridRCP") const {
        return ini.read(section, key, "none", folder.file("a.ini"));
    }
    void write(const std::string& key, const std::string& text, const std::string& section = "frmtabGridRCP") {
        ini.write(section, key, text, folder.file("a.ini"));
    }
    void file(std::string_view bytes) { EXPECT_EQ(folder.write("a.ini", bytes), folder.file("a.ini")); }
    std::string bytes() const { return folder.read("a.ini"); }
    /// The description of the error that a write must end with.
    std::string refusal(const std::string& key, const std::string& text, const std::string& section = "S") {
        try {
            write(key, text, section);
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.number(), automation::errFail);
            return error.description();
        }
        return "written";
    }

    FilesFolder folder;
    IniTextFile ini;
};

TEST_F(IniFileTest, MakesAFileWithSectionKeyAndWindowsLineEnds) {
    write("Me.Font.Size", "8,25");
    EXPECT_EQ(bytes(), "[frmtabGridRCP]\r\nMe.Font.Size=8,25\r\n");
    EXPECT_EQ(read("Me.Font.Size"), "8,25");
}

TEST_F(IniFileTest, GivesTheFallbackForAMissingFileSectionAndKey) {
    EXPECT_EQ(read("a"), "none");
    file("[other]\r\na=1\r\n");
    EXPECT_EQ(read("a"), "none");
    EXPECT_EQ(read("b", "other"), "none");
    EXPECT_EQ(read("a", "other"), "1");
}

TEST_F(IniFileTest, GivesTheFallbackForAFileThatCannotBeRead) {
    std::filesystem::create_directory(folder.file("a.ini"));
    EXPECT_EQ(read("a"), "none");
    EXPECT_EQ(ini.read("s", "a", "none", ""), "none");
}

TEST_F(IniFileTest, TakesKeysWithDotsQuotesAndParentheses) {
    const std::string key = "tdbRM.Columns(\"VarRecipe\").Width";
    write(key, "3000,189");
    EXPECT_EQ(read(key), "3000,189");
    EXPECT_EQ(read("TDBRM.columns(\"varrecipe\").WIDTH"), "3000,189");
}

TEST_F(IniFileTest, TakesAllBehindTheFirstEqualsSignAsText) {
    file("[frmtabGridRCP]\na= x = y \nb=\n");
    EXPECT_EQ(read("a"), " x = y ");
    EXPECT_EQ(read("b"), "");
}

TEST_F(IniFileTest, ReadsBothLineEndsBlanksAroundSectionAndKeyAndALastLineWithoutEnd) {
    file("  [ FRMTABGRIDRCP ]\t\na=1\r\n b =2\n;c=3\nd=4");
    EXPECT_EQ(read("a"), "1");
    EXPECT_EQ(read("b"), "2");
    EXPECT_EQ(read("c"), "none");
    EXPECT_EQ(read("d"), "4");
}

TEST_F(IniFileTest, KeepsEveryOtherByteOfTheFile) {
    file("; K\xF6pfe\n\n[ other ]\r\nx = 1\r\ngarbage without sign\n[FrmTabGridRcp]\n; mine\na=1\nb=2\n\n[last]\nz=9");
    write("A", "7");
    write("neu", "ä");
    EXPECT_EQ(bytes(),
              "; K\xF6pfe\n\n[ other ]\r\nx = 1\r\ngarbage without sign\n[FrmTabGridRcp]\n; mine\nA=7\nb=2\nneu=ä\n\n"
              "[last]\nz=9");
    EXPECT_EQ(read("neu"), "ä");
}

TEST_F(IniFileTest, AddsASectionBehindALastLineWithoutEnd) {
    file("[a]\nx=1");
    write("y", "2", "b");
    EXPECT_EQ(bytes(), "[a]\nx=1\n[b]\ny=2\n");
}

TEST_F(IniFileTest, FillsAnEmptyFileAndAnEmptySection) {
    file("");
    EXPECT_EQ(read("a"), "none");
    write("a", "1");
    EXPECT_EQ(bytes(), "[frmtabGridRCP]\r\na=1\r\n");
    file("[frmtabGridRCP]\n\n[b]\n");
    write("a", "1");
    EXPECT_EQ(bytes(), "[frmtabGridRCP]\na=1\n\n[b]\n");
}

TEST_F(IniFileTest, TakesTheFirstOfTwoEqualKeysAndSearchesASectionThatStandsTwice) {
    file("[s]\na=1\na=2\n[t]\n[S]\nb=3\n");
    EXPECT_EQ(read("a", "s"), "1");
    EXPECT_EQ(read("b", "s"), "3");
    write("a", "4", "s");
    write("c", "5", "s");
    EXPECT_EQ(bytes(), "[s]\na=4\na=2\nc=5\n[t]\n[S]\nb=3\n");
}

TEST_F(IniFileTest, ReadsGarbageAsMissing) {
    const auto garbage = "\x01\x00\xFE[[[]=\r\r\n=\n]a=1\n"s;
    file(garbage);
    EXPECT_EQ(read("a"), "none");
    write("a", "1");
    EXPECT_EQ(bytes(), garbage + "[frmtabGridRCP]\r\na=1\r\n");
    EXPECT_EQ(read("a"), "1");
}

TEST_F(IniFileTest, ReadsTextsOfTheWindowsCodePage) {
    file(
        "[frmtabGridRCP]\r\nMe.Font.Name=Gr\xF6\xDF"
        "e\r\n");
    EXPECT_EQ(read("Me.Font.Name"), "Größe");
}

TEST_F(IniFileTest, KeepsTheByteOrderMarkOfUtf8) {
    file("\xEF\xBB\xBF[frmtabGridRCP]\r\na=1\r\n");
    EXPECT_EQ(read("a"), "1");
    write("a", "2");
    EXPECT_EQ(bytes(), "\xEF\xBB\xBF[frmtabGridRCP]\r\na=2\r\n");
}

TEST_F(IniFileTest, LeavesAUtf16FileAsItIs) {
    const auto utf16 = "\xFF\xFE[\0s\0]\0\n\0a\0=\0"s;
    file(utf16);
    EXPECT_EQ(read("a", "s"), "none");
    EXPECT_NE(refusal("a", "1").find("UTF-16"), std::string::npos);
    EXPECT_EQ(bytes(), utf16);
}

TEST_F(IniFileTest, RefusesWhatCannotStandInOneLine) {
    file("[S]\na=1\n");
    EXPECT_NE(refusal("a", "1\r\n[S2]"), "written");
    EXPECT_NE(refusal("a", std::string("1\0", 2)), "written");
    EXPECT_NE(refusal("a=b", "1"), "written");
    EXPECT_NE(refusal("[a", "1"), "written");
    EXPECT_NE(refusal(";a", "1"), "written");
    EXPECT_EQ(refusal(" ;k", "1"), "This key cannot stand in an INI file:  ;k");
    EXPECT_NE(refusal("\t[k]", "1"), "written");
    EXPECT_NE(refusal("", "1"), "written");
    EXPECT_NE(refusal("a", "1", "S]\n[T"), "written");
    EXPECT_EQ(bytes(), "[S]\na=1\n");
}

TEST_F(IniFileTest, ReadsEveryKeyThatItTakes) {
    for (const std::string key : {" k", "k ", "k;", "a ; b", "k]", "k [x]", "\xEF\xBB\xBFk", "#k", "\"k\""}) {
        write(key, " text ");
        EXPECT_EQ(read(key), " text ") << key;
        write(key, "again");
        EXPECT_EQ(read(key), "again") << key;
    }
}

TEST_F(IniFileTest, WritesAllThatCanStandInTheFileAndNamesWhatCannot) {
    file("[S]\nb=0\nz=9\n");
    const std::vector<host::IniText> texts = {{"a", "1"}, {"b", "x\0y"s}, {" ;k", "2"}, {"c", "3"}};
    try {
        ini.writeAll("S", texts, folder.file("a.ini"));
        FAIL() << "written";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(), "A text with a line break or a NUL cannot stand in an INI file: b");
    }
    EXPECT_EQ(bytes(), "[S]\nb=0\nz=9\na=1\nc=3\n");
}

TEST_F(IniFileTest, MakesNoFileForWhatCannotStandInIt) {
    EXPECT_NE(refusal("", "1"), "written");
    EXPECT_EQ(folder.entries(), 0U);
}

TEST_F(IniFileTest, DoesNotWriteFallbacksOverTextsThatCouldNotBeRead) {
    file("[S]\na=mine\nb=2\n");
    // While a folder stands in the way nothing can be read.
    std::filesystem::rename(folder.file("a.ini"), folder.file("away"));
    std::filesystem::create_directory(folder.file("a.ini"));
    EXPECT_EQ(read("a", "S"), "none");
    std::filesystem::remove(folder.file("a.ini"));
    std::filesystem::rename(folder.file("away"), folder.file("a.ini"));
    EXPECT_EQ(read("b", "S"), "2");

    EXPECT_EQ(refusal("a", "none"), "The file '" + folder.file("a.ini") +
                                        "' cannot be written: it could not be read before, so what it holds stays.");
    EXPECT_EQ(bytes(), "[S]\na=mine\nb=2\n");
    ini.write("S", "a", "1", folder.file("other.ini"));

    EXPECT_EQ(read("a", "S"), "mine");
    write("a", "3", "S");
    EXPECT_EQ(bytes(), "[S]\na=3\nb=2\n");
}

TEST_F(IniFileTest, SeesWhatAnotherProgramWroteOfTheSameLength) {
    file("[frmtabGridRCP]\na=1\n");
    EXPECT_EQ(read("a"), "1");
    const auto time = std::filesystem::last_write_time(folder.file("a.ini"));
    file("[frmtabGridRCP]\na=2\n");
    std::filesystem::last_write_time(folder.file("a.ini"), time);
    EXPECT_EQ(read("a"), "2");
    std::filesystem::remove(folder.file("a.ini"));
    EXPECT_EQ(read("a"), "none");
}

TEST_F(IniFileTest, SaysWhichFileInAMissingFolderCannotBeWritten) {
    try {
        ini.write("s", "a", "1", folder.file("gone/a.ini"));
        FAIL() << "written";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(),
                  "The file '" + folder.file("gone/a.ini") + "' cannot be written: No such file or directory.");
    }
}

TEST_F(IniFileTest, DoesNotOverruleAFileThatIsSetToReadOnly) {
    file("[S]\na=1\n");
    std::filesystem::permissions(folder.file("a.ini"), std::filesystem::perms::owner_read);
    EXPECT_EQ(refusal("a", "2"), "The file '" + folder.file("a.ini") + "' cannot be written: it is set to read-only.");
    EXPECT_EQ(bytes(), "[S]\na=1\n");
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(IniFileTest, DoesNotReplaceAFolder) {
    std::filesystem::create_directory(folder.file("a.ini"));
    EXPECT_NE(refusal("a", "2"), "written");
    EXPECT_TRUE(std::filesystem::is_directory(folder.file("a.ini")));
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(IniFileTest, KeepsPermissionsAndLeavesNoOtherFile) {
    file("[S]\na=1\n");
    const auto perms = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(folder.file("a.ini"), perms);
    write("a", "2", "S");
    EXPECT_EQ(std::filesystem::status(folder.file("a.ini")).permissions(), perms);
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(IniFileTest, WritesThroughALink) {
    EXPECT_EQ(folder.write("real.ini", "[S]\na=1\n"), folder.file("real.ini"));
    std::filesystem::create_symlink(folder.file("real.ini"), folder.file("a.ini"));
    write("a", "2", "S");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("a.ini")));
    EXPECT_EQ(folder.read("real.ini"), "[S]\na=2\n");
}

TEST_F(IniFileTest, TakesFileNamesWithUmlauts) {
    const std::string name = folder.file("Prüfstand.ini");
    ini.write("s", "a", "1", name);
    EXPECT_EQ(ini.read("s", "a", "none", name), "1");
    EXPECT_EQ(folder.read("Prüfstand.ini"), "[s]\r\na=1\r\n");
}

}  // namespace
}  // namespace hx::hosting
