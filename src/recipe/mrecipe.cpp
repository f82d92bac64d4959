// SPDX-License-Identifier: MIT
#include "recipe/mrecipe.h"

#include <algorithm>
#include <array>

#include "automation/text.h"
#include "project/schema.h"
#include "recipe/field_text.h"
#include "recipe/stored_row.h"

namespace hx::recipe {

namespace schema = project::schema;

using automation::Error;
using automation::NumberFormat;
using automation::Variant;
using dialogs::FRecipe;
using forms::CheckState;

namespace {

namespace column = schema::recipe;

// These texts are German in every language.
constexpr std::string_view notRead = "Initialisierung Rezept-Dialog fehlgegangen";
constexpr std::string_view notWritten = "Zurückschreiben von Rezept-Dialog fehlgegangen";

/// How one column passes into the dialog and back, and the text that names it there.
struct Transfer {
    std::string_view column;
    std::int32_t caption;
    void (*read)(const ado::Field&, FRecipe&, const NumberFormat&);
    void (*write)(ado::Field&, const FRecipe&);
};

template <auto Box>
void readText(const ado::Field& field, FRecipe& dialog, const NumberFormat& format) {
    (dialog.*Box)->setText(FieldToText(field, format));
}

template <auto Box>
void writeText(ado::Field& field, const FRecipe& dialog) {
    TextToField(field, (dialog.*Box)->text());
}

template <auto Box>
constexpr Transfer text(std::string_view name, std::int32_t caption) {
    return {name, caption, readText<Box>, writeText<Box>};
}

template <auto Box>
constexpr Transfer check(std::string_view name, std::int32_t caption) {
    return {name, caption,
            [](const ado::Field& field, FRecipe& dialog, const NumberFormat&) {
                (dialog.*Box)->setValue(FieldToCheck(field));
            },
            [](ado::Field& field, const FRecipe& dialog) { CheckToField(field, (dialog.*Box)->value()); }};
}

void readStandardValue(const ado::Field& field, FRecipe& dialog, const NumberFormat& format) {
    readText<&FRecipe::txtStandardValue>(field, dialog, format);
    const bool absolute = dialog.txtStandardValue->text() == "0";
    dialog.optRecipeAbsrel.at(absolute ? FRecipe::absolute : FRecipe::relative)->setValue(true);
}

CheckState stateOf(bool checked) { return checked ? CheckState::checked : CheckState::unchecked; }

void readOptions(const ado::Field& field, FRecipe& dialog, const NumberFormat&) {
    const TransferOptions options = SplitOptions(field.value());
    dialog.chkWriteThru->setValue(stateOf(options.writeThrough));
    dialog.chkSaveThru->setValue(stateOf(options.saveThrough));
}

void writeOptions(ado::Field& field, const FRecipe& dialog) {
    const auto set = [](const forms::CheckBox& box) { return box.value() != CheckState::unchecked; };
    field.setValue(JoinOptions({set(*dialog.chkWriteThru), set(*dialog.chkSaveThru)}));
}

constexpr auto transfers = std::to_array<Transfer>({
    text<&FRecipe::txtName>(column::name, 603),
    text<&FRecipe::txtRecipeName>(column::varRecipeName, 604),
    // Its type takes more than a text of variable length: it is stored as it is.
    {column::filePath, 622, readText<&FRecipe::cboFilePath>,
     [](ado::Field& field, const FRecipe& dialog) { field.setValue(dialog.cboFilePath->text()); }},
    text<&FRecipe::txtDescription>(column::varDescription, 608),
    text<&FRecipe::txtFileExtension>(column::fileExtension, 605),
    check<&FRecipe::chkEnabled>(column::enabled, 615),
    text<&FRecipe::txtComment>(column::comment, 606),
    text<&FRecipe::txtVarSave>(column::varSave, 611),
    text<&FRecipe::txtVarLoad>(column::varLoad, 609),
    text<&FRecipe::txtVarRead>(column::varRead, 612),
    text<&FRecipe::txtVarWrite>(column::varWrite, 613),
    {column::standardValue, 633, readStandardValue, writeText<&FRecipe::txtStandardValue>},
    text<&FRecipe::txtVarSetValue>(column::varSetValue, 634),
    check<&FRecipe::chkSaveSubRecipes>(column::saveSubRecipes, 635),
    check<&FRecipe::chkSaveChanges>(column::saveChanges, 623),
    check<&FRecipe::chkCryptEngine>(column::cryptEngine, 624),
    {column::options, 641, readOptions, writeOptions},
});

const Transfer* transferOf(std::string_view name) {
    const auto found = std::ranges::find_if(
        transfers, [&](const Transfer& transfer) { return automation::equalIgnoreCase(transfer.column, name); });
    return found != transfers.end() ? &*found : nullptr;
}

ColumnNames namesIn(const resources::ResourceTable& texts) {
    const auto caption = [&texts](const ado::Field& field) {
        const Transfer* transfer = transferOf(field.name());
        const std::string text = transfer == nullptr ? field.name() : texts.GetResource(transfer->caption);
        return automation::replaceAll(text, "&", "");
    };
    const auto value = [&texts](const ado::Field&, const Variant& of) { return valueInWords(of, texts.wording()); };
    return {caption, value};
}

}  // namespace

bool EditRecipe(ado::Recordset& recipes, RecipeWindow& window, const Refusal& refused) {
    const auto dialog = std::make_shared<FRecipe>(window.services(), window.texts(), window.help());
    RowInDialog row(recipes, window.texts(), namesIn(window.texts()));
    if (!row.begin() || !ReadRecipeToDialog(row.fields(), *dialog, window.services().numberFormat)) {
        window.tell(notRead);
        return false;
    }
    // What is refused stays pending: the next try is compared with what was read for the dialog.
    const bool stored = showStoring(window, *dialog, refused, [&] {
        if (!WriteDialogToRecipe(row.fields(), *dialog)) return false;
        row.fields().update();
        return true;
    });
    if (stored) return true;
    if (dialog->cancelled()) return false;
    if (WriteDialogToRecipe(row.fields(), *dialog)) {
        row.store();
    } else {
        window.tell(notWritten);
        row.restore();
    }
    return true;
}

bool ReadRecipeToDialog(ado::Recordset& recipes, FRecipe& dialog, const NumberFormat& format) {
    return forEachField(recipes, [&](const ado::Field& field) {
        if (const Transfer* transfer = transferOf(field.name())) transfer->read(field, dialog, format);
    });
}

bool WriteDialogToRecipe(ado::Recordset& recipes, const FRecipe& dialog) {
    return forEachField(recipes, [&](ado::Field& field) {
        if (const Transfer* transfer = transferOf(field.name())) transfer->write(field, dialog);
    });
}

}  // namespace hx::recipe
