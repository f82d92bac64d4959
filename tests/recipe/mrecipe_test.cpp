#include "recipe/mrecipe.h"

#include <limits>

#include "automation/convert.h"
#include "dialog_window.h"

namespace hx::recipe {
namespace {

using automation::Error;
using automation::Null;
using automation::Variant;
using dialogs::FRecipe;
using forms::CheckState;

/// The columns of the table, by number.
enum Column : std::size_t {
    ID,
    Name,
    VarRecipeName,
    VarDescription,
    FilePath,
    FileExtension,
    Enabled,
    Comment,
    VarLoad,
    VarSave,
    VarRead,
    VarWrite,
    StandardValue,
    VarSetValue,
    SaveSubRecipes,
    SaveChanges,
    CryptEngine,
    Options
};

struct MRecipe : DialogTest {
    explicit MRecipe(const headless::HostOptions& options = {}) : DialogTest(options) {
        plant.addRecipe("Cola");
        id = plant.addRecipe("Tee");
        plant.addRecipe("Wasser");
    }

    void store(Column column, const Variant& value) {
        const std::vector<ado::ColumnValue> values = {{column, value}};
        plant.database.table("TrcpRecipe").update(id, values);
    }
    [[nodiscard]] Variant stored(Column column) { return DialogTest::stored("TrcpRecipe", id, column); }
    [[nodiscard]] std::vector<Variant> storedRow() { return *plant.database.table("TrcpRecipe").row(id); }

    /// Positions the recipes and edits; the script works on the dialog.
    bool edit() {
        OpenAndMoveFirst(recipes);
        recipes.find("ID=" + std::to_string(id));
        return EditRecipe(recipes, *window);
    }
    /// The user changes something and presses OK.
    bool editAndConfirm(const std::function<void(FRecipe&)>& change = [](FRecipe&) {}) {
        inDialog<FRecipe>("FRecipe", [change](FRecipe& dialog) {
            change(dialog);
            dialog.cmdOk->click();
        });
        return edit();
    }
    /// Looks at the filled dialog, which is then cancelled.
    void lookAt(const std::function<void(FRecipe&)>& look) {
        inDialog<FRecipe>("FRecipe", [look](FRecipe& dialog) {
            look(dialog);
            dialog.cmdCancel->click();
        });
        EXPECT_FALSE(edit());
        EXPECT_EQ(host.record.modals.size(), 1U);
    }

    ado::Recordset& recipes = *plant.data.rsRecipes;
    std::int32_t id = 0;
};

TEST_F(MRecipe, ANormFactorOfZeroOpensWithAbsoluteSelected) {
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::absolute]->value());
        EXPECT_FALSE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "0");
        EXPECT_FALSE(dialog.txtStandardValue->enabled());
    });
}

TEST_F(MRecipe, ANormFactorOfAHalfOpensWithRelativeSelected) {
    store(StandardValue, 0.5);
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_FALSE(dialog.optRecipeAbsrel[FRecipe::absolute]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "0.5");
        EXPECT_TRUE(dialog.txtStandardValue->enabled());
    });
}

TEST_F(MRecipe, AMissingNormFactorOpensWithRelativeSelectedAndNoText) {
    store(StandardValue, Null{});
    lookAt([](FRecipe& dialog) {
        EXPECT_TRUE(dialog.optRecipeAbsrel[FRecipe::relative]->value());
        EXPECT_EQ(dialog.txtStandardValue->text(), "");
    });
}

struct MRecipeWithComma : MRecipe {
    MRecipeWithComma() : MRecipe({.decimalPoint = ","}) {}
};

TEST_F(MRecipeWithComma, TheNormFactorIsShownWithAPoint) {
    store(StandardValue, 1.5);
    lookAt([](FRecipe& dialog) { EXPECT_EQ(dialog.txtStandardValue->text(), "1.5"); });
}

TEST_F(MRecipe, ATypedCommaIsADecimalPoint) {
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        dialog.optRecipeAbsrel[FRecipe::relative]->click();
        dialog.txtStandardValue->setText("1,25");
    }));
    EXPECT_EQ(stored(StandardValue), Variant(1.25));
}

TEST_F(MRecipe, ANormFactorThatIsNotTouchedStaysToTheLastDigit) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const Variant& factor : {Variant(0.3333333333333333), Variant(infinity), Variant(Null{})}) {
        store(StandardValue, factor);
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("neu"); }));
        EXPECT_EQ(stored(StandardValue), factor);
    }
}

