// SPDX-License-Identifier: MIT
#include "studio/output_buffer.h"

#include <algorithm>
#include <utility>

namespace hx::studio {

namespace {

bool isInsideCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

}  // namespace

void OutputBuffer::add(std::string_view text) {
    // Of more than fits, what would be thrown away at once is not copied first.
    if (text.size() > capacity) {
        const std::string_view lost = text.substr(0, text.size() - capacity);
        leftOut_ += static_cast<std::size_t>(std::ranges::count(lost, '\n'));
        text.remove_prefix(lost.size());
    }
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        addLine(text.substr(0, end));
        text.remove_prefix(end);
    }
    makeRoom();
}

// A line, with its end or without.
void OutputBuffer::addLine(std::string_view line) {
    const std::size_t ending = line.ends_with('\n') ? 1 : 0;
    while (lineLength_ + line.size() - ending > longestLine) {
        const std::size_t room = longestLine - lineLength_;
        std::size_t part = room;
        while (part > 0 && isInsideCharacter(line[part])) --part;
        if (part == 0 && room == longestLine) part = room;  // that is no text
        text_.append(line.substr(0, part)).push_back('\n');
        line.remove_prefix(part);
        lineLength_ = 0;
    }
    text_.append(line);
    lineLength_ = line.ends_with('\n') ? 0 : lineLength_ + line.size();
}

// Half of it goes at once, so that this is rare.
void OutputBuffer::makeRoom() {
    if (text_.size() <= 2 * capacity) return;
    const std::size_t end = text_.find('\n', text_.size() - capacity);
    const std::size_t cut = end == std::string::npos ? text_.size() : end + 1;
    leftOut_ +=
        static_cast<std::size_t>(std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(cut), '\n'));
    text_.erase(0, cut);
}

QString OutputBuffer::take(std::size_t& leftOut) {
    leftOut = std::exchange(leftOut_, 0);
    const QString text = QString::fromUtf8(text_.data(), static_cast<qsizetype>(text_.size()));
    text_.clear();
    return text;
}

}  // namespace hx::studio
