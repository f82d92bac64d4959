// SPDX-License-Identifier: MIT

// What the provider says when something goes wrong, and how long it waits before it says so.
#include <filesystem>

#include "fault_disk.h"
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

namespace fs = std::filesystem;
using automation::Language;

class Answers : public ProjectTest {
  protected:
    Provider german_{[] { return OpenOptions{.language = Language::german}; }};

    std::shared_ptr<ado::Connection> connectTo(Provider& provider) const {
        auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + path_);
        return connection;
    }
    static std::string refusalOf(const std::shared_ptr<ado::Connection>& connection, const std::string& table,
                                 const Values& row) {
        const auto rows = open(connection, table);
        rows->addNew(row);
        const auto error = errorOf([&] { rows->addNew(row); });
        EXPECT_EQ(error.number(), ado::dbErrDuplicate);
        return error.description();
    }
};

TEST_F(Answers, NameWhatExistsAsTheUserKnowsIt) {
    const Values recipe{{"Name", "Cola"}};
    const Values member{{"ParentID", 1}, {"VarRecipe", "Tank.Level"}};
    const auto english = connect();
    EXPECT_EQ(refusalOf(english, "TrcpRecipe", recipe), "There is a recipe \"Cola\" already.");
    EXPECT_EQ(refusalOf(english, "TrcpRecipeMember", member), "The recipe has the variable \"Tank.Level\" already.");
    EXPECT_EQ(refusalOf(english, "ThxVariable", recipe), "There is a variable \"Cola\" already.");
    const auto german = connectTo(german_);
    const Values other{{"Name", "Bier %1"}};
    EXPECT_EQ(refusalOf(german, "TrcpRecipe", other), "Ein Rezept \"Bier %1\" gibt es schon.");
    EXPECT_EQ(refusalOf(german, "TrcpRecipe", {{"Name", "Ärger"}}), "Ein Rezept \"Ärger\" gibt es schon.");
    EXPECT_EQ(refusalOf(german, "ThxVariable", other), "Eine Variable \"Bier %1\" gibt es schon.");
    EXPECT_EQ(refusalOf(german, "TrcpRecipeMember", {{"ParentID", 2}, {"VarRecipe", "A"}}),
              "Das Rezept hat die Variable \"A\" schon.");
}

TEST_F(Answers, CallASubRecipeNoVariable) {
    const Values first{{"ParentID", 1}, {"ChildID", 2}, {"VarRecipe", "File.A"}};
    const std::string told = "The recipe has this sub-recipe with the variable \"File.A\" for its file name already.";
    const auto connection = connect();
    EXPECT_EQ(refusalOf(connection, "TrcpRecipeMember", first), told);
    EXPECT_EQ(
        refusalOf(connectTo(german_), "TrcpRecipeMember", {{"ParentID", 1}, {"ChildID", 3}, {"VarRecipe", "File.A"}}),
        "Das Rezept hat dieses Unterrezept mit der Variablen \"File.A\" für den Dateinamen schon.");
    const auto rows = open(connection, "TrcpRecipeMember");
    rows->find("ChildID=3");
    rows->field("ChildID").setValue(2);
    EXPECT_EQ(errorOf([&] { rows->update(); }).description(), told);
    rows->cancelUpdate();
    rows->addNew(Values{{"ParentID", 1}, {"ChildID", 2}, {"VarRecipe", "File.B"}});
    rows->field("VarRecipe").setValue("File.A");
    EXPECT_EQ(errorOf([&] { rows->update(); }).description(), told);
}

TEST_F(Answers, NameTheColumnOfAnyOtherTable) {
    RawFile(path_).run("CREATE TABLE Extra (ID INTEGER PRIMARY KEY, Code VARCHAR(9) UNIQUE)");
    EXPECT_EQ(refusalOf(connect(), "Extra", {{"Code", "x"}}),
              "The value \"x\" exists already in column \"Code\" of table \"Extra\".");
}

TEST_F(Answers, AreInTheLanguageThatIsAskedForAtEachConnect) {
    Language language = Language::german;
    Provider provider([&] { return OpenOptions{.language = language}; });
    const auto refusal = [&] {
        ado::Connection connection(provider);
        return errorOf([&] { connection.open("Data Source=/nowhere/x.hxs"); }).description();
    };
    EXPECT_EQ(refusal(), "Die Datei '/nowhere/x.hxs' wurde nicht gefunden.");
    language = Language::english;
    EXPECT_EQ(refusal(), "Could not find file '/nowhere/x.hxs'.");
}

TEST_F(Answers, AreGermanForWhatTheFileIs) {
    ado::Connection connection(german_);
    const auto refusal = [&] { return errorOf([&] { connection.open("Data Source=" + path_); }).description(); };
    RawFile(path_).run("PRAGMA user_version=2");
    EXPECT_EQ(refusal(), "Das Projekt '" + path_ +
                             "' stammt von einem neueren Programm (Format 2; dieses Programm liest bis Format 1).");
    RawFile(path_).run("PRAGMA application_id=1");
    EXPECT_EQ(refusal(), "Die Datei '" + path_ + "' ist keine Projektdatei.");
    RawFile other(path_);
    other.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(refusal(), "Die Datei '" + path_ + "' ist von einem anderen Programm gesperrt.");
}

