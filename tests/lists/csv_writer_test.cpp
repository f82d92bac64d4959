// SPDX-License-Identifier: MIT
#include "lists/csv_writer.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

#include "lists/csv_parser.h"

namespace hx::lists {
namespace {

TEST(CsvWriter, QuotesWhatNeedsItAndNothingElse) {
    std::string text;
    appendCsvRecord(text, std::array<std::string_view, 4>{"Tank.Level", "a;b", "say \"hi\"", ""}, ';');
    EXPECT_EQ(text, "Tank.Level;\"a;b\";\"say \"\"hi\"\"\";\r\n");
    text.clear();
    appendCsvRecord(text, std::array<std::string_view, 3>{" x", "a;b", "c\td"}, '\t');
    EXPECT_EQ(text, "\" x\"\ta;b\t\"c\td\"\r\n");
}

TEST(CsvWriter, WritesWhatIsReadAsItWas) {
    const std::vector<std::string> fields{" blanks ", "two\r\nlines", "\"", ";", "plain", ""};
    std::string text;
    appendCsvRecord(text, std::vector<std::string_view>(fields.begin(), fields.end()), ';');
    std::vector<std::string> again;
    CsvParser parser("list", ';',
                     [&](const CsvRecord& record) { again.assign(record.fields.begin(), record.fields.end()); });
    parser.feed(text);
    parser.finish();
    EXPECT_EQ(again, fields);
}

}  // namespace
}  // namespace hx::lists
