// SPDX-License-Identifier: MIT
#include "variables_test.h"

namespace hx::cli {

namespace {

class VariablesInCsv : public VariableLists {
  protected:
    std::string imported(const std::string& text) {
        sqlite::Database(file_).execute("DELETE FROM ThxVariable WHERE ID > 2");
        const Result result = import(write("list.csv", text));
        EXPECT_EQ(result.status, 0) << result.problems;
        EXPECT_EQ(result.problems, "");
        return added();
    }
    std::string refused(const std::string& text) { return problem("list.csv", text); }
};

TEST_F(VariablesInCsv, AreAddedChangedOrLeftUnchanged) {
    const std::string list = write("list.csv",
                                   "Name;Type;Comment\nTank.Level;REAL;litres\nMOTOR.SPEED;DINT;1/min\n"
                                   "GRÖSSE;INT;\nGRÖßE;INT;\n");
    const Result result = import(list);
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.results, "Imported " + list + ": 2 variables added, 1 changed, 1 unchanged.\n");
    EXPECT_EQ(query(file_, "SELECT Name, Type, Comment FROM ThxVariable ORDER BY ID"),
              "Motor.Speed|DINT|1/min,Größe|INT|,Tank.Level|REAL|litres,GRÖSSE|INT|");
    EXPECT_EQ(import(list, {"--json"}).results, "{\"added\": 0, \"changed\": 0, \"unchanged\": 4}\n");
}

TEST_F(VariablesInCsv, AreFoundWhereTheTablesKeyIsAnotherColumn) {
    sqlite::Database(file_).execute(
        "DROP TABLE ThxVariable; CREATE TABLE ThxVariable (ID INT, Name VARCHAR(255), Type VARCHAR(20), Comment "
        "VARCHAR(255)); INSERT INTO ThxVariable VALUES (2, 'A', 'INT', ''), (1, 'B', 'INT', '');");
    EXPECT_EQ(import(write("list.csv", "Name;Type;Comment\nA;REAL;new\n")).status, 0);
    EXPECT_EQ(query(file_, "SELECT ID, Name, Type, Comment FROM ThxVariable ORDER BY Name"), "2|A|REAL|new,1|B|INT|");
}

TEST_F(VariablesInCsv, KeepWhatTheListDoesNotSay) {
    EXPECT_EQ(import(write("list.csv", "Comment,Variable\nfast,motor.speed\n")).status, 0);
    EXPECT_EQ(query(file_, "SELECT Name, Type, Comment FROM ThxVariable WHERE ID = 1"), "Motor.Speed|REAL|fast");
    EXPECT_EQ(import(write("list.csv", "motor.speed;INT\nx\n")).status, 0);
    EXPECT_EQ(query(file_, "SELECT Name, Type, Comment FROM ThxVariable WHERE ID <> 2"), "Motor.Speed|INT|fast,x||");
}

TEST_F(VariablesInCsv, HaveTheirDelimiterRecognised) {
    const std::string expected = "A|BOOL|x, y,B|INT|z";
    EXPECT_EQ(imported("A;BOOL;x, y\nB;INT;z\n"), expected);
    EXPECT_EQ(imported("A,BOOL,\"x, y\"\nB,INT,z"), expected);
    EXPECT_EQ(imported("A\tBOOL\tx, y\r\nB\tINT\tz\r\n"), expected);
    EXPECT_EQ(imported("A|BOOL|x, y\rB|INT|z\r"), expected);
    EXPECT_EQ(imported("sep=|\nA|BOOL|x, y\nB|INT|z"), expected);
    EXPECT_EQ(imported("Name\nA[1,1]\nA[1,2]\n"), "A[1,1]||,A[1,2]||");
    EXPECT_EQ(imported("A[1,1]\nA[1,2]\n"), "A[1,1]||,A[1,2]||");
    EXPECT_EQ(imported("\"A[1,1]\",INT\n\"A[1,2]\",INT\n"), "A[1,1]|INT|,A[1,2]|INT|");
}

TEST_F(VariablesInCsv, HaveTheirHeaderRecognisedInAnyOrder) {
    EXPECT_EQ(imported("Kommentar;DATENTYP;Variablenname\nk;INT;A\n"), "A|INT|k");
    EXPECT_EQ(imported(" Description , Data Type , Tag Name \nk,INT,A\n"), "A|INT|k");
    EXPECT_EQ(imported("Typ;Bezeichnung\nINT;A\n"), "A|INT|");
    EXPECT_EQ(imported("A;INT;k\n"), "A|INT|k");
    EXPECT_EQ(imported("Name;INT;a variable of that name\n"), "Name|INT|a variable of that name");
}

TEST_F(VariablesInCsv, MayHaveFurtherColumnsWithAHeader) {
    const std::string list = write("list.csv", "Name;Address;Type\nA;%MW1;INT\n");
    const Result result = import(list);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "hxrecipe: " + list + ", the column \"Address\" is not read\n");
    EXPECT_EQ(added(), "A|INT|");
}