TEST_F(MRecipe, ANormFactorThatIsNoNumberIsItsLeadingNumber) {
    for (const auto& [text, number] : {std::pair("12abc", 12.0), std::pair("abc", 0.0)}) {
        editAndConfirm([text = text](FRecipe& dialog) { dialog.txtStandardValue->setText(text); });
        EXPECT_EQ(stored(StandardValue), Variant(number)) << text;
    }
}

TEST_F(MRecipe, CancellingLeavesEveryColumnUnchanged) {
    store(VarSave, "Tank.Save");
    const std::vector<Variant> before = storedRow();
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Kaffee");
        dialog.txtVarSave->setText("");
        dialog.chkEnabled->click();
        dialog.cmdCancel->click();
    });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(MRecipe, ClosingByTheFrameCancels) {
    const std::vector<Variant> before = storedRow();
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) { dialog.txtName->setText("Kaffee"); });
    EXPECT_FALSE(edit());
    EXPECT_EQ(storedRow(), before);
    EXPECT_TRUE(host.record.modals.at(0).closedByFrame);
}

TEST_F(MRecipe, OptionTwoOpensWithSaveThroughAloneAndIsWrittenBackAsTwo) {
    for (const std::int32_t options : {2, 6}) {  // 4 means nothing: that it goes shows that the row is written
        store(Options, options);
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
            EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::unchecked);
            EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::checked);
        }));
        EXPECT_EQ(stored(Options), Variant(2));
    }
}

TEST_F(MRecipe, OptionThreeChecksBothBoxes) {
    store(Options, 3);
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::checked);
        EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::checked);
    }));
    EXPECT_EQ(stored(Options), Variant(3));
}

TEST_F(MRecipe, AnOptionWithoutMeaningChecksNeitherBoxAndIsWrittenBackAsZero) {
    store(Options, 4);
    editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.chkWriteThru->value(), CheckState::unchecked);
        EXPECT_EQ(dialog.chkSaveThru->value(), CheckState::unchecked);
    });
    EXPECT_EQ(stored(Options), Variant(0));
}

TEST_F(MRecipe, AGreyedBoxCountsAsAnOption) {
    editAndConfirm([](FRecipe& dialog) { dialog.chkWriteThru->setValue(CheckState::greyed); });
    EXPECT_EQ(stored(Options), Variant(1));
}

TEST_F(MRecipe, ANullFilePathOpensEmptyAndIsStoredAsAnEmptyString) {
    store(FilePath, Null{});
    editAndConfirm([](FRecipe& dialog) { EXPECT_EQ(dialog.cboFilePath->text(), ""); });
    EXPECT_EQ(stored(FilePath), Variant(""));
}

TEST_F(MRecipe, NullTextsOpenEmpty) {
    for (const Column column : {VarRecipeName, Comment, VarSetValue}) store(column, Null{});
    lookAt([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtRecipeName->text(), "");
        EXPECT_EQ(dialog.txtComment->text(), "");
        EXPECT_EQ(dialog.txtVarSetValue->text(), "");
    });
}

/// A column and the text box that shows it.
struct TextRow {
    Column column;
    std::shared_ptr<forms::TextBox> FRecipe::*box;
};
constexpr TextRow textRows[] = {
    {Name, &FRecipe::txtName},
    {VarRecipeName, &FRecipe::txtRecipeName},
    {VarDescription, &FRecipe::txtDescription},
    {FileExtension, &FRecipe::txtFileExtension},
    {Comment, &FRecipe::txtComment},
    {VarLoad, &FRecipe::txtVarLoad},
    {VarSave, &FRecipe::txtVarSave},
    {VarRead, &FRecipe::txtVarRead},
    {VarWrite, &FRecipe::txtVarWrite},
    {VarSetValue, &FRecipe::txtVarSetValue},
};

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

TEST_F(MRecipe, ARelativeRecipeKeepsItsFactorVariableAndAnAbsoluteOneItsOwn) {
    for (const double factor : {0.0, 2.0}) {
        store(StandardValue, factor);
        store(VarSetValue, "Factor");
        EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) { EXPECT_EQ(dialog.txtVarSetValue->text(), "Factor"); }));
        EXPECT_EQ(stored(VarSetValue), Variant("Factor"));
        EXPECT_EQ(stored(StandardValue), Variant(factor));
    }
}

TEST_F(MRecipe, TheDialogBelongsToTheEditorWindow) {
    lookAt([this](FRecipe& dialog) { EXPECT_EQ(dialog.owner(), window->share()); });
    EXPECT_EQ(host.record.modals.at(0).owner, window->handle());
    EXPECT_NE(window->handle(), 0);
}

