// SPDX-License-Identifier: MIT
#pragma once

#include <QValidator>

namespace hx::qt {

/// Lets no more characters into a field than it may hold: of what is typed or pasted, what fits, and a beep. What
/// stands behind the caret is never pushed out. A character beyond the basic plane counts once, as in a database.
class TextLimit : public QValidator {
  public:
    TextLimit(std::size_t longest, QObject* parent) : QValidator(parent), longest_(longest) {}
    State validate(QString& text, int& caret) const override;

  private:
    std::size_t longest_;
    mutable QString accepted_;
};

}  // namespace hx::qt
