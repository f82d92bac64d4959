// SPDX-License-Identifier: MIT
#include "adapters/qt/text_limit.h"

#include <QApplication>

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::qt {

QValidator::State TextLimit::validate(QString& text, int& caret) const {
    const std::size_t count = automation::characterCount(fromQt(text));
    for (std::size_t excess = count; excess > longest_ && caret > 0; --excess) {
        const int units = caret > 1 && text[caret - 1].isLowSurrogate() ? 2 : 1;
        text.remove(caret -= units, units);
    }
    if (count > longest_) {
        QApplication::beep();
        if (text == accepted_) return Invalid;  // nothing of it fits: the field takes it back and can undo as before
    }
    accepted_ = text;
    return Acceptable;
}

}  // namespace hx::qt
