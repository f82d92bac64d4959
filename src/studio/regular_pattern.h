// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>

#include "adapters/qt/text.h"
#include "project/text_pattern.h"

namespace hx::studio {

/// A regular expression, as Perl's; "\1" in what comes in its place stands for what its first group has found.
class RegularPattern : public project::TextPattern {
  public:
    RegularPattern(const QString& expression, bool matchCase, bool wholeWord)
        : expression_(
              wholeWord ? QStringLiteral("\\b(?:%1)\\b").arg(expression) : expression,
              QRegularExpression::UseUnicodePropertiesOption |
                  (matchCase ? QRegularExpression::NoPatternOption : QRegularExpression::CaseInsensitiveOption)) {
        expression_.optimize();
    }
    /// Why it is none; empty when it is one.
    [[nodiscard]] QString fault() const { return expression_.isValid() ? QString() : expression_.errorString(); }

    // Where nothing at all matches, nothing is found.
    [[nodiscard]] bool isIn(std::string_view text) override {
        const QString whole = qt::toQt(text);
        for (auto matches = expression_.globalMatch(whole); matches.hasNext();) {
            if (matches.next().capturedLength() > 0) return true;
        }
        return false;
    }
    [[nodiscard]] std::string replaced(std::string_view text, const std::string& with) override {
        return qt::fromQt(qt::toQt(text).replace(expression_, qt::toQt(with)));
    }

  private:
    QRegularExpression expression_;
};

}  // namespace hx::studio
