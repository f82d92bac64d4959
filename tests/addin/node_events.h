// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {

namespace key = forms::key;
namespace shift = forms::shift;

/// A studio with two recipes, the first one with variables and a sub-recipe. The editor is not open yet.
struct NodeEvents : testing::Test {
    NodeEvents() {
        const std::int32_t mix = studio.addRecipe("Mix");
        const std::int32_t syrup = studio.addRecipe("Sirup");
        studio.addMember(mix, "Tank1.Level");
        studio.addMember(mix, "Mix.File", syrup);
        studio.addMember(mix, "Tank2.Level");
        studio.start();
    }
    void open() {
        studio.click("RCPE0");
        EXPECT_EQ(studio.boxes(), Texts{});
    }
    template <class Action>
    void expectShownAndRaised(Action&& action) {
        studio.window().hide();
        const auto watched = studio.window().changed.subscribe([this](std::string_view property) {
            if (property != "Visible") return;
            EXPECT_EQ(record.broughtToFront, Texts{}) << "only what is shown can be raised";
        });
        action();
        EXPECT_EQ(record.broughtToFront, (Texts{"frmtabgrid"}));
        EXPECT_TRUE(studio.host.windows.isShown(studio.window().handle()));
    }
    bool visible(std::string_view tool) { return studio.window().abr->mainBand().find(tool)->visible(); }
    Studio studio;
    forms::Record& record = studio.host.record;
};

}  // namespace hx::addin
