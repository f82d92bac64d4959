// SPDX-License-Identifier: MIT
#include "command_window.h"
#include "dialogs/frecipe.h"

namespace hx::editor {
namespace {

using automation::Variant;
using dialogs::FRecipe;

struct EditRecipe : CommandWindow {
    EditRecipe() { show(mixKey); }
    void edit(const std::function<void(FRecipe&)>& change) {
        inDialog<FRecipe>("FRecipe", [change](FRecipe& dialog) {
            change(dialog);
            dialog.cmdOk->click();
        });
        click("mnuRecipeEdit");
    }
    static void nothing(FRecipe&) {}
};

TEST_F(EditRecipe, ShowsTheRecipeOfTheNodeAndStoresIt) {
    edit([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtName->text(), "Mix");
        dialog.txtComment->setText("Neu");
    });
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_EQ(storedRows("TrcpRecipe", {1, 7})[0], "Mix Neu");
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(EditRecipe, GivesTheNodeTheCaptionAndTheGridTheNewName) {
    addMember(syrup, "File.Mix", mix);
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"Mix"}));
    show(mixKey);
    window->MakeMyCaption(mixKey, "Mix");
    edit([](FRecipe& dialog) { dialog.txtName->setText("Mischung"); });
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mischung");
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Mischung");
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"Mischung"}));
}

TEST_F(EditRecipe, LeavesTheNodeAloneWhenTheNameStays) {
    host.explorer.setNodeProperty(mixKey, host::node_property::caption, Variant("As it was"));
    edit(nothing);
    EXPECT_EQ(shownNodes()[0], "RCPR1 As it was");
}

TEST_F(EditRecipe, TakesAnotherCaseForANewName) {
    edit([](FRecipe& dialog) { dialog.txtName->setText("MIX"); });
    EXPECT_EQ(shownNodes()[0], "RCPR1 MIX");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditRecipe, CancelledChangesNothing) {
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Mischung");
        dialog.cmdCancel->click();
    });
    const Texts before = storedRecipes();
    click("mnuRecipeEdit");
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRecipes(), before);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
}

TEST_F(EditRecipe, LeavesTheWindowFreeToFollowTheStudioWhileTheDialogIsOpen) {
    edit([&](FRecipe& dialog) {
        EXPECT_FALSE(addIn.busyFlag);
        window->showNode("RCPR" + std::to_string(syrup));
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Sirup");
    EXPECT_EQ(storedRecipes()[0], "1 Mischung");
    EXPECT_EQ(storedRecipes()[1], "2 Sirup");
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mischung");
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(EditRecipe, LetsNoOtherCommandRunWhileTheDialogIsOpen) {
    edit([&](FRecipe& dialog) {
        window->commands().mnuRecipeFunc(1);
        window->commands().mnuRecipeFunc(0);
        EXPECT_EQ(host.record.beeps, 2);
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRecipes(), (Texts{"1 Mischung", "2 Sirup", "3 Wasser"}));
    window->commands().mnuRecipeFunc(0);
    EXPECT_EQ(storedRecipes().back(), "4 Neues Rezept");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditRecipe, KeepsTheWindowBusyWhileAMessageIsShown) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage&) {
        busy = addIn.busyFlag;
        return forms::message::Answer::ok;
    };
    edit([&](FRecipe& dialog) {
        dialog.txtComment->setText(std::string(300, 'x'));
        dialog.cmdOk->click();
    });
    EXPECT_EQ(messages(), (Texts{"Zurückschreiben von Rezept-Dialog fehlgegangen"}));
    EXPECT_TRUE(busy);
    EXPECT_FALSE(addIn.busyFlag);
}

TEST_F(EditRecipe, OfARecipeThatIsGoneDoesNothing) {
    database.table("TrcpRecipe").remove(mix);
    click("mnuRecipeEdit");
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(EditRecipe, WithoutRecipesDoesNothing) {
    for (const std::int32_t id : {mix, syrup, water}) database.table("TrcpRecipe").remove(id);
    click("mnuRecipeEdit");
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditRecipe, ReportsADuplicateNameAndLeavesRecipeAndNodeAsTheyWere) {
    const Texts before = storedRecipes();
    edit([](FRecipe& dialog) { dialog.txtName->setText("sirup"); });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages()[0].substr(0, 13), "-2147217887: ");
    EXPECT_NE(messages()[0].find("sirup"), std::string::npos);
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(storedRecipes(), before);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
    expectNoOldDuplicate();
}

TEST_F(EditRecipe, KeepsTheDialogWithAllThatWasEnteredWhileTheNameExists) {
    inDialog<FRecipe>("FRecipe", [this](FRecipe& dialog) {
        dialog.txtName->setText("sirup");
        dialog.txtComment->setText("Neu");
        dialog.cmdOk->click();
        EXPECT_TRUE(dialog.visible());
        EXPECT_TRUE(dialog.cancelled());
        EXPECT_EQ(dialog.txtComment->text(), "Neu");
        ASSERT_EQ(messages().size(), 1U);
        EXPECT_EQ(messages()[0].substr(0, 13), "-2147217887: ");
        EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
        EXPECT_FALSE(dialog.visible());
    });
    click("mnuRecipeEdit");
    EXPECT_EQ(storedRows("TrcpRecipe", {1, 7})[0], "Mischung Neu");
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(messages().size(), 1U);
    expectAtRest();
}

TEST_F(EditRecipe, KeepsTheDialogWhileTheFileIsLocked) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    inDialog<FRecipe>("FRecipe", [&](FRecipe& dialog) {
        dialog.txtComment->setText("Neu");
        refuseNextUpdate(ado::dbErrUnspecified, "Gesperrt.");
        dialog.cmdOk->click();
        EXPECT_TRUE(dialog.visible());
        EXPECT_TRUE(busy);
        dialog.cmdOk->click();
        EXPECT_FALSE(dialog.visible());
    });
    click("mnuRecipeEdit");
    EXPECT_EQ(messages(), (Texts{"-2147467259: Gesperrt."}));
    EXPECT_EQ(storedRows("TrcpRecipe", {1, 7})[0], "Mix Neu");
    expectAtRest();
}

TEST_F(EditRecipe, CancelledAfterARefusalChangesNothing) {
    const Texts before = storedRecipes();
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("sirup");
        dialog.cmdOk->click();
        dialog.txtName->setText("Mischung");
        dialog.cmdCancel->click();
    });
    click("mnuRecipeEdit");
    EXPECT_EQ(storedRecipes(), before);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
}

