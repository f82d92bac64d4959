// SPDX-License-Identifier: MIT
#include "recipe/field_text.h"

#include "automation/text.h"
#include "project/schema.h"

namespace hx::recipe {

namespace schema = project::schema;

using automation::Variant;

std::string FieldToText(const ado::Field& field, const automation::NumberFormat& format) {
    return automation::toText(field.value(), field.type() == ado::adDouble ? automation::NumberFormat{} : format);
}

// Not every value of a number column can be read from a text: one that is infinite or missing would come back as 0. So
// one that the field holds, or held before the edit, is taken from there.
void TextToField(ado::Field& field, std::string_view text) {
    if (field.type() != ado::adVarWChar) {
        if (text == FieldToText(field)) return;
        if (text == automation::toText(field.originalValue())) return field.setValue(field.originalValue());
    }
    switch (field.type()) {
        case ado::adSmallInt:
        case ado::adInteger: return field.setValue(automation::leadingNumber(text));
        case ado::adDouble: return field.setValue(automation::leadingNumber(automation::replaceAll(text, ",", ".")));
        case ado::adVarWChar: return field.setValue(text);
        default: return;
    }
}

forms::CheckState FieldToCheck(const ado::Field& field) {
    const Variant value = field.value();
    const bool checked = !value.isNull() && automation::toBoolean(value);
    return checked ? forms::CheckState::checked : forms::CheckState::unchecked;
}

void CheckToField(ado::Field& field, forms::CheckState state) { field.setValue(static_cast<std::int16_t>(state)); }

TransferOptions SplitOptions(const Variant& options) {
    if (options.isNull()) return {};
    const std::int32_t bits = automation::toInt32(options);
    return {(bits & schema::option::writeThrough) != 0, (bits & schema::option::saveThrough) != 0};
}

std::int32_t JoinOptions(TransferOptions options) {
    return (options.writeThrough ? schema::option::writeThrough : 0) +
           (options.saveThrough ? schema::option::saveThrough : 0);
}

}  // namespace hx::recipe
