// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <cstddef>
#include <cstdint>

#include "automation/sentence.h"

namespace hx::qt {

/// Gives the texts of what is drawn here in the studio's language: a Windows locale identifier, 1033 English, all else
/// German. The sources hold the English texts, translations/hx_de.ts the German ones. No translator is installed for
/// the whole program: a report is in the language that the registry names by then, the studio in the one that it shows.
class Wording {
  public:
    static constexpr std::int32_t german = 1031, english = 1033;
    Wording() = default;
    explicit Wording(automation::Language language)
        : language_(language == automation::Language::english ? english : german) {}
    [[nodiscard]] std::int32_t language() const noexcept { return language_; }
    void setLanguage(std::int32_t lcid) noexcept { language_ = lcid; }
    [[nodiscard]] bool isEnglish() const noexcept { return language_ == english; }
    /// `context` names a part of the program. Literals, both: what collects the texts reads the sources.
    [[nodiscard]] QString translate(const char* context, const char* text) const;
    [[nodiscard]] QLocale locale() const { return isEnglish() ? QLocale::English : QLocale::German; }
    /// With the language's separators of thousands.
    [[nodiscard]] QString number(std::size_t value) const { return locale().toString(qulonglong{value}); }

  private:
    std::int32_t language_ = german;
};

}  // namespace hx::qt
