#include "cli/text_decoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <iconv.h>
#include <system_error>

#include "automation/error.h"
#include "automation/text.h"
#include "cli/text_file.h"

namespace hx::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t blockSize = std::size_t{1} << 18;
constexpr std::size_t declarationLength = 256;

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

std::ifstream openText(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) refuse(path + " is a folder, not a file");
    if (fs::exists(status) && !fs::is_regular_file(status)) refuse(path + " is not a file");
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) refuse(path + " cannot be read: " + std::generic_category().message(errno));
    return file;
}

/// Counts what of a text is UTF-8 beyond ASCII, and what is not UTF-8.
class Utf8Check {
  public:
    void take(unsigned char byte) {
        if (needed_ == 0) return begin(byte);
        if (byte < lowest_ || byte > highest_) {
            needed_ = 0;
            ++wrong_;
            return begin(byte);
        }
        lowest_ = 0x80;
        highest_ = 0xBF;
        if (--needed_ == 0) ++characters_;
    }
    [[nodiscard]] bool isUtf8() const { return needed_ == 0 && wrong_ == 0; }
    [[nodiscard]] bool isMostlyUtf8() const { return characters_ > wrong_; }

  private:
    // Overlong forms, surrogates and what lies beyond U+10FFFF narrow the byte that follows.
    void begin(unsigned char byte) {
        if (byte < 0x80) return;
        needed_ = byte < 0xC2 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : byte < 0xF5 ? 3 : 0;
        if (needed_ == 0) ++wrong_;
        lowest_ = byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80;
        highest_ = byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF;
    }

    int needed_ = 0;  // bytes that the character still lacks
    unsigned char lowest_ = 0x80, highest_ = 0xBF;
    std::int64_t characters_ = 0, wrong_ = 0;
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
    std::string block(blockSize, '\0');
    while (file.read(block.data(), static_cast<std::streamsize>(block.size())) || file.gcount() > 0) {
        const auto end = block.begin() + file.gcount();
        for (auto at = block.begin(); at != end; ++at) check.take(static_cast<unsigned char>(*at));
    }
    return check;
}

}  // namespace

Encoding recogniseEncoding(const std::string& path) {
    Encoding marked = markedEncoding(beginning(path, 3));
    if (!marked.name.empty()) return marked;
    const Utf8Check check = checkUtf8(path);
    return {check.isUtf8() || check.isMostlyUtf8() ? "UTF-8" : "WINDOWS-1252"};
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

bool isKnownEncoding(const std::string& name) {
    const iconv_t converter = iconv_open("UTF-8", name.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) return false;
    iconv_close(converter);
    return true;
}

void TextDecoder::Closer::operator()(void* converter) const noexcept { iconv_close(converter); }

TextDecoder::TextDecoder(std::string path, const Encoding& encoding)
    : path_(std::move(path)), encoding_(encoding.name), file_(openText(path_)) {
    if (!isKnownEncoding(encoding_)) {
        Line{path_, 1, {}}.fail("the encoding \"" + encoding_ + "\" is unknown");
    }
    converter_.reset(iconv_open("UTF-8", encoding_.c_str()));
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
    file_.read(bytes_.data() + kept, static_cast<std::streamsize>(blockSize));
    const auto count = file_.gcount();
    bytes_.resize(kept + static_cast<std::size_t>(count));
    done_ += count;
    if (file_.bad()) refuse(path_ + " cannot be read");
}

void TextDecoder::convert(std::string& piece) {
    piece.resize(bytes_.size() * 4);
    char* from = bytes_.data();
    char* to = piece.data();
    std::size_t fromLeft = bytes_.size();
    std::size_t toLeft = piece.size();
    const bool complete = iconv(converter_.get(), &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
    const int problem = complete ? 0 : errno;
    piece.resize(piece.size() - toLeft);
    // Half a character at the end of a block waits for the next one.
    if (problem == EILSEQ || (problem == EINVAL && !file_)) {
        line_ += static_cast<int>(std::ranges::count(piece, '\n'));
        failAtByte(from);
    }
    bytes_.erase(0, bytes_.size() - fromLeft);
}

void TextDecoder::failAtByte(const char* at) const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(*at);
    Line{path_, line_, {}}.fail(std::string("the byte 0x") + digits[byte >> 4] + digits[byte & 15] + " is no text in " +
                                encoding_);
}

}  // namespace hx::cli
