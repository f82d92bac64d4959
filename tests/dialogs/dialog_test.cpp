// SPDX-License-Identifier: MIT
#include "dialogs/dialog.h"

#include <stdexcept>

#include "dialogs/fconfig_editor.h"
#include "dialogs/fsub_recipe.h"
#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

using automation::Variant;

/// What all dialogs have in common, shown by one of them.
class DialogTest : public DialogsTest {
  protected:
    std::shared_ptr<FSubRecipe> dialog = std::make_shared<FSubRecipe>(host.services(), texts, help);
};

TEST_F(DialogTest, LeavesF1ToNobodyElse) {
    forms::KeyEvent key{forms::key::f1, forms::shift::none};
    dialog->keyDownEvent.raise(key);
    EXPECT_TRUE(key.swallowed());
    EXPECT_EQ(host.record.help.size(), 1U);
}

TEST_F(DialogTest, LeavesF1ToNobodyElseAlsoWithoutAHelpFile) {
    host.help.failWith(automation::Error(automation::errFail, "No help."));
    forms::KeyEvent key{forms::key::f1, forms::shift::none};
    dialog->keyDownEvent.raise(key);
    EXPECT_TRUE(key.swallowed());
    ASSERT_EQ(host.record.messages.size(), 1U);
}

TEST_F(DialogTest, KnowsHowItIsLeftBeforeItIsGone) {
    dialog->load();
    dialog->show();
    std::vector<bool> cancelled;
    const auto watch = dialog->changed.subscribe([&](std::string_view property) {
        if (property == "Visible") cancelled.push_back(dialog->cancelled());
    });
    dialog->setCancelled(false);
    dialog->cmdCancel->click();
    EXPECT_EQ(cancelled, std::vector<bool>{true});
}

TEST_F(DialogTest, TellsUnderItsNameWhateverFails) {
    host.script.onItem = [](const std::string&) -> std::string { throw std::runtime_error("No memory."); };
    dialog->cmdChooseItem->click();
    host.script.onItem = [](const std::string&) -> std::string {
        throw automation::Error(automation::errOverflow, "Too many.");
    };
    dialog->cmdChooseItem->click();
    ASSERT_EQ(host.record.messages.size(), 2U);
    EXPECT_EQ(host.record.messages[0].text,
              automation::Error(automation::errFail, "No memory.").message(automation::Language::english));
    EXPECT_EQ(host.record.messages[1].text,
              automation::Error(automation::errOverflow, "Too many.").message(automation::Language::english));
    for (const auto& message : host.record.messages) {
        EXPECT_EQ(message.style, forms::message::ok);
        EXPECT_EQ(message.title, "FSubRecipe");
    }
}

TEST_F(DialogTest, MayEndInWhatFails) {
    host.script.onItem = [this](const std::string&) -> std::string {
        dialog.reset();
        throw std::runtime_error("No memory.");
    };
    const auto button = dialog->cmdChooseItem;
    button->click();
    ASSERT_EQ(host.record.messages.size(), 1U);
    EXPECT_EQ(host.record.messages[0].title, "FSubRecipe");
}

TEST_F(DialogTest, GivesItsStateByName) {
    dialog->set("Cancelled", Variant(true));
    EXPECT_TRUE(dialog->cancelled());
    EXPECT_EQ(dialog->get("Cancelled"), Variant(true));
    const automation::ObjectRef owner = std::make_shared<FConfigEditor>(host.services(), help);
    dialog->set("Owner", Variant(owner));
    EXPECT_EQ(dialog->owner(), owner);
}

}  // namespace
}  // namespace hx::dialogs
