// SPDX-License-Identifier: MIT

// The texts of the recipe dialog, in both languages, and where its controls stand.
#include "dialogs/frecipe.h"
#include "dialogs_fixture.h"

namespace hx::dialogs {
namespace {

struct Text {
    const char* control;
    std::optional<std::int16_t> index;
    const char* tag;
    const char* german;
    const char* english;
};

const std::vector<Text> controlTexts = {
    {"lblName", {}, "C603", "Name", "Name"},
    {"lblRecipeName", {}, "C604", "Rezeptdateiname", "Recipe File Name"},
    {"lblFileExtension", {}, "C605", "Dateiendung", "File Extension"},
    {"lblComment", {}, "C606", "Kommentar", "Comment"},
    {"lblDescription", {}, "C608", "Beschreibungsvariable", "Description Variable"},
    {"lblVarLoad", {}, "C609", "Ladetrigger", "Load Trigger"},
    {"lblVarSave", {}, "C611", "Speichertrigger", "Save Trigger"},
    {"lblVarRead", {}, "C612", "Lesetrigger", "Read Trigger"},
    {"lblVarWrite", {}, "C613", "Schreibtrigger", "Write Trigger"},
    {"chkEnabled", {}, "C615", "Definition &aktiv", "Definition &active"},
    {"lblFilePath", {}, "C622", "Rezeptdateipfad", "Recipe File Path"},
    {"chkSaveChanges", {}, "C623", "Änderungshistorie aktivieren", "activate Change History"},
    {"chkCryptEngine", {}, "C624", "Rezeptdateien verschlüsseln", "Crypt Recipe Files"},
    {"lblRecipeAbsRel", {}, "C630", "Rezeptwerte...", "Recipe Value"},
    {"optRecipeAbsrel", 0, "C631", "absolut", "absolute"},
    {"optRecipeAbsrel", 1, "C632", "relativ", "relative"},
    {"lblStandardValue", {}, "C633", "Normfaktor", "Norm Factor"},
    {"lblVarSetValue", {}, "C634", "Sollfaktorvariable", "Multiply Factor Variable"},
    {"chkSaveSubRecipes", {}, "C635", "Unterrezeptwerte hier speichern", "Save Sub Recipe Values here"},
    {"fraTransferBehaviour", {}, "C641", "Transferverhalten", "Transfer behaviour"},
    {"fraFileOptions", {}, "C642", "Dateioptionen", "File Options"},
    {"chkWriteThru", {}, "C643", "geänderte Werte direkt schreiben", "Write changed values immediate"},
    {"chkSaveThru", {}, "C644", "geänderte Werte direkt speichern", "Save changed values immediate"},
    {"cmdOk", {}, "C10", "OK", "OK"},
    {"cmdCancel", {}, "C11", "Abbrechen", "Cancel"},
    {"cmdHelp", {}, "C12", "&Hilfe", "&Help"},
};

class FRecipeTexts : public DialogsTest {
  protected:
    std::shared_ptr<FRecipe> dialog = std::make_shared<FRecipe>(host.services(), texts, help);

    [[nodiscard]] std::vector<std::string> tabCaptions() const {
        return {dialog->tab->tabCaption(0), dialog->tab->tabCaption(1), dialog->tab->tabCaption(2)};
    }
    using Texts = std::vector<std::string>;
};

TEST_F(FRecipeTexts, AreGerman) {
    dialog->load();
    EXPECT_EQ(dialog->caption(), "Rezeptdefinition");
    EXPECT_EQ(tabCaptions(), (Texts{"Standard", "Erweitert", "Optionen"}));
    for (const Text& text : controlTexts) {
        EXPECT_EQ(captionOf(*dialog, text.control, text.index), text.german) << text.control;
    }
}

TEST_F(FRecipeTexts, AreEnglish) {
    speak(english);
    dialog->load();
    EXPECT_EQ(dialog->caption(), "Recipe Definition");
    EXPECT_EQ(tabCaptions(), (Texts{"Standard", "Extended", "Options"}));
    for (const Text& text : controlTexts) {
        EXPECT_EQ(captionOf(*dialog, text.control, text.index), text.english) << text.control;
    }
}

TEST_F(FRecipeTexts, ComeFromTheTagsOfTheControls) {
    EXPECT_EQ(dialog->tag(), "C621");
    for (const Text& text : controlTexts) {
        const auto* control = dialog->findControl(text.control, text.index);
        ASSERT_NE(control, nullptr) << text.control;
        EXPECT_EQ(control->tag(), text.tag) << text.control;
    }
}

TEST_F(FRecipeTexts, LeaveNoControlWithAPlaceholder) {
    for (const std::int32_t language : {german, english}) {
        speak(language);
        const auto fresh = std::make_shared<FRecipe>(host.services(), texts, help);
        fresh->load();
        for (const auto& control : fresh->controls()) {
            const auto* captioned = dynamic_cast<forms::Captioned*>(control.get());
            if (captioned == nullptr || captioned == fresh->fraRecipeRelative.get()) continue;
            EXPECT_FALSE(captioned->caption().empty()) << captioned->name();
            EXPECT_EQ(captioned->caption().find("not found"), std::string::npos) << captioned->name();
        }
    }
}

struct Place {
    const char* control;
    int page;
};

TEST_F(FRecipeTexts, StandOnThePageOfTheirSubject) {
    const auto pageOf = [&](const forms::Control* control) {
        while (control != nullptr) {
            for (std::int16_t i = 0; i < 3; ++i) {
                if (control == &dialog->tab->page(i)) return static_cast<int>(i);
            }
            control = control->container();
        }
        return -1;
    };
    for (const auto& [name, page] : std::vector<Place>{{"txtName", 0},
                                                       {"cboFilePath", 0},
                                                       {"chkEnabled", 0},
                                                       {"txtVarWrite", 1},
                                                       {"txtStandardValue", 1},
                                                       {"chkWriteThru", 2},
                                                       {"chkCryptEngine", 2},
                                                       {"cmdOk", -1}}) {
        EXPECT_EQ(pageOf(dialog->findControl(name)), page) << name;
    }
}

TEST_F(FRecipeTexts, StandBesideEachOtherInRows) {
    const auto rowOf = [&](const forms::Control* field) {
        for (const forms::LayoutRow& row : dialog->layout().rows) {
            if (row.field == field) return row;
        }
        return forms::LayoutRow();
    };
    EXPECT_EQ(rowOf(dialog->txtVarSetValue.get()).label, dialog->lblVarSetValue.get());
    EXPECT_EQ(rowOf(dialog->txtVarSetValue.get()).button, dialog->cmdChooseItem[6].get());
    EXPECT_EQ(rowOf(dialog->cboFilePath.get()).button, dialog->cmdChoosePath.get());
    EXPECT_EQ(rowOf(dialog->txtComment.get()).button, nullptr);
    EXPECT_EQ(rowOf(dialog->fraRecipeRelative.get()).label, dialog->lblRecipeAbsRel.get());
    EXPECT_EQ(rowOf(dialog->optRecipeAbsrel[1].get()).container, dialog->fraRecipeRelative.get());
    EXPECT_EQ(dialog->layout().help, dialog->cmdHelp.get());
    // Every control stands in the dialog once.
    std::size_t placed = dialog->layout().buttons.size() + 1;
    for (const forms::LayoutRow& row : dialog->layout().rows) {
        placed += static_cast<std::size_t>((row.label != nullptr) + (row.field != nullptr) + (row.button != nullptr));
    }
    EXPECT_EQ(placed, dialog->controls().size());
}

}  // namespace
}  // namespace hx::dialogs
