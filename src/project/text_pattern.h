// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hx::project {

/// What is looked for in texts, which are UTF-8. Serves one thread.
class TextPattern {
  public:
    virtual ~TextPattern() = default;
    [[nodiscard]] virtual bool isIn(std::string_view text) = 0;
    /// The text with `with` in all places where it is.
    [[nodiscard]] virtual std::string replaced(std::string_view text, const std::string& with) = 0;
};

/// A text, as it stands.
class PlainPattern : public TextPattern {
  public:
    /// `matchCase`: capitals count; `wholeWord`: no letter, digit or underscore stands before or behind it.
    PlainPattern(std::string text, bool matchCase, bool wholeWord);

    [[nodiscard]] bool isIn(std::string_view text) override;
    [[nodiscard]] std::string replaced(std::string_view text, const std::string& with) override;

  private:
    struct Place {
        std::size_t at, end;
    };
    [[nodiscard]] std::optional<Place> find(std::string_view text, std::size_t from) const;
    [[nodiscard]] std::string_view searched(std::string_view text);
    [[nodiscard]] bool isWhole(std::string_view text, Place place) const;

    std::string text_;  // without case, when that does not count
    bool matchCase_, wholeWord_;
    std::string folded_;
};

}  // namespace hx::project
