// SPDX-License-Identifier: MIT
#include "lists/csv_variables.h"

#include <algorithm>

#include "automation/text.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "lists/csv_layout.h"
#include "lists/csv_parser.h"
#include "lists/text_decoder.h"

namespace hx::lists {

namespace {

class CsvVariables {
  public:
    CsvVariables(const std::string& path, const CsvLayout& layout, VariableReceiver& receiver)
        : path_(path), layout_(layout), receiver_(receiver), headerIsNext_(layout.hasHeader) {}

    void take(const CsvRecord& record) {
        if (record.line == 1 && record.fields[0] == separatorMark) return;
        if (std::exchange(headerIsNext_, false)) return;
        // Spreadsheets write lines of delimiters alone.
        if (std::ranges::all_of(record.fields, &std::string::empty)) return;
        for (std::size_t i = layout_.columns; i < record.fields.size(); ++i) {
            if (!record.fields[i].empty()) failTooMany(record);
        }
        variable_.line = record.line;
        variable_.name = automation::trim(fieldOf(record, layout_.name).value_or(""));
        variable_.type = fieldOf(record, layout_.type);
        variable_.comment = fieldOf(record, layout_.comment);
        receiver_.take(variable_);
    }

  private:
    [[noreturn]] void failTooMany(const CsvRecord& record) const {
        hosting::Line{path_, record.line, {}}.fail(std::to_string(record.fields.size()) + " columns; there are " +
                                                   std::to_string(layout_.columns) +
                                                   (layout_.hasHeader ? " in the header" : ": name, type, comment"));
    }

    static std::optional<std::string> fieldOf(const CsvRecord& record, std::optional<std::size_t> column) {
        if (!column || *column >= record.fields.size()) return std::nullopt;
        return record.fields[*column];
    }

    const std::string& path_;
    const CsvLayout& layout_;
    VariableReceiver& receiver_;
    ListedVariable variable_;  // used again
    bool headerIsNext_;
};

}  // namespace

void readCsvVariables(const std::string& path, const std::string& encoding, VariableReceiver& receiver) {
    Encoding recognised = recogniseEncoding(path);
    if (!encoding.empty() && recognised.markLength == 0) recognised.name = encoding;
    TextDecoder decoder(path, recognised);
    std::string piece;
    if (!decoder.read(piece)) return;
    const CsvLayout layout = recogniseLayout(path, piece, decoder.done() == decoder.size());
    for (const std::string& other : layout.others)
        receiver.note("the column " + hosting::inQuotes(other) + " is not read");
    CsvVariables variables(path, layout, receiver);
    CsvParser parser(path, layout.delimiter, [&](const CsvRecord& record) { variables.take(record); });
    do {
        parser.feed(piece);
        receiver.reach(decoder.done(), decoder.size());
    } while (decoder.read(piece));
    parser.finish();
}

}  // namespace hx::lists
