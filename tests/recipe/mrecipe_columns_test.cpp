// SPDX-License-Identifier: MIT
#include "mrecipe_dialog.h"

namespace hx::recipe {
namespace {

using automation::Variant;
using dialogs::FRecipe;
using forms::CheckState;

TEST_F(MRecipe, EveryTextPassesIntoItsFieldAndBack) {
    store(StandardValue, 2.0);
    for (const TextRow& row : textRows) store(row.column, "a" + std::to_string(row.column % 10));
    store(FilePath, "<ProjectDir>\\Rezepte");
    editAndConfirm([](FRecipe& dialog) {
        for (const TextRow& row : textRows) {
            EXPECT_EQ((dialog.*row.box)->text(), "a" + std::to_string(row.column % 10)) << row.column;
            (dialog.*row.box)->setText("b" + std::to_string(row.column % 10));
        }
        EXPECT_EQ(dialog.cboFilePath->text(), "<ProjectDir>\\Rezepte");
        dialog.cboFilePath->setText("D:\\Rezepte");
    });
    for (const TextRow& row : textRows) {
        EXPECT_EQ(stored(row.column), Variant("b" + std::to_string(row.column % 10))) << row.column;
    }
    EXPECT_EQ(stored(FilePath), Variant("D:\\Rezepte"));
    EXPECT_EQ(stored(StandardValue), Variant(2.0));
}

/// A column and the check box that shows it.
struct CheckRow {
    Column column;
    std::shared_ptr<forms::CheckBox> FRecipe::*box;
};
constexpr CheckRow checkRows[] = {
    {Enabled, &FRecipe::chkEnabled},
    {SaveSubRecipes, &FRecipe::chkSaveSubRecipes},
    {SaveChanges, &FRecipe::chkSaveChanges},
    {CryptEngine, &FRecipe::chkCryptEngine},
};

TEST_F(MRecipe, EveryYesAndNoPassesIntoItsBoxAndBack) {
    for (const CheckRow& set : checkRows) {
        for (const CheckRow& row : checkRows) store(row.column, row.column == set.column);
        editAndConfirm([&](FRecipe& dialog) {
            for (const CheckRow& row : checkRows) {
                const bool checked = (dialog.*row.box)->value() == CheckState::checked;
                EXPECT_EQ(checked, row.column == set.column) << row.column;
                (dialog.*row.box)->click();
            }
        });
        for (const CheckRow& row : checkRows) {
            EXPECT_EQ(stored(row.column), Variant(row.column != set.column)) << row.column;
        }
    }
}

}  // namespace
}  // namespace hx::recipe
