// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

/// The window shows one node, whole, or none.
struct WholeNode : testing::Test {
    WholeNode() {
        studio.addMember(studio.addRecipe("Mix"), "Tank1.Level");
        studio.addMember(studio.addRecipe("Sirup"), "Tank2.Level");
        studio.start();
        studio.click("RCPR1");
        EXPECT_EQ(studio.boxes(), Texts{});
    }
    [[nodiscard]] bool enabled(std::string_view tool) { return studio.window().abr->mainBand().find(tool)->enabled(); }
    void expectRecipe(const std::string& key, const std::string& name, const std::string& variable) {
        EXPECT_EQ(studio.window().nodeKey(), key);
        EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: " + name);
        ASSERT_EQ(studio.window().tdbRM->rowCount(), 1);
        EXPECT_EQ(studio.window().tdbRM->text(0, 2), variable);
        EXPECT_TRUE(studio.window().tdbRM->visible());
        EXPECT_TRUE(enabled("mnuRecipeDelete"));
    }
    void expectNone() {
        EXPECT_EQ(studio.window().nodeKey(), "");
        EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: -");
        EXPECT_EQ(studio.window().tdbRM->rowCount(), 0);
        EXPECT_FALSE(studio.window().tdbRM->visible());
        EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
        for (const char* tool : {"mnuRecipes", "mnuRecipeMembers", "mnuRecipeNew", "mnuRecipeEdit", "mnuRecipeDelete"})
            EXPECT_FALSE(enabled(tool)) << tool;
    }
    /// Lets each operation of the database fail in turn while the action is to show "Sirup".
    template <class Action>
    void failEach(Action&& action) {
        int none = 0;
        for (int nth = 1;; ++nth) {
            studio.click("RCPR1");
            expectRecipe("RCPR1", "Mix", "Tank1.Level");
            studio.faults.arm(nth);
            action();
            if (!studio.faults.fired()) break;
            studio.faults.disarm();
            SCOPED_TRACE("operation " + std::to_string(nth));
            const Texts boxes = studio.boxes();
            ASSERT_EQ(boxes.size(), 1u);
            // What the tool bar could not read is read again.
            if (boxes[0].starts_with("tbrfunc|")) {
                expectRecipe("RCPR2", "Sirup", "Tank2.Level");
            } else {
                expectNone();
                ++none;
            }
        }
        studio.faults.disarm();
        EXPECT_GT(none, 2);
        EXPECT_EQ(studio.boxes(), Texts{});
        expectRecipe("RCPR2", "Sirup", "Tank2.Level");
    }
    Studio studio;
};

TEST_F(WholeNode, NoneIsShownWhenAClickCannotReadItsNode) {
    failEach([this] { studio.click("RCPR2"); });
}

TEST_F(WholeNode, NoneIsShownWhenAMacroSelectsANodeThatCannotBeRead) {
    failEach([this] { studio.connect->SelectNode("RCPR2"); });
}

TEST_F(WholeNode, WithoutANodeNothingIsReadAgain) {
    studio.faults.arm(1, support::FaultPlan::Kind::any, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.connect->SelectNode("RCPR2");
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: SelectNode|-2147467259: Locked."}));
    studio.window().refreshMembers();
    expectNone();
}

TEST_F(WholeNode, ASelectedNodeHasItsCaptionAndMenus) {
    studio.click("RCPE0");
    studio.connect->SelectNode("RCPR2");
    expectRecipe("RCPR2", "Sirup", "Tank2.Level");
    studio.connect->SelectNode("RCPE");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor");
    EXPECT_TRUE(enabled("mnuRecipeNew"));
    EXPECT_FALSE(studio.window().tdbRM->allowUpdate());
}

TEST_F(WholeNode, StaysWhileItsEditIsRefused) {
    studio.window().tdbRM->setText(0, 2, "Tank9.Level");
    studio.faults.arm(1, support::FaultPlan::Kind::update, automation::Error(ado::dbErrIntegrity, "Refused."));
    studio.connect->SelectNode("RCPR2");
    EXPECT_TRUE(studio.faults.fired());
    EXPECT_FALSE(studio.boxes().empty());
    expectRecipe("RCPR1", "Mix", "Tank9.Level");
    EXPECT_TRUE(studio.window().tdbRM->dataChanged()) << "to be corrected";
    studio.connect->SelectNode("RCPR2");
    expectRecipe("RCPR2", "Sirup", "Tank2.Level");
    EXPECT_EQ(automation::toText((*studio.database.table("TrcpRecipeMember").row(1))[2]), "Tank9.Level");
}

TEST_F(WholeNode, ADeletedRecipeIsFollowedByNoneWhenTheNextCannotBeRead) {
    studio.host.explorer.select("RCPR2");
    studio.host.script.onMessage = [this](const forms::ShownMessage& box) {
        const bool question = box.style != forms::message::ok;
        if (question) {
            studio.faults.instead = [this] {
                if (studio.database.table("TrcpRecipe").row(1) == nullptr) {
                    throw automation::Error(ado::dbErrUnspecified, "Locked.");
                }
            };
            studio.faults.armFrom(1, support::FaultPlan::Kind::open);
        }
        return question ? forms::message::Answer::yes : forms::message::Answer::ok;
    };
    studio.connect->NodeKeyDown(Studio::node("RCPR1"), forms::key::del, forms::shift::ctrl);
    studio.faults.disarm();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR2", "RCPU2"}));
    expectNone();
    studio.host.record.messages.clear();
}

}  // namespace
}  // namespace hx::addin
