// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

namespace hx::studio {

/// What a macro prints, until it is shown. A macro that prints without end fills no memory: only the latest text is
/// kept, and lines that are too long for a display are broken.
class OutputBuffer {
  public:
    static constexpr std::size_t capacity = std::size_t{1} << 20U;  ///< bytes
    static constexpr std::size_t longestLine = 4000;                ///< bytes

    void add(std::string_view text);
    [[nodiscard]] bool isEmpty() const noexcept { return text_.empty(); }
    /// The text since the last call. `leftOut` becomes the number of lines that came before it and are lost.
    [[nodiscard]] QString take(std::size_t& leftOut);

  private:
    void addLine(std::string_view line);
    void makeRoom();
    std::string text_;
    std::size_t lineLength_ = 0;
    std::size_t leftOut_ = 0;
};

}  // namespace hx::studio
