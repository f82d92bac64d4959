// SPDX-License-Identifier: MIT
#include "dialogs/fmulti_select_items.h"

#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

using Names = std::vector<std::string>;

class FMultiSelectItemsTest : public DialogsTest {
  protected:
    std::shared_ptr<FMultiSelectItems> dialog = std::make_shared<FMultiSelectItems>(host.services(), help);
};

TEST_F(FMultiSelectItemsTest, IsGermanInBothLanguages) {
    for (const std::int32_t language : {german, english}) {
        speak(language);
        const auto fresh = std::make_shared<FMultiSelectItems>(host.services(), help);
        fresh->load();
        EXPECT_EQ(fresh->caption(), "Rezeptelemente");
        EXPECT_EQ(fresh->cmdOk->caption(), "OK");
        EXPECT_EQ(fresh->cmdCancel->caption(), "Abbrechen");
        EXPECT_EQ(fresh->cmdHelp->caption(), "&Hilfe");
        for (const auto& control : fresh->controls()) EXPECT_EQ(control->tag(), "") << control->name();
    }
}

TEST_F(FMultiSelectItemsTest, IsNotCancelledFromTheStart) {
    EXPECT_FALSE(dialog->cancelled());
    dialog->load();
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(FMultiSelectItemsTest, KeepsTheSelectionReadableWhenClosedByItsFrameAndCountsThatAsOk) {
    dialog->hxMI->setSelectedItems(Names{"A"});
    show<FMultiSelectItems>(*dialog, [](FMultiSelectItems& shown) {
        shown.hxMI->select("B", true);
        EXPECT_FALSE(shown.closeByFrame()) << "closing is refused";
        EXPECT_FALSE(shown.visible());
        EXPECT_TRUE(shown.loaded());
    });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_EQ(dialog->hxMI->selectedItems(), (Names{"A", "B"}));
}

TEST_F(FMultiSelectItemsTest, StaysCancelledWhenTheCallerHasSaidSoBeforeAndItsFrameClosesIt) {
    dialog->setCancelled(true);
    show(*dialog);
    EXPECT_TRUE(closedByFrame());
    EXPECT_TRUE(dialog->cancelled());
}

TEST_F(FMultiSelectItemsTest, IsCancelledByCancelAfterChangingTheChecks) {
    show<FMultiSelectItems>(*dialog, [](FMultiSelectItems& shown) {
        shown.hxMI->select("B", true);
        shown.cmdCancel->click();
    });
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_FALSE(dialog->visible());
    EXPECT_FALSE(closedByFrame());
}

TEST_F(FMultiSelectItemsTest, IsConfirmedByOk) {
    dialog->setCancelled(true);
    show<FMultiSelectItems>(*dialog, [](FMultiSelectItems& shown) { shown.cmdOk->click(); });
    EXPECT_FALSE(dialog->cancelled());
    EXPECT_FALSE(dialog->visible());
    EXPECT_TRUE(dialog->loaded());
    EXPECT_FALSE(dialog->hxMI->selectedItems().has_value()) << "nothing selected is no list";
}

TEST_F(FMultiSelectItemsTest, IsConfirmedByEnterAndCancelledByEsc) {
    show<FMultiSelectItems>(*dialog, [this](FMultiSelectItems& shown) { type(shown, "{ESC}"); });
    EXPECT_TRUE(dialog->cancelled());
    show<FMultiSelectItems>(*dialog, [this](FMultiSelectItems& shown) { type(shown, "{ENTER}"); });
    EXPECT_FALSE(dialog->cancelled());
}

TEST_F(FMultiSelectItemsTest, IsUnloadedByTheProgramAndTheSystem) {
    for (const auto mode : {forms::UnloadMode::byCode, forms::UnloadMode::bySystem}) {
        dialog->load();
        EXPECT_TRUE(dialog->unload(mode));
        EXPECT_FALSE(dialog->loaded());
    }
}

TEST_F(FMultiSelectItemsTest, OpensItsHelpByTheButtonToo) {
    show<FMultiSelectItems>(*dialog, [](FMultiSelectItems& shown) {
        shown.cmdHelp->click();
        EXPECT_TRUE(shown.visible());
    });
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].context, 100032);
}

TEST_F(FMultiSelectItemsTest, OpensItsHelpByF1) {
    show<FMultiSelectItems>(*dialog, [this](FMultiSelectItems& shown) { type(shown, "{F1}"); });
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].context, 100032);
}

TEST_F(FMultiSelectItemsTest, GivesAllRoomToTheList) {
    ASSERT_EQ(dialog->layout().rows.size(), 1U);
    EXPECT_EQ(dialog->layout().rows[0].field, dialog->hxMI.get());
    EXPECT_TRUE(dialog->layout().rows[0].grows);
    EXPECT_EQ(tabOrder(*dialog), (Names{"hxMI", "cmdOk", "cmdCancel", "cmdHelp"}));
}

TEST_F(FMultiSelectItemsTest, GivesItsSelectionByName) {
    const auto control = dialog->get("hxMI").asObject();
    control->set("ItemFilter", automation::Variant(std::int32_t{256}));
    EXPECT_EQ(dialog->hxMI->itemFilter(), 256);
    EXPECT_TRUE(control->get("SelectedItems").isEmpty());
}

}  // namespace
}  // namespace hx::dialogs
