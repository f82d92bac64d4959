// SPDX-License-Identifier: MIT
#include "lists/csv_parser.h"

#include <csv.h>
#include <vector>

#include "hosting/text_file.h"
#include "lists/sentences.h"

namespace hx::lists {

namespace {

constexpr std::size_t largestRecord = std::size_t{1} << 20;

}  // namespace

/// The library calls back from C code, which no exception may pass: what it says is only kept here.
struct CsvParser::State {
    explicit State(char delimiter) {
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&parser, static_cast<unsigned char>(delimiter));
    }
    ~State() { csv_free(&parser); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    static void takeField(void* text, std::size_t length, void* self) {
        State& state = *static_cast<State*>(self);
        if (state.fields.size() == state.count) state.fields.emplace_back();
        state.fields[state.count++].assign(static_cast<const char*>(text), length);
    }
    static void endRecord(int, void* self) { static_cast<State*>(self)->complete = true; }

    csv_parser parser{};
    std::vector<std::string> fields;  // more than the record has: they are used again
    std::size_t count = 0;
    bool complete = false;
};

CsvParser::CsvParser(std::string path, char delimiter, Take take, int firstLine)
    : path_(std::move(path)),
      delimiter_(delimiter),
      take_(std::move(take)),
      state_(std::make_unique<State>(delimiter)),
      line_(firstLine) {}

CsvParser::~CsvParser() = default;

void CsvParser::feed(std::string_view text) {
    while (!text.empty()) {
        const auto end = text.find_first_of("\r\n");
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        feedPiece(text.substr(0, length));
        text.remove_prefix(length);
    }
}

// A piece is a line or a part of one, so at most one record ends in it.
void CsvParser::feedPiece(std::string_view piece) {
    const bool endsCrLf = previous_ == '\r' && piece == "\n";
    previous_ = piece.back();
    const std::string_view blanks = delimiter_ == '\t' ? " \r\n" : " \t\r\n";
    if (!begun_ && piece.find_first_not_of(blanks) != std::string_view::npos) {
        begun_ = true;
        recordLine_ = line_;
        recordSize_ = 0;
    }
    if (begun_) parse(piece);
    if (previous_ == '\r' || (previous_ == '\n' && !endsCrLf)) ++line_;
}

void CsvParser::parse(std::string_view piece) {
    recordSize_ += piece.size();
    if (recordSize_ > largestRecord) {
        hosting::Line{path_, recordLine_, {}}.fail(sentence::recordTooLong);
    }
    State& state = *state_;
    const std::size_t done =
        csv_parse(&state.parser, piece.data(), piece.size(), State::takeField, State::endRecord, &state);
    if (done != piece.size()) {
        hosting::Line{path_, line_, {}}.fail(sentence::quoteWithin);
    }
    if (state.complete) giveRecord();
}

void CsvParser::finish() {
    if (csv_fini(&state_->parser, State::takeField, State::endRecord, state_.get()) != 0) {
        hosting::Line{path_, recordLine_, {}}.fail(sentence::quoteOpen);
    }
    if (state_->complete) giveRecord();
}

void CsvParser::giveRecord() {
    begun_ = false;
    take_({std::span(state_->fields).first(state_->count), recordLine_});
    state_->count = 0;
    state_->complete = false;
}

}  // namespace hx::lists
