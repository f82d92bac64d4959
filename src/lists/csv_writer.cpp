// SPDX-License-Identifier: MIT
#include "lists/csv_writer.h"

#include "automation/text.h"

namespace hx::lists {

void appendCsvRecord(std::string& text, std::span<const std::string_view> fields, char delimiter) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string_view field = fields[i];
        if (i > 0) text += delimiter;
        const bool isPlain = field.find_first_of("\"\r\n") == std::string_view::npos &&
                             field.find(delimiter) == std::string_view::npos && automation::trim(field) == field;
        if (isPlain) {
            text += field;
            continue;
        }
        text += '"';
        text += automation::replaceAll(field, "\"", "\"\"");
        text += '"';
    }
    text += "\r\n";
}

}  // namespace hx::lists
