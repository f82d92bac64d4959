// SPDX-License-Identifier: MIT
#include <QImage>

#include "dialogs/fconfig_editor.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "gui/dialog_fixture.h"

namespace hx::gui {
namespace {

class DialogFocusTest : public DialogFixture {
  protected:
    void SetUp() override { variables.list = {{"Linie.Laden", "BOOL", ""}, {"Linie.Faktor", "REAL", ""}}; }

    /// Whether the control with the keyboard looks otherwise than it does without.
    [[nodiscard]] static bool showsFocus(QWidget& window) {
        QWidget& widget = focused();
        EXPECT_EQ(widget.window(), &window);
        const QImage with = widget.grab().toImage();
        widget.clearFocus();
        return with != widget.grab().toImage();
    }
    void expectShown(forms::Form& dialog) {
        showDuring(dialog, [&](QWidget& window) { EXPECT_TRUE(showsFocus(window)) << dialog.name(); });
    }
};

TEST_F(DialogFocusTest, EachDialogShowsAtOnceWhereTheKeyboardIs) {
    expectShown(*std::make_shared<dialogs::FRecipe>(services, texts, help));
    const auto subRecipe = std::make_shared<dialogs::FSubRecipe>(services, texts, help);
    subRecipe->cmbChooseRecipe->addItem("Saft");
    expectShown(*subRecipe);
    expectShown(*std::make_shared<dialogs::FMultiSelectItems>(services, help));
    expectShown(*std::make_shared<dialogs::FConfigEditor>(services, help));
}

}  // namespace
}  // namespace hx::gui