TEST_F(MRecipe, TheOtherRecipesStayAsTheyAre) {
    editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("Neu"); });
    EXPECT_EQ(DialogTest::stored("TrcpRecipe", id - 1, Comment), Variant(""));
    EXPECT_EQ(DialogTest::stored("TrcpRecipe", id + 1, Comment), Variant(""));
    EXPECT_EQ(stored(ID), Variant(id));
}

TEST_F(MRecipe, AColumnWithoutAControlIsNeitherReadNorWritten) {
    using support::MemoryColumn;
    plant.database = support::MemoryDatabase();
    plant.database.addTable(support::MemoryTable("TrcpRecipe", {MemoryColumn{{"ID", ado::adInteger, 4, true, false}, 0},
                                                                MemoryColumn{{"HostData", ado::adVarWChar, 20}, "host"},
                                                                MemoryColumn{{"name", ado::adVarWChar, 20}, ""}}));
    id = plant.addRecipe("theirs");
    store(static_cast<Column>(2), "Tee");
    editAndConfirm([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtName->text(), "Tee");
        dialog.txtName->setText("Kaffee");
    });
    EXPECT_EQ(storedRow(), (std::vector<Variant>{id, "theirs", "Kaffee"}));
}

TEST_F(MRecipe, ARowThatCannotBeReadIsNotEdited) {
    OpenAndMoveFirst(recipes);
    EXPECT_EQ(recipes.recordCount(), 3);
    plant.faults.arm(1, support::FaultPlan::Kind::read);
    EXPECT_FALSE(EditRecipe(recipes, *window));
    expectMessage("Initialisierung Rezept-Dialog fehlgegangen");
    EXPECT_TRUE(host.record.modals.empty());
}

TEST_F(MRecipe, WithoutARowNothingIsEdited) {
    recipes.open();
    recipes.moveLast();
    recipes.moveNext();
    EXPECT_FALSE(EditRecipe(recipes, *window));
    expectMessage("Initialisierung Rezept-Dialog fehlgegangen");
}

TEST_F(MRecipe, ValuesThatDoNotFitLeaveTheRowAsItIsStored) {
    const std::vector<Variant> before = storedRow();
    EXPECT_TRUE(editAndConfirm([](FRecipe& dialog) {
        dialog.txtName->setText("Kaffee");
        dialog.txtComment->setText(std::string(300, 'x'));
    }));
    expectMessage("Zurückschreiben von Rezept-Dialog fehlgegangen");
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
    EXPECT_EQ(recipes.field("Name").value(), Variant("Tee"));
}

TEST_F(MRecipe, ARowThatCouldNotBeWrittenBackIsReadAnewAsAnotherHasLeftItMeanwhile) {
    editAndConfirm([this](FRecipe& dialog) {
        store(Comment, "Changed by another");
        dialog.txtVarLoad->setText(std::string(300, 'x'));
    });
    expectMessage("Zurückschreiben von Rezept-Dialog fehlgegangen");
    EXPECT_EQ(recipes.field("Comment").value(), Variant("Changed by another"));
}

