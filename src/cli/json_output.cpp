#include "cli/json_output.h"

#include "adapters/sqlite/table_info.h"

namespace hx::cli {

std::string jsonLine(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

Json recipeObject(const RecipeEntry& recipe) { return {{"id", recipe.id}, {"name", recipe.name}}; }

Json columnValue(const sqlite::Statement& row, int column) {
    switch (row.storedType(column)) {
        case ado::adEmpty: return nullptr;
        case ado::adDouble: return row.value(column, ado::adDouble).asDouble();
        case ado::adInteger: {
            const std::int64_t number = row.key(column);
            const bool yesNo = sqlite::columnOfType({}, row.declaredType(column)).type == ado::adBoolean;
            if (yesNo && (number == 0 || number == 1)) return number == 1;
            return number;
        }
        default: return row.text(column);
    }
}

Json jsonOf(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* blob = std::get_if<Blob>(&value)) return {{"hex", blob->digits}};
    return nullptr;
}

}  // namespace hx::cli
