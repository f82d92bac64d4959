// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

class Convert : public CliTest {
  protected:
    static constexpr const char* everything[] = {"SELECT * FROM TrcpRecipe ORDER BY ID",
                                                 "SELECT * FROM TrcpRecipeMember ORDER BY ID",
                                                 "SELECT * FROM ThxVariable ORDER BY ID"};
    std::string jet_ = folder_.file("jet.hxs"), back_ = folder_.file("back.hxs");
};

TEST_F(Convert, ThereAndBackKeepsAll) {
    makeSample(HX_SAMPLES_FOLDER "/getraenkelinie", file_);
    EXPECT_EQ(hxrecipe({"convert", file_.c_str(), jet_.c_str()}).problems, "");
    EXPECT_TRUE(sqlite::beginsLikeJet(jet_));
    EXPECT_EQ(hxrecipe({"convert", jet_.c_str(), back_.c_str()}).problems, "");
    EXPECT_FALSE(sqlite::beginsLikeJet(back_));
    for (const char* const rows : everything) EXPECT_TRUE(query(back_, rows) == query(file_, rows)) << rows;
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), jet_.c_str()}).status, 0);
}

TEST_F(Convert, NamesWhatHasNoPlace) {
    makeProject(file_, "CREATE TABLE Host (A); ALTER TABLE TrcpRecipe ADD COLUMN HostNote TEXT");
    const Result result = hxrecipe({"convert", file_.c_str(), jet_.c_str()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "Not copied: column \"HostNote\" of table TrcpRecipe.\nNot copied: table \"Host\".\n");
}

TEST_F(Convert, ARowThatDoesNotGoInIsToldAndNothingIsMade) {
    makeProject(file_, "INSERT INTO TrcpRecipe (Name) VALUES ('" + std::string(300, 'n') + "')");
    const Result result = hxrecipe({"convert", file_.c_str(), jet_.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "hxrecipe: Row 1 of table TrcpRecipe cannot be copied: The text is too long for column \"Name\", which "
              "holds 255 characters.\n");
    EXPECT_FALSE(std::filesystem::exists(jet_));
}

}  // namespace

}  // namespace hx::cli
