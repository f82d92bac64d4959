#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>

namespace hx::qt {

/// The texts of the dialogs that the studio itself shows.
enum class Word {
    ok,
    cancel,
    yes,
    no,
    chooseVariable,
    searchVariable,
    variableName,
    variableType,
    variableComment,
    noVariables,
    searchHint,
    variables,
    shownCount,
    checkedCount,
    missingCount,
    missingVariable,
    onlyChecked,
    chooseSubject,
    choose,
    chooseFolder,
    chooseFont,
    helpMissing
};

/// Gives the texts in the studio's language: a Windows locale identifier, 1033 English, all else German.
class Wording {
  public:
    static constexpr std::int32_t german = 1031, english = 1033;
    [[nodiscard]] std::int32_t language() const noexcept { return language_; }
    void setLanguage(std::int32_t lcid) noexcept { language_ = lcid; }
    [[nodiscard]] bool isEnglish() const noexcept { return language_ == english; }
    [[nodiscard]] QString text(Word word) const;
    /// With the language's separators of thousands.
    [[nodiscard]] QString number(std::size_t value) const;

  private:
    std::int32_t language_ = german;
};

}  // namespace hx::qt