TEST_F(Answers, SayThatTheFileIsGone) {
    const auto recipes = open(connect(), "TrcpRecipe");
    fs::remove(path_);
    const auto error = errorOf([&] { recipes->addNew(Values{{"Name", "Cola"}}); });
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_EQ(error.description(), "The file '" + path_ +
                                       "' was deleted, moved or replaced while it was open. Nothing can be stored in "
                                       "it any more.");
}

TEST_F(Answers, SayThatTheFileWasReplaced) {
    const auto recipes = open(connectTo(german_), "TrcpRecipe");
    createProject(folder_.file("other.hxs"));
    fs::rename(folder_.file("other.hxs"), path_);
    EXPECT_EQ(errorOf([&] {
                  recipes->addNew(Values{{"Name", "Cola"}});
              }).description(),
              "Die Datei '" + path_ +
                  "' wurde gelöscht, verschoben oder ersetzt, während sie geöffnet war. In ihr kann nichts mehr "
                  "gespeichert werden.");
    EXPECT_EQ(RawFile(path_).query("SELECT count(*) FROM TrcpRecipe"), "0");
}

TEST_F(Answers, OfALostTransactionNameWhatItWasLostBy) {
    open(connect(), "TrcpRecipe")->addNew(Values{{"Name", "Cola"}});
    int lost = 0;
    for (int nth = 1; nth < 60; ++nth) {
        FaultDisk disk(FaultDisk::Fault::full, nth);
        const auto connection = connectTo(german_);
        connection->beginTrans();
        ado::Recordset command;
        const auto cause = errorOf([&] { command.open("DELETE * FROM TrcpRecipe", connection); });
        if (cause.number() == 0) break;
        const auto error = errorOf([&] { connection->commitTrans(); });
        if (error.number() == 0) continue;
        ++lost;
        EXPECT_EQ(error.description(), "Der Datenträger mit der Datei '" + path_ + "' ist voll. Alle Änderungen an '" +
                                           path_ + "' seitdem wurden zurückgenommen; nichts davon ist gespeichert.");
    }
    EXPECT_GT(lost, 0) << "no disk was full while the transaction was open";
}

TEST_F(Answers, CallAFieldAsTheDialogDoes) {
    const auto recipes = open(connectTo(german_), "TrcpRecipe");
    recipes->addNew(Values{{"Name", "Cola"}});
    recipes->field("VarLoad").setValue("Mine");
    RawFile(path_).run("UPDATE TrcpRecipe SET VarLoad = 'Theirs'");
    EXPECT_EQ(errorOf([&] { recipes->update(); }).description(),
              "Die Zeile wurde inzwischen von jemand anderem geändert: \"Ladetrigger\" enthält nicht mehr, was gelesen "
              "wurde.");
    RawFile(path_).run("DELETE FROM TrcpRecipe");
    EXPECT_EQ(errorOf([&] { recipes->update(); }).description(),
              "Die Zeile wurde inzwischen von jemand anderem gelöscht.");
}

/// A provider whose waits take no time and are counted.
class LockedFile : public ProjectTest {
  protected:
    static constexpr std::chrono::milliseconds longest{400}, hardlyAny{20};
    std::chrono::milliseconds waited_{0};
    Provider counting_{[this] {
        return OpenOptions{.lockWait = longest, .sleep = [this](LockWait::Milliseconds time) { waited_ += time; }};
    }};
    std::shared_ptr<ado::Recordset> recipes_ = makeRecipes();
    RawFile other_{path_};

    std::shared_ptr<ado::Recordset> makeRecipes() {
        open(connect(), "TrcpRecipe")->addNew(Values{{"Name", "Cola"}});
        auto connection = std::make_shared<ado::Connection>(counting_);
        connection->open("Data Source=" + path_);
        return open(connection, "TrcpRecipe");
    }
    std::string readAgain() {
        waited_ = {};
        return errorOf([&] {
                   recipes_->resync();
                   (void)recipes_->field("Name").value();
               })
            .description();
    }
    std::string store(const std::string& name) {
        waited_ = {};
        return errorOf([&] {
                   recipes_->field("Comment").setValue(name);
                   recipes_->update();
               })
            .description();
    }
    const std::string locked_ = "The file '" + path_ + "' is locked by another program.";
};

TEST_F(LockedFile, IsWaitedForOnceByWhoReads) {
    EXPECT_EQ(readAgain(), "no error");
    other_.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(readAgain(), locked_);
    EXPECT_EQ(waited_, longest);
    for (int repaint = 0; repaint < 5; ++repaint) {
        EXPECT_EQ(readAgain(), locked_);
        EXPECT_LE(waited_, hardlyAny) << "the window is dead while it waits";
    }
    other_.run("COMMIT");
    EXPECT_EQ(readAgain(), "no error");
    other_.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(readAgain(), locked_);
    EXPECT_EQ(waited_, longest) << "another lock";
}

TEST_F(LockedFile, IsWaitedForByWhoWritesEachTime) {
    EXPECT_EQ(readAgain(), "no error");
    other_.run("BEGIN IMMEDIATE");
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_EQ(store("kalt"), locked_);
        EXPECT_GE(waited_, longest);
        recipes_->cancelUpdate();
    }
    other_.run("COMMIT");
    EXPECT_EQ(store("kalt"), "no error");
    EXPECT_EQ(other_.query("SELECT Comment FROM TrcpRecipe"), "kalt");
}

}  // namespace

}  // namespace hx::sqlite
