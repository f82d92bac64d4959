// SPDX-License-Identifier: MIT
#include "lists/text_decoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "automation/error.h"
#include "automation/utf8.h"
#include "hosting/file_bytes.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "lists/sentences.h"

namespace hx::lists {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t blockSize = std::size_t{1} << 18;
constexpr std::size_t declarationLength = 256;

[[noreturn]] void refuse(const automation::Sentence& problem, std::initializer_list<std::string_view> names) {
    throw automation::Error(automation::errFail, problem, names);
}

std::ifstream openText(const std::string& path) {
    const fs::path place = hosting::fileSystemPath(path);
    std::error_code error;
    const fs::file_status status = fs::status(place, error);
    if (fs::is_directory(status)) refuse(sentence::isFolder, {path});
    if (fs::exists(status) && !fs::is_regular_file(status)) refuse(sentence::isNoFile, {path});
    std::ifstream file(place, std::ios::binary);
    if (!file.is_open()) refuse(sentence::cannotBeReadFor, {path, std::generic_category().message(errno)});
    return file;
}

/// What of a text is UTF-8 beyond ASCII, in characters, and what is not UTF-8, in bytes.
struct Utf8Check {
    std::int64_t characters = 0, wrong = 0;

    void take(std::string_view text) {
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t length = automation::decodeUtf8(text, at).length;
            if (length == 0) ++wrong;
            if (length > 1) ++characters;
            at += std::max<std::size_t>(length, 1);
        }
    }
};

std::string beginning(const std::string& path, std::size_t length) {
    std::ifstream file = openText(path);
    std::string bytes(length, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(length));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

Encoding markedEncoding(std::string_view bytes) {
    struct Mark {
        std::string_view bytes;
        const char* encoding;
    };
    constexpr std::array<Mark, 3> marks = {
        {{"\xEF\xBB\xBF", "UTF-8"}, {"\xFF\xFE", "UTF-16LE"}, {"\xFE\xFF", "UTF-16BE"}}};
    for (const Mark& mark : marks) {
        if (bytes.starts_with(mark.bytes)) return {mark.encoding, mark.bytes.size()};
    }
    return {};
}

Utf8Check checkUtf8(const std::string& path) {
    std::ifstream file = openText(path);
    Utf8Check check;
    std::string text;
    while (file) {
        const std::size_t kept = text.size();
        text.resize(kept + blockSize);
        file.read(text.data() + kept, static_cast<std::streamsize>(blockSize));
        text.resize(kept + static_cast<std::size_t>(file.gcount()));
        const std::size_t whole = text.size() - (file ? automation::unfinishedUtf8(text) : 0);
        check.take(std::string_view(text).substr(0, whole));
        text.erase(0, whole);
    }
    return check;
}

}  // namespace

Encoding recogniseEncoding(const std::string& path) {
    Encoding marked = markedEncoding(beginning(path, 3));
    if (!marked.name.empty()) return marked;
    const Utf8Check check = checkUtf8(path);
    return {check.wrong == 0 || check.characters > check.wrong ? "UTF-8" : "WINDOWS-1252"};
}

Encoding declaredEncoding(const std::string& path) {
    const std::string bytes = beginning(path, declarationLength);
    Encoding marked = markedEncoding(bytes);
    if (!marked.name.empty()) return marked;
    if (bytes.starts_with(std::string_view("<\0", 2))) return {"UTF-16LE"};
    if (bytes.starts_with(std::string_view("\0<", 2))) return {"UTF-16BE"};
    const std::string declaration = bytes.substr(0, bytes.find("?>"));
    const auto name = declaration.find("encoding");
    const auto open = declaration.find_first_of("\"'", name);
    if (!bytes.starts_with("<?xml") || name == std::string::npos || open == std::string::npos) return {"UTF-8"};
    const auto close = declaration.find(declaration[open], open + 1);
    return {declaration.substr(open + 1, close - open - 1)};
}

bool isKnownEncoding(const std::string& name) { return TextConverter::open(name) != nullptr; }

TextDecoder::TextDecoder(std::string path, const Encoding& encoding)
    : path_(std::move(path)),
      encoding_(encoding.name),
      file_(openText(path_)),
      converter_(TextConverter::open(encoding_)) {
    if (!converter_) hosting::Line{path_, 1, {}}.fail(sentence::unknownEncoding, {hosting::inQuotes(encoding_)});
    file_.exceptions(std::ios::badbit);  // else want of memory would look like the end of the file
    file_.seekg(0, std::ios::end);
    size_ = file_.tellg();
    done_ = static_cast<std::int64_t>(encoding.markLength);
    file_.seekg(static_cast<std::streamoff>(done_));
}

bool TextDecoder::read(std::string& piece) {
    piece.clear();
    while (piece.empty() && (file_ || !bytes_.empty())) {
        fill();
        convert(piece);
    }
    line_ += static_cast<int>(std::ranges::count(piece, '\n'));
    return !piece.empty();
}

void TextDecoder::fill() {
    const std::size_t kept = bytes_.size();
    bytes_.resize(kept + blockSize);
    try {
        file_.read(bytes_.data() + kept, static_cast<std::streamsize>(blockSize));
    } catch (const std::ios::failure&) {
        refuse(sentence::cannotBeRead, {path_});
    }
    const auto count = file_.gcount();
    bytes_.resize(kept + static_cast<std::size_t>(count));
    done_ += count;
}

void TextDecoder::convert(std::string& piece) {
    const TextConverter::Result result = converted(piece);
    // Half a character at the end of a block waits for the next one.
    const bool isCut = result.stop == TextConverter::Stop::WithinACharacter && !file_;
    if (result.stop == TextConverter::Stop::AtNoText || isCut) {
        line_ += static_cast<int>(std::ranges::count(piece, '\n'));
        failAtByte(bytes_[result.taken]);
    }
    bytes_.erase(0, result.taken);
}

TextConverter::Result TextDecoder::converted(std::string& piece) {
    try {
        return converter_->convert(bytes_, piece);
    } catch (const std::system_error& error) {
        refuse(sentence::cannotBeReadFor, {path_, error.code().message()});
    }
}

void TextDecoder::failAtByte(char at) const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(at);
    const std::string shown{digits[byte >> 4], digits[byte & 15]};
    hosting::Line{path_, line_, {}}.fail(sentence::noText, {shown, encoding_});
}

}  // namespace hx::lists
