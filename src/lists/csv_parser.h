// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace hx::lists {

/// A record of a CSV text. The fields are without their quotation marks, and valid until the next record.
struct CsvRecord {
    std::span<const std::string> fields;
    int line = 0;  ///< where it begins
};

/// Takes a CSV text (RFC 4180) apart. Blanks around fields that are not in quotation marks do not count, nor do empty
/// lines. Everything throws automation::Error with the line when a quotation mark is where none can be.
class CsvParser {
  public:
    using Take = std::function<void(const CsvRecord&)>;

    /// The text begins on this line of the file.
    CsvParser(std::string path, char delimiter, Take take, int firstLine = 1);
    ~CsvParser();
    CsvParser(const CsvParser&) = delete;
    CsvParser& operator=(const CsvParser&) = delete;

    /// The next part of the text, however it is cut.
    void feed(std::string_view text);
    /// The text ends here.
    void finish();

  private:
    struct State;

    void feedPiece(std::string_view piece);
    void parse(std::string_view piece);
    void giveRecord();

    std::string path_;
    char delimiter_;
    Take take_;
    std::unique_ptr<State> state_;
    int line_;
    int recordLine_ = 1;
    std::size_t recordSize_ = 0;  // bytes
    bool begun_ = false;          // within a record
    char previous_ = 0;
};

}  // namespace hx::lists
