// The places that the controls have where no layout manager gives them others.
#include "dialogs/place_rows.h"

#include <sstream>

#include "dialogs/fconfig_editor.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

/// A dialog with its width and height; its controls with left, top, width and height. Twips.
constexpr const char* allPlaces = R"(FRecipe 7200 4560
tab 120 120 6960 3765
lblName 120 120 2310 315
txtName 2520 120 4320 315
lblRecipeName 120 525 2310 315
txtRecipeName 2520 525 3855 315
cmdChooseItem 6465 525 375 315
lblDescription 120 930 2310 315
txtDescription 2520 930 3855 315
cmdChooseItem 6465 930 375 315
lblFilePath 120 1335 2310 315
cboFilePath 2520 1335 3855 315
cmdChoosePath 6465 1335 375 315
lblFileExtension 120 1740 2310 315
txtFileExtension 2520 1740 4320 315
lblComment 120 2145 2310 315
txtComment 2520 2145 4320 315
chkEnabled 120 2550 6720 315
lblVarLoad 120 120 2310 315
txtVarLoad 2520 120 3855 315
cmdChooseItem 6465 120 375 315
lblVarSave 120 525 2310 315
txtVarSave 2520 525 3855 315
cmdChooseItem 6465 525 375 315
lblVarRead 120 930 2310 315
txtVarRead 2520 930 3855 315
cmdChooseItem 6465 930 375 315
lblVarWrite 120 1335 2310 315
txtVarWrite 2520 1335 3855 315
cmdChooseItem 6465 1335 375 315
lblRecipeAbsRel 120 1740 2310 315
fraRecipeRelative 2520 1740 4320 720
optRecipeAbsrel 120 0 4080 315
optRecipeAbsrel 120 405 4080 315
lblStandardValue 120 2550 2310 315
txtStandardValue 2520 2550 4320 315
lblVarSetValue 120 2955 2310 315
txtVarSetValue 2520 2955 3855 315
cmdChooseItem 6465 2955 375 315
fraTransferBehaviour 120 120 6720 1110
chkWriteThru 120 270 6480 315
chkSaveThru 120 675 6480 315
fraFileOptions 120 1320 6720 1515
chkSaveSubRecipes 120 270 6480 315
chkSaveChanges 120 675 6480 315
chkCryptEngine 120 1080 6480 315
cmdOk 4560 4065 1215 375
cmdCancel 5865 4065 1215 375
cmdHelp 120 4065 1215 375
FSubRecipe 7200 1515
fraChooseRecipe 120 120 6960 720
lblChooseRecipe 120 0 2310 315
cmbChooseRecipe 2520 0 4320 315
Label1 120 405 2310 315
txtVarRecipe 2520 405 3855 315
cmdChooseItem 6465 405 375 315
cmdOk 4560 1020 1215 375
cmdCancel 5865 1020 1215 375
cmdHelp 120 1020 1215 375
FMultiSelectItems 7200 4995
hxMI 120 120 6960 4200
cmdOk 4560 4500 1215 375
cmdCancel 5865 4500 1215 375
cmdHelp 120 4500 1215 375
FConfigEditor 7200 2325
lblEditorFont 120 120 2310 315
txtEditorFont 2520 120 4095 315
cmdEditorFont 6705 120 375 315
chkDelQuestion 120 525 6960 315
chkShowStatusBar 120 930 6960 315
chkSaveOnExit 120 1335 6960 315
cmdOk 4560 1830 1215 375
cmdCancel 5865 1830 1215 375
cmdHelp 120 1830 1215 375
)";

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
    /// "name left top width height" of each control, in the order of the tabulator key.
    static std::string placesOf(const Dialog& dialog) {
        std::ostringstream out;
        out << dialog.name() << ' ' << dialog.width() << ' ' << dialog.height() << '\n';
        for (const auto& control : dialog.controls()) {
            out << control->name() << ' ' << control->left() << ' ' << control->top() << ' ' << control->width() << ' '
                << control->height() << '\n';
        }
        return out.str();
    }
    static bool overlap(const forms::Control& a, const forms::Control& b) {
        return a.left() < b.left() + b.width() && b.left() < a.left() + a.width() && a.top() < b.top() + b.height() &&
               b.top() < a.top() + a.height();
    }
};

TEST_F(PlaceRowsTest, GivesEachControlItsPlace) {
    std::string places;
    for (const auto& dialog : dialogs()) {
        dialog->move(30, 45, 0, 0);
        placeRows(*dialog);
        EXPECT_EQ(dialog->left(), 30);
        EXPECT_EQ(dialog->top(), 45);
        places += placesOf(*dialog);
    }
    EXPECT_EQ(places, allPlaces);
}

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
    ASSERT_EQ(dialog->tab->tabs(), 3);
    EXPECT_TRUE(dialog->layout().rows.front().grows) << "the pages take what a larger dialog has";
    EXPECT_EQ(dialog->tab->page(0).top(), 375);
    EXPECT_EQ(dialog->tab->page(0).width(), 6960);
    EXPECT_EQ(dialog->tab->page(0).height(), 3390);
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

TEST_F(PlaceRowsTest, KnowsRowsWithoutAFieldFramesByCaptionAndFormsWithoutHelp) {
    struct Plain : forms::Form {
        explicit Plain(forms::Screen& screen) : Form("Plain", screen) {
            addRow({.label = label.get()});
            addRow({.field = frame.get()});
            addRow({.container = frame.get(), .field = text.get()});
            addButtons({ok.get()}, nullptr);
            frame->setCaption("Frame");
        }
        std::shared_ptr<forms::Label> label = add<forms::Label>("label");
        std::shared_ptr<forms::Frame> frame = add<forms::Frame>("frame");
        std::shared_ptr<forms::TextBox> text = add<forms::TextBox>("text");
        std::shared_ptr<forms::CommandButton> ok = add<forms::CommandButton>("ok");
    };
    const auto form = std::make_shared<Plain>(host.screen);
    placeRows(*form);
    EXPECT_EQ(form->label->width(), 6960);
    EXPECT_EQ(form->label->height(), 315);
    EXPECT_EQ(form->frame->top(), 525);
    EXPECT_EQ(form->frame->height(), 705);
    EXPECT_EQ(form->text->top(), 270);
    EXPECT_EQ(form->ok->top(), 1410);
}

}  // namespace
}  // namespace hx::dialogs