TEST_F(EditRecipe, AfterARefusalAnotherProgramsChangeIsNotOverwritten) {
    inDialog<FRecipe>("FRecipe", [this](FRecipe& dialog) {
        dialog.txtComment->setText("Neu");
        refuseNextUpdate(ado::dbErrUnspecified, "Gesperrt.");
        dialog.cmdOk->click();
        const std::vector<ado::ColumnValue> theirs = {{7, Variant("Theirs")}};
        database.table("TrcpRecipe").update(mix, theirs);
        dialog.cmdOk->click();
    });
    click("mnuRecipeEdit");
    EXPECT_EQ(storedRows("TrcpRecipe", {1, 7})[0], "Mix Theirs");
    EXPECT_EQ(messages().size(), 2U);
    expectAtRest();
}

TEST_F(EditRecipe, LeavesAnEditOfTheGridWaiting) {
    type(0, "Tank.Pressure");
    edit([](FRecipe& dialog) { dialog.txtName->setText("Mischung"); });
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[0], "Tank.Pressure");
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(EditRecipe, NodesAndRecipesAgreeWhateverFails) {
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    withEachFault([this] { show(mixKey); }, [this] { click("mnuRecipeEdit"); },
                  [this] {
                      // A name that was stored but could not be read again is shown with the next refresh.
                      const bool stored = storedRecipes()[0] == "1 Mischung";
                      EXPECT_TRUE(shownNodes() == nodesOfStoredRecipes() || (stored && !messages().empty()));
                  });
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mischung");
}

TEST_F(EditRecipe, SurvivesTheEndOfItsWindow) {
    inDialog<FRecipe>("FRecipe", [this](FRecipe& dialog) {
        window->setDataEnvironment(nullptr);
        data->CnnRecipes->close();
        window->unload(forms::UnloadMode::byCode);
        window.reset();
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    const auto bar = window->abr;
    bar->click("mnuRecipeEdit");
    EXPECT_EQ(window, nullptr);
    EXPECT_FALSE(messages().empty()) << "the change was not stored";
}

TEST_F(EditRecipe, ShowsTheNameThatAnotherHasGivenIt) {
    edit([this](FRecipe& dialog) {
        const std::vector<ado::ColumnValue> values = {{1, Variant("Theirs")}};
        database.table("TrcpRecipe").update(mix, values);
        dialog.txtName->setText("Mine");
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages()[0],
              "-2147217864: Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:"
              "\r\nName: \"Mine\"; gespeichert ist jetzt \"Theirs\"");
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(shownNodes()[0], "RCPR1 Theirs");
    EXPECT_EQ(storedRecipes()[0], "1 Theirs");
    expectAtRest();
}

TEST_F(EditRecipe, TellsAConflictAlsoWhenTheDatabaseIsGoneFromTheWindow) {
    edit([this](FRecipe& dialog) {
        const std::vector<ado::ColumnValue> values = {{7, Variant("Theirs")}};
        database.table("TrcpRecipe").update(mix, values);
        window->setDataEnvironment(nullptr);
        dialog.txtComment->setText("Mine");
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_TRUE(messages()[0].starts_with("-2147217864: ")) << messages()[0];
}

TEST_F(EditRecipe, LeavesTheNodeAloneWhenAnotherHasChangedSomethingElse) {
    host.explorer.setNodeProperty(mixKey, host::node_property::caption, Variant("As it was"));
    edit([this](FRecipe& dialog) {
        const std::vector<ado::ColumnValue> values = {{7, Variant("Theirs")}};
        database.table("TrcpRecipe").update(mix, values);
        dialog.txtComment->setText("Mine");
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(shownNodes()[0], "RCPR1 As it was");
}

TEST_F(EditRecipe, RemovesTheNodeOfARecipeThatAnotherHasDeleted) {
    edit([this](FRecipe& dialog) {
        database.table("TrcpRecipe").remove(mix);
        dialog.txtComment->setText("Mine");
    });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages()[0].substr(0, 13), "-2147217885: ");
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    expectAtRest();
}

}  // namespace
}  // namespace hx::editor