TEST_F(MRecipe, ADuplicateNameReachesTheCallerAndLeavesTheRowAsItIsStored) {
    const std::vector<Variant> before = storedRow();
    try {
        editAndConfirm([](FRecipe& dialog) {
            dialog.txtName->setText("COLA");
            dialog.txtComment->setText("Neu");
        });
        FAIL() << "the name exists already";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), ado::dbErrDuplicate);
    }
    EXPECT_EQ(messages(), std::vector<std::string>{});
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(MRecipe, ARowThatCannotBeStoredReachesTheCaller) {
    const std::vector<Variant> before = storedRow();
    plant.faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_THROW(editAndConfirm([](FRecipe& dialog) { dialog.txtComment->setText("Neu"); }), Error);
    EXPECT_EQ(storedRow(), before);
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

struct MRecipeBesideAnother : MRecipe {
    /// Edits while another stores these values; the user then makes his change and confirms.
    void editWhileTheyStore(const std::vector<std::pair<Column, Variant>>& theirs,
                            const std::function<void(FRecipe&)>& change) {
        editAndConfirm([&](FRecipe& dialog) {
            for (const auto& [column, value] : theirs) store(column, value);
            change(dialog);
        });
    }
    [[nodiscard]] Error conflictWith(const std::vector<std::pair<Column, Variant>>& theirs,
                                     const std::function<void(FRecipe&)>& change) {
        try {
            editWhileTheyStore(theirs, change);
        } catch (const Error& error) {
            return error;
        }
        return {0, "no error"};
    }
    [[nodiscard]] static std::string changed(const std::string& entries) {
        return "Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:" + entries;
    }
};

TEST_F(MRecipeBesideAnother, WhatTheUserDoesNotTouchIsNotReverted) {
    store(VarLoad, "before");
    store(StandardValue, 0.5);
    const std::vector<std::pair<Column, Variant>> theirs = {
        {Name, "Kaffee"},       {VarRecipeName, "a"}, {VarDescription, "b"}, {FilePath, "c"},
        {FileExtension, "de"},  {Enabled, true},      {VarLoad, "f"},        {VarSave, "g"},
        {VarRead, "h"},         {VarWrite, "i"},      {StandardValue, 2.5},  {VarSetValue, "j"},
        {SaveSubRecipes, true}, {SaveChanges, true},  {CryptEngine, true},   {Options, 3}};
    editWhileTheyStore(theirs, [](FRecipe& dialog) { dialog.txtComment->setText("mine"); });
    EXPECT_EQ(stored(Comment), Variant("mine"));
    for (const auto& [column, value] : theirs) EXPECT_EQ(stored(column), value) << column;
}

TEST_F(MRecipeBesideAnother, ConfirmedWithoutAChangeNothingIsWritten) {
    editWhileTheyStore({{Comment, "theirs"}}, [](FRecipe&) {});
    EXPECT_EQ(stored(Comment), Variant("theirs"));
}

TEST_F(MRecipeBesideAnother, EveryPropertyThatBothChangeIsAConflict) {
    for (const TextRow& row : textRows) {
        SCOPED_TRACE(row.column);
        const Error error = conflictWith({{row.column, "xy"}}, [&](FRecipe& dialog) {
            dialog.optRecipeAbsrel[FRecipe::relative]->setValue(true);
            (dialog.*row.box)->setText("zz");
        });
        EXPECT_EQ(error.number(), ado::dbErrRowChanged);
        EXPECT_EQ(stored(row.column), Variant("xy"));
        EXPECT_EQ(recipes.editMode(), ado::adEditNone);
    }
}

TEST_F(MRecipeBesideAnother, AConflictTellsWhatWasEnteredAndWhatIsStoredNow) {
    const Error error = conflictWith({{Comment, "theirs"}, {VarRead, "untouched"}}, [](FRecipe& dialog) {
        dialog.txtComment->setText("mine");
        dialog.chkEnabled->click();
        dialog.cboFilePath->setText(std::string(100, 'p'));
    });
    EXPECT_EQ(error.description(), changed("\r\nRezeptdateipfad: \"" + std::string(80, 'p') +
                                           "...\"\r\nDefinition aktiv: \"ja\"\r\nKommentar: \"mine\"; gespeichert ist "
                                           "jetzt \"theirs\""));
}

TEST_F(MRecipeBesideAnother, AConflictIsToldInEnglishToo) {
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    window->resourceTexts.InitResources(host.registry);
    const Error error = conflictWith({{Comment, "theirs"}}, [](FRecipe& dialog) { dialog.txtComment->setText("x"); });
    EXPECT_EQ(error.description(),
              "The row was changed by another. Nothing of this was stored:\r\nComment: \"x\"; stored "
              "is now \"theirs\"");
}

TEST_F(MRecipeBesideAnother, ARecipeThatIsGoneIsToldWithWhatWasEntered) {
    try {
        editAndConfirm([this](FRecipe& dialog) {
            plant.database.table("TrcpRecipe").remove(id);
            dialog.txtComment->setText("mine");
        });
        FAIL() << "the recipe is gone";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), ado::dbErrDeletedRow);
        EXPECT_EQ(error.description(),
                  "Die Zeile wurde von jemand anderem gelöscht. Nichts davon wurde gespeichert:"
                  "\r\nKommentar: \"mine\"");
    }
}

TEST_F(MRecipeBesideAnother, TheDialogShowsWhatIsStoredWhenItOpens) {
    OpenAndMoveFirst(recipes);
    recipes.find("ID=" + std::to_string(id));
    EXPECT_EQ(recipes.field("Comment").value(), Variant(""));
    store(Comment, "theirs");
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) { EXPECT_EQ(dialog.txtComment->text(), "theirs"); });
    EXPECT_FALSE(EditRecipe(recipes, *window));
    EXPECT_EQ(host.record.modals.size(), 1U);
}

}  // namespace
}  // namespace hx::recipe
