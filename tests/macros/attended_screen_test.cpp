// SPDX-License-Identifier: MIT
#include "macros/attended_screen.h"

#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "dialogs/fmulti_select_items.h"
#include "support/memory_provider.h"

namespace hx::macros {
namespace {

/// A dialog that counts as confirmed when its frame closes it, on the screen of a studio in which macros run.
class Attended : public testing::Test {
  protected:
    bool isCancelled() {
        dialog_->showModal(0);
        EXPECT_FALSE(dialog_->visible());
        return dialog_->cancelled();
    }

    support::MemoryProvider provider_;
    headless::Host host_{provider_};
    Attendance attendance_;
    AttendedScreen screen_{host_.screen, attendance_,
                           [](forms::Form&, forms::WindowHandle, const std::function<void()>& work) { work(); }};
    host::Services services_{.screen = screen_,
                             .database = provider_,
                             .registry = host_.registry,
                             .iniFile = host_.iniFile,
                             .clipboard = host_.clipboard,
                             .help = host_.help,
                             .windows = host_.windows,
                             .components = host_.components,
                             .items = host_.items,
                             .folders = host_.folders,
                             .paths = host::PathStyle('/'),
                             .numberFormat = {},
                             .moduleFile = {}};
    resources::Help help_{services_};
    std::shared_ptr<dialogs::FMultiSelectItems> dialog_ =
        std::make_shared<dialogs::FMultiSelectItems>(services_, help_);
};

TEST_F(Attended, LetsTheUserAnswerWhereTheMacroDoesNot) {
    attendance_.begin([] { return false; }, {});
    host_.script.onModal["FMultiSelectItems"] = [](forms::Form& form) {
        form.get("cmdCancel").asObject()->get("Click");
    };
    EXPECT_TRUE(isCancelled());
    host_.script.onModal.clear();
    dialog_->setCancelled(false);
    EXPECT_FALSE(isCancelled()) << "the frame confirms it";
}

TEST_F(Attended, LetsTheMacroAnswerInPlaceOfTheUser) {
    attendance_.begin([] { return false; }, {});
    host_.script.onModal["FMultiSelectItems"] = [](forms::Form&) { ADD_FAILURE() << "the user is asked"; };
    attendance_.script.onModal["FMultiSelectItems"] = [](forms::Form& form) {
        form.get("cmdOk").asObject()->get("Click");
    };
    EXPECT_FALSE(isCancelled());
}

TEST_F(Attended, CancelsADialogThatIsDismissed) {
    attendance_.begin([] { return false; }, {});
    EXPECT_FALSE(screen_.dismissDialog());
    host_.script.onModal["FMultiSelectItems"] = [this](forms::Form&) { EXPECT_TRUE(screen_.dismissDialog()); };
    EXPECT_TRUE(isCancelled());
}

TEST_F(Attended, CancelsADialogOnceTheMacroHasFailed) {
    attendance_.begin([] { return true; }, {});
    host_.script.onModal["FMultiSelectItems"] = [](forms::Form&) { ADD_FAILURE() << "the user is asked"; };
    EXPECT_TRUE(isCancelled());
    attendance_.end();
    EXPECT_TRUE(attendance_.script.onModal.empty());
}

}  // namespace
}  // namespace hx::macros
