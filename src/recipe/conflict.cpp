// SPDX-License-Identifier: MIT
#include "recipe/conflict.h"

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::recipe {

using automation::Error;
using automation::Language;
using automation::Sentence;
using automation::Variant;

namespace {

constexpr Sentence rowChanged{"The row was changed by another. Nothing of this was stored:",
                              "Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:"};
constexpr Sentence rowDeleted{"The row was deleted by another. Nothing of this was stored:",
                              "Die Zeile wurde von jemand anderem gelöscht. Nichts davon wurde gespeichert:"};
constexpr Sentence entered{"%1: \"%2\"", "%1: \"%2\""};
constexpr Sentence enteredInVain{"%1: \"%2\"; stored is now \"%3\"", "%1: \"%2\"; gespeichert ist jetzt \"%3\""};
constexpr Sentence yes{"yes", "ja"}, no{"no", "nein"};
constexpr std::size_t longest = 80;

bool isEntered(const ado::Field& field) {
    try {
        return !ado::sameValue(field.value(), field.originalValue());
    } catch (const Error&) {
        return false;  // of a row that is gone what was entered can be read, and nothing else
    }
}

std::string entryOf(const ado::Field& field, bool deleted, Language language, const ColumnNames& names) {
    const std::string mine = names.value(field, field.value());
    const Variant stored = deleted ? field.originalValue() : field.underlyingValue();
    if (ado::sameValue(stored, field.originalValue())) return say(language, entered, {names.caption(field), mine});
    return say(language, enteredInVain, {names.caption(field), mine, names.value(field, stored)});
}

}  // namespace

bool isConflict(const Error& error) noexcept {
    return error.number() == ado::dbErrRowChanged || error.number() == ado::dbErrDeletedRow;
}

Error conflictOf(const Error& error, ado::Recordset& recordset, const resources::ResourceTable& texts,
                 const ColumnNames& names) {
    if (!isConflict(error)) return error;
    const bool deleted = error.number() == ado::dbErrDeletedRow;
    try {
        std::string told = say(texts.wording(), deleted ? rowDeleted : rowChanged);
        for (std::size_t i = 0; i < recordset.fieldCount(); ++i) {
            const ado::Field& field = recordset.field(i);
            if (isEntered(field)) told += "\r\n" + entryOf(field, deleted, texts.wording(), names);
        }
        return {error.number(), told};
    } catch (const Error&) {
        return error;  // the row cannot be read now
    }
}

std::string valueInWords(const Variant& value, Language language) {
    if (value.type() == automation::VarType::boolean) return say(language, value.asBoolean() ? yes : no);
    const std::string text = automation::toText(value);
    if (automation::characterCount(text) <= longest) return text;
    return std::string(automation::leftCharacters(text, longest)) + "...";
}

}  // namespace hx::recipe