TEST_F(VariablesInCsv, ColumnsThatAreNotReadAreNamedInOneLine) {
    const std::string list = write("list.csv",
                                   "Tag Name,Address,Data Type,Scan Rate,Description,Low Limit\n"
                                   "\"Line1.Level\",40001,Float,100,\"litres, at most 5\",0\n");
    const Result result = import(list);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems,
              "hxrecipe: " + list + ", the columns \"Address\", \"Scan Rate\", \"Low Limit\" are not read\n");
    EXPECT_EQ(added(), "Line1.Level|Float|litres, at most 5");
}

TEST_F(VariablesInCsv, MayHaveRemarksAndAVersionBeforeTheHeader) {
    const std::string list = write("list.csv",
                                   "// list of the \"wet\" end, as of today, by hand\n\nVersion;1.0\n0.3;;\n"
                                   "Name;Type;Comment\nA;INT;a\nB;REAL;b\n");
    const Result result = import(list);
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.problems, "hxrecipe: " + list + ", the 3 lines before the header are not read\n");
    EXPECT_EQ(added(), "A|INT|a,B|REAL|b");
    EXPECT_EQ(refused("#1\nName;Type\n\n;INT\n"), "line 4: \"Name\": a name is missing\n");
}

// A variable may be called "Name": what stands before it is no remark.
TEST_F(VariablesInCsv, ThatStandBeforeALineLikeAHeaderAreRead) {
    EXPECT_EQ(imported("A;INT;a\nName;Typ;Comment\nB;REAL;b\n"), "A|INT|a,Name|Typ|Comment,B|REAL|b");
    EXPECT_EQ(imported("A;INT\nName;Typ\nB;REAL\n"), "A|INT|,Name|Typ|,B|REAL|");
}

TEST_F(VariablesInCsv, AreTheTagsOfAListOfSeveralKinds) {
    const std::string head =
        "remark,\"Export\"\r\nremark,\"Version = 20\"\r\n0.3\r\n"
        "TYPE,SCOPE,NAME,DESCRIPTION,DATATYPE,SPECIFIER,ATTRIBUTES\r\n";
    const std::string others = "ALIAS,,Inlet,\"\",\"\",\"Rack:1.0\",\"\"\r\nCOMMENT,,Level,\"of\",\"\",\"Level.0\"\r\n";
    const std::string list = write("list.csv", head + "TAG,,Level,\"litres\",\"REAL\",\"\",\"(Radix := Float)\"\r\n" +
                                                   others + "TAG,Mixer,Speed,\"\",\"DINT\",\"\",\"\"\r\n");
    const Result result = import(list);
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.problems, "hxrecipe: " + list + ", the 3 lines before the header are not read\nhxrecipe: " + list +
                                   ", the columns \"SPECIFIER\", \"ATTRIBUTES\" are not read\nhxrecipe: " + list +
                                   ", lines that are no tags are not read: \"ALIAS\" (1), \"COMMENT\" (1)\n");
    EXPECT_EQ(added(), "Level|REAL|litres,Mixer.Speed|DINT|");
    EXPECT_EQ(refused(head + others), "line 4: of no line below the column \"TYPE\" says that it is a tag\n");
}

TEST_F(VariablesInCsv, AreReadByRfc4180) {
    EXPECT_EQ(imported("\"A\";INT;\"say \"\"hi\"\";\r\nbye\"\r\n\r\n ;;\r\n B ; INT ;  x \r\n"),
              "A|INT|say \"hi\";\r\nbye,B|INT|x");
    EXPECT_EQ(imported(";;;\n;;\nA;INT;;;;\n"), "A|INT|");
}

