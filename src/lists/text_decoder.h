// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

#include "lists/text_converter.h"

namespace hx::lists {

/// How the bytes of a text file stand for characters.
struct Encoding {
    std::string name;            ///< as iconv knows it
    std::size_t markLength = 0;  ///< bytes of the byte order mark
};

/// The encoding of a text that says nothing about it: that of its byte order mark; without one UTF-8 when the bytes
/// are that, else Windows-1252, which holds ISO 8859-1. A text that is UTF-8 in most places is taken for it: reading
/// it names the bytes that are wrong.
[[nodiscard]] Encoding recogniseEncoding(const std::string& path);
/// The encoding of an XML text: that of its byte order mark or declaration, else UTF-8.
[[nodiscard]] Encoding declaredEncoding(const std::string& path);
/// Whether a text in this encoding can be read.
[[nodiscard]] bool isKnownEncoding(const std::string& name);

/// Reads a text file piece by piece as UTF-8. Everything throws automation::Error that names the file, and the line
/// of bytes that are no text.
class TextDecoder {
  public:
    TextDecoder(std::string path, const Encoding& encoding);

    /// The next piece; false at the end. A piece may end within a character.
    bool read(std::string& piece);

    [[nodiscard]] std::int64_t done() const { return done_; }  ///< bytes read
    [[nodiscard]] std::int64_t size() const { return size_; }  ///< bytes of the file

  private:
    void fill();
    void convert(std::string& piece);
    TextConverter::Result converted(std::string& piece);
    [[noreturn]] void failAtByte(char at) const;

    std::string path_;
    std::string encoding_;
    std::ifstream file_;
    std::unique_ptr<TextConverter> converter_;
    std::string bytes_;  // read and not yet converted
    std::int64_t size_;
    std::int64_t done_ = 0;
    int line_ = 1;
};

}  // namespace hx::lists
