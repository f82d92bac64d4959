#include "recipe/field_text.h"

#include "automation/text.h"
#include "recipe/schema.h"

namespace hx::recipe {

using automation::Variant;

namespace {

std::string withPoint(std::string_view number) { return automation::replaceAll(number, ",", "."); }

}  // namespace

std::string FieldToText(const ado::Field& field, const automation::NumberFormat& format) {
    const std::string text = automation::toText(field.value(), format);
    return field.type() == ado::adDouble ? withPoint(text) : text;
}

void TextToField(ado::Field& field, std::string_view text) {
    switch (field.type()) {
        case ado::adSmallInt:
        case ado::adInteger: return field.setValue(automation::leadingNumber(text));
        case ado::adDouble: return field.setValue(automation::leadingNumber(withPoint(text)));
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
