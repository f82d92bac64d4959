// The places that the controls have where no layout manager gives them others.
#include "dialogs/place_rows.h"

#include "dialogs/fconfig_editor.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

class PlaceRowsTest : public DialogsTest {
  protected:
    std::vector<std::shared_ptr<Dialog>> dialogs() {
        return {std::make_shared<FRecipe>(host.services(), texts, help),
                std::make_shared<FSubRecipe>(host.services(), texts, help),
                std::make_shared<FMultiSelectItems>(host.services(), help),
                std::make_shared<FConfigEditor>(host.services(), help)};
    }
    static std::string nameOf(const forms::Control& control) { return control.form()->name() + "." + control.name(); }
    /// The area that a control lies in.
    static const forms::Control& areaOf(const forms::Control& control) {
        return control.container() != nullptr ? *control.container() : *control.form();
    }
    static bool overlap(const forms::Control& a, const forms::Control& b) {
        return a.left() < b.left() + b.width() && b.left() < a.left() + a.width() && a.top() < b.top() + b.height() &&
               b.top() < a.top() + a.height();
    }
};

TEST_F(PlaceRowsTest, GivesEveryControlASizeInsideItsContainer) {
    for (const auto& dialog : dialogs()) {
        for (const auto& control : dialog->controls()) {
            const forms::Control& area = areaOf(*control);
            EXPECT_GT(control->width(), 0) << nameOf(*control);
            EXPECT_GT(control->height(), 0) << nameOf(*control);
            EXPECT_GE(control->left(), 0) << nameOf(*control);
            EXPECT_GE(control->top(), 0) << nameOf(*control);
            EXPECT_LE(control->left() + control->width(), area.width()) << nameOf(*control);
            EXPECT_LE(control->top() + control->height(), area.height()) << nameOf(*control);
        }
    }
}

TEST_F(PlaceRowsTest, LaysNoControlOverAnother) {
    for (const auto& dialog : dialogs()) {
        for (const auto& a : dialog->controls()) {
            for (const auto& b : dialog->controls()) {
                if (a == b || &areaOf(*a) != &areaOf(*b)) continue;
                EXPECT_FALSE(overlap(*a, *b)) << nameOf(*a) << " and " << nameOf(*b);
            }
        }
    }
}

TEST_F(PlaceRowsTest, LeavesPagesThatAreNotShownOutOfSight) {
    const auto dialog = std::make_shared<FRecipe>(host.services(), texts, help);
    EXPECT_EQ(dialog->tab->page(0).left(), 0);
    for (const std::int16_t hidden : {std::int16_t{1}, std::int16_t{2}}) {
        const forms::Frame& page = dialog->tab->page(hidden);
        EXPECT_LT(page.left(), -page.width());
        EXPECT_GT(page.width(), 0);
    }
}

TEST_F(PlaceRowsTest, StandsTheRowsBelowEachOther) {
    const auto dialog = std::make_shared<FConfigEditor>(host.services(), help);
    EXPECT_LT(dialog->lblEditorFont->left(), dialog->txtEditorFont->left());
    EXPECT_LT(dialog->txtEditorFont->left(), dialog->cmdEditorFont->left());
    EXPECT_LT(dialog->txtEditorFont->top(), dialog->chkDelQuestion->top());
    EXPECT_LT(dialog->chkDelQuestion->top(), dialog->chkShowStatusBar->top());
    EXPECT_LT(dialog->chkSaveOnExit->top(), dialog->cmdOk->top());
    EXPECT_LT(dialog->cmdHelp->left(), dialog->cmdOk->left());
    EXPECT_LT(dialog->cmdOk->left(), dialog->cmdCancel->left());
}

}  // namespace
}  // namespace hx::dialogs
