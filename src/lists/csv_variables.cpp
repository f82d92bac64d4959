// SPDX-License-Identifier: MIT
#include "lists/csv_variables.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "automation/text.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "lists/csv_parser.h"
#include "lists/sentences.h"
#include "lists/text_decoder.h"

namespace hx::lists {

namespace {

constexpr std::size_t shownKinds = 8;

// Of what tells tags from other things.
bool isTag(std::string_view kind) {
    constexpr auto words = std::to_array<std::string_view>({"Tag", "Variable", "Var"});
    return std::ranges::any_of(words, [&](std::string_view word) { return automation::equalIgnoreCase(word, kind); });
}

class CsvVariables {
  public:
    CsvVariables(const std::string& path, const CsvLayout& layout, VariableReceiver& receiver)
        : path_(path), layout_(layout), receiver_(receiver), headerIsNext_(layout.hasHeader()) {}

    void take(const CsvRecord& record) {
        if (std::exchange(headerIsNext_, false)) return;
        // Spreadsheets write lines of delimiters alone.
        if (std::ranges::all_of(record.fields, &std::string::empty)) return;
        if (!isTagHere(record)) return;
        for (std::size_t i = layout_.columns; i < record.fields.size(); ++i) {
            if (!record.fields[i].empty()) failTooMany(record);
        }
        variable_.line = record.line;
        variable_.name = automation::trim(fieldOf(record, layout_.name).value_or(""));
        if (const auto scope = fieldOf(record, layout_.scope); scope && !scope->empty())
            variable_.name = *scope + "." + variable_.name;
        variable_.type = fieldOf(record, layout_.type);
        variable_.comment = fieldOf(record, layout_.comment);
        receiver_.take(variable_);
    }

    /// What the list has and is not read.
    void tellOfColumns() const {
        if (layout_.remarks == 1) receiver_.note(sentence::lineBeforeHeader, {});
        if (layout_.remarks > 1) receiver_.note(sentence::linesBeforeHeader, {std::to_string(layout_.remarks)});
        std::string others;
        int count = 0;
        for (std::size_t i = 0; i < layout_.titles.size(); ++i) {
            const std::array read{layout_.name, layout_.type, layout_.comment, layout_.kind, layout_.scope};
            if (std::ranges::find(read, std::optional(i)) != read.end() || layout_.titles[i].empty()) continue;
            others += (count++ == 0 ? "" : ", ") + hosting::inQuotes(layout_.titles[i]);
        }
        if (count > 0) receiver_.note(count == 1 ? sentence::columnNotRead : sentence::columnsNotRead, {others});
    }
    void tellOfLines() const {
        if (others_.empty()) return;
        std::string told;
        for (const auto& [kind, count] : others_)
            told += (told.empty() ? "" : ", ") + kind + " (" + std::to_string(count) + ")";
        receiver_.note(sentence::otherLines, {told});
        if (!anyTag_)
            hosting::Line{path_, layout_.line, {}}.fail(sentence::noTags,
                                                        {hosting::inQuotes(layout_.titles[*layout_.kind])});
    }

  private:
    bool isTagHere(const CsvRecord& record) {
        if (!layout_.kind) return true;
        const std::string kind = fieldOf(record, layout_.kind).value_or("");
        if (isTag(kind)) return anyTag_ = true;
        std::string shown = hosting::inQuotes(kind);
        if (!others_.contains(shown) && others_.size() >= shownKinds) shown = "…";
        ++others_[shown];
        return false;
    }

    [[noreturn]] void failTooMany(const CsvRecord& record) const {
        hosting::Line{path_, record.line, {}}.fail(
            layout_.hasHeader() ? sentence::moreThanHeader : sentence::moreThanThree,
            {std::to_string(record.fields.size()), std::to_string(layout_.columns)});
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
    bool anyTag_ = false;
    std::map<std::string, int> others_;  // how many lines of each other kind
};

TextDecoder decoderOf(const std::string& path, const std::string& encoding) {
    Encoding recognised = recogniseEncoding(path);
    if (!encoding.empty() && recognised.markLength == 0) recognised.name = encoding;
    return {path, recognised};
}

}  // namespace

CsvLayout layoutOf(const std::string& path, const std::string& encoding) {
    TextDecoder decoder = decoderOf(path, encoding);
    std::string piece;
    (void)decoder.read(piece);
    return recogniseLayout(path, piece, decoder.done() == decoder.size());
}

void readCsvText(const std::string& title, std::string_view text, VariableReceiver& receiver) {
    const CsvLayout layout = recogniseLayout(title, text, true);
    requireColumns(layout, title);
    CsvVariables variables(title, layout, receiver);
    variables.tellOfColumns();
    const auto take = [&](const CsvRecord& record) { variables.take(record); };
    CsvParser parser(title, layout.delimiter, take, layout.line);
    parser.feed(text.substr(layout.begin));
    parser.finish();
    variables.tellOfLines();
}

void readCsvVariables(const std::string& path, const CsvChoice& choice, VariableReceiver& receiver) {
    TextDecoder decoder = decoderOf(path, choice.encoding);
    std::string piece;
    if (!decoder.read(piece)) return;
    const CsvLayout layout =
        choice.layout ? *choice.layout : recogniseLayout(path, piece, decoder.done() == decoder.size());
    requireColumns(layout, path);
    CsvVariables variables(path, layout, receiver);
    variables.tellOfColumns();
    const auto take = [&](const CsvRecord& record) { variables.take(record); };
    CsvParser parser(path, layout.delimiter, take, layout.line);
    piece.erase(0, layout.begin);
    do {
        parser.feed(piece);
        receiver.reach(decoder.done(), decoder.size());
    } while (decoder.read(piece));
    parser.finish();
    variables.tellOfLines();
}

}  // namespace hx::lists