TEST_F(VariablesInCsv, HaveTheirEncodingRecognised) {
    const std::string expected = "Öl|REAL|5 €";
    EXPECT_EQ(imported("Öl;REAL;5 €\n"), expected);
    EXPECT_EQ(imported("\xEF\xBB\xBFÖl;REAL;5 €\n"), expected);
    EXPECT_EQ(imported("\xD6l;REAL;5 \x80\n"), expected);
    using namespace std::string_literals;
    EXPECT_EQ(imported("\xFF\xFE\xD6\0l\0;\0R\0E\0A\0L\0;\0005\0 \0\xAC\x20\n\0"s), expected);
    EXPECT_EQ(imported("\xFE\xFF\0\xD6\0l\0;\0R\0E\0A\0L\0;\0005\0 \x20\xAC\0\n"s), expected);
    EXPECT_EQ(import(write("list.csv", "\xA3uk;REAL;\n"), {"--encoding", "ISO-8859-2"}).status, 0);
    EXPECT_EQ(query(file_, "SELECT Name FROM ThxVariable WHERE Name LIKE '%uk'"), "Łuk");
    EXPECT_EQ(import(folder_.file("list.csv"), {"--encoding", "klingon"}).status, 2);
}

TEST_F(VariablesInCsv, ThatAreLongAreReadInPieces) {
    std::string text = "Name;Type;Comment\n";
    for (int i = 0; i < 30'000; ++i) text += "Ventil" + std::to_string(i) + ".Öffnung;REAL;\"in\n%\"\n";
    const std::string list = write("list.csv", text);
    const Result result = import(list);
    EXPECT_EQ(result.results, "Imported " + list + ": 30000 variables added, 0 changed, 0 unchanged.\n");
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM ThxVariable WHERE Type = 'REAL' AND Comment = 'in\n%'"), "30000");
    EXPECT_EQ(refused(text + "ventil7.öffnung;INT;\n"),
              "line 60002: \"Name\": \"ventil7.öffnung\" is on line 16 too, with another type or comment\n");
}

TEST_F(VariablesInCsv, ADryRunPrintsWhatWouldChangeAndChangesNothing) {
    const std::string list = write("list.csv", "A;INT;a\nmotor.speed;REAL;rad/s\ngröße;INT;\na;INT;a\n");
    const std::string before = contents(file_);
    const Result result = import(list, {"--dry-run"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.results,
              "+ variable \"A\" INT\n~ variable \"Motor.Speed\", Comment: \"rpm\" -> \"rad/s\"\n"
              "Would import " +
                  list + ": 1 variables added, 1 changed, 1 unchanged.\n");
    EXPECT_EQ(import(list, {"--dry-run", "--json"}).results,
              "{\"added\": 1, \"changed\": 1, \"unchanged\": 1, \"changes\": [\n"
              "{\"kind\":\"added\",\"variable\":\"A\",\"after\":{\"type\":\"INT\",\"comment\":\"a\"}},\n"
              "{\"kind\":\"changed\",\"variable\":\"Motor.Speed\",\"before\":{\"type\":\"REAL\",\"comment\":\"rpm\"},"
              "\"after\":{\"type\":\"REAL\",\"comment\":\"rad/s\"}}\n]}\n");
    EXPECT_TRUE(contents(file_) == before);
    EXPECT_EQ(filesInFolder().size(), 2U);
}

TEST_F(VariablesInCsv, BadInputIsNamedWithLineAndField) {
    EXPECT_EQ(refused("Name;Type\n\n;INT\n"), "line 3: \"Name\": a name is missing\n");
    EXPECT_EQ(refused("A;INT;x\nB;INT;x;y\n"), "line 2: 4 columns; there are 3: name, type, comment\n");
    EXPECT_EQ(refused("Name;Type\nB;INT;x\n"), "line 2: 3 columns; there are 2 in the header\n");
    EXPECT_EQ(refused("A;INT\nb;INT\na;REAL\n"),
              "line 3: \"Name\": \"a\" is on line 1 too, with another type or comment\n");
    EXPECT_EQ(refused("Typ;Kommentar\nINT;x\n"), "line 1: no column is headed \"Name\" or \"Variable\"\n");
    EXPECT_EQ(refused("Name;Typ;type\nINT;x\n"), "line 1: two columns mean the same: \"Typ\" and \"type\"\n");
    EXPECT_EQ(refused("A;INT\n\"B\tC\";INT\n"), "line 2: \"Name\": \"B\\x09C\" has control characters\n");
    EXPECT_EQ(refused("A;INT;\"x\ay\"\n"), "line 1: \"Comment\": \"x\\x07y\" has control characters\n");
    EXPECT_EQ(refused("A;INT\n" + std::string(256, 'n') + ";INT\n"),
              "line 2: \"Name\": \"" + std::string(256, 'n') + "\" is longer than 255 characters\n");
    EXPECT_EQ(refused("A;A_TYPE_OF_21_LETTERS_\n"),
              "line 1: \"Type\": \"A_TYPE_OF_21_LETTERS_\" is longer than 20 characters\n");
    EXPECT_EQ(refused("A;INT\nB;INT;\"x\nC;INT\n"), "line 2: the quotation mark that begins a field is not closed\n");
    EXPECT_EQ(refused("A;INT\nB;INT;5\" pipe\n"),
              "line 2: a quotation mark within a field; the whole field must be in quotation marks, and this one "
              "doubled\n");
    EXPECT_EQ(refused("A;INT\nB;INT;\x81\n"), "line 2: the byte 0x81 is no text in WINDOWS-1252\n");
    EXPECT_EQ(refused("Ä;INT\nÖ;INT\nB;\xE4\n"), "line 3: the byte 0xE4 is no text in UTF-8\n");
    EXPECT_EQ(refused("\xEF\xBB\xBFName\n\xE4\n"), "line 2: the byte 0xE4 is no text in UTF-8\n");
    EXPECT_EQ(refused(std::string("\xFF\xFE"
                                  "A\0\n\0B",
                                  7)),
              "line 2: the byte 0x42 is no text in UTF-16LE\n");
    EXPECT_EQ(refused("A;INT\n\"B" + std::string(1 << 21, 'x')),
              "line 2: the record is longer than 1 MB; is a quotation mark not closed?\n");
}

TEST_F(VariablesInCsv, AListWithoutVariablesIsRefused) {
    for (const char* text : {"", "\n\n", "\xEF\xBB\xBF", "Name;Type;Comment\n", ";;\n"}) {
        const std::string list = write("list.csv", text);
        const Result result = import(list);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "hxrecipe: There are no variables in " + list + "\n");
    }
}

TEST_F(VariablesInCsv, FilesThatCannotBeReadAreNamed) {
    const std::string none = folder_.file("none.csv");
    EXPECT_EQ(import(none).problems, "hxrecipe: " + none + " cannot be read: No such file or directory\n");
    EXPECT_EQ(import(folder_.path()).problems, "hxrecipe: " + folder_.path() + " is a folder, not a file\n");
    EXPECT_EQ(import(file_).problems, "hxrecipe: " + file_ + " is a project, not a list of variables\n");
    const std::string list = write("list.csv", "A;INT\n");
    EXPECT_EQ(hxrecipe({"variables", "import", none.c_str(), list.c_str()}).problems,
              "hxrecipe: Could not find file '" + none + "'.\n");
    EXPECT_EQ(hxrecipe({"variables", "import", list.c_str(), list.c_str()}).problems,
              "hxrecipe: The file '" + list + "' is not a project file.\n");
    sqlite::Database(file_).execute("DROP TABLE ThxVariable");
    EXPECT_EQ(import(list).problems, "hxrecipe: There is no table \"ThxVariable\" in " + file_ + "\n");
    for (const auto& arguments :
         {std::vector<const char*>{"variables"}, {"variables", "import"}, {"variables", "wash"}}) {
        EXPECT_EQ(hxrecipe(arguments).status, 2);
    }
}

TEST_F(VariablesInCsv, AFailedWriteLeavesTheProjectAsItWas) {
    sqlite::Database(file_).execute(
        "ALTER TABLE ThxVariable ADD COLUMN Room INTEGER CONSTRAINT full CHECK (Name <> 'C')");
    EXPECT_NE(refused("A;INT\nB;INT\nC;INT\n").find("full"), std::string::npos);
}

TEST_F(VariablesInCsv, AreListed) {
    EXPECT_EQ(hxrecipe({"variables", "list", file_.c_str()}).results, "\"Größe\" INT\n\"Motor.Speed\" REAL\n");
    EXPECT_EQ(hxrecipe({"variables", "list", "--json", file_.c_str()}).results,
              "{\"variables\": [\n{\"name\":\"Größe\",\"type\":\"INT\",\"comment\":\"\"},\n"
              "{\"name\":\"Motor.Speed\",\"type\":\"REAL\",\"comment\":\"rpm\"}\n]}\n");
    sqlite::Database(file_).execute(
        "DELETE FROM ThxVariable; INSERT INTO ThxVariable (Name, Type) VALUES ('a' || char(155) || '«', 'T' || "
        "char(10))");
    EXPECT_EQ(hxrecipe({"variables", "list", file_.c_str()}).results, "\"a\\xC2\\x9B«\" T\\x0A\n");
    const Result none = hxrecipe({"variables", "list", "/no/such/file"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.results, "");
}

}  // namespace

}  // namespace hx::cli
