// SPDX-License-Identifier: MIT
#include "adapters/qt/wording.h"

#include <QTranslator>

namespace hx::qt {

namespace {

struct GermanTexts : QTranslator {
    GermanTexts() { (void)load(QStringLiteral(":/translations/hx_de.qm")); }
};

}  // namespace

QString Wording::translate(const char* context, const char* text) const {
    static const GermanTexts germanTexts;
    const QString translated = isEnglish() ? QString() : germanTexts.translate(context, text);
    return translated.isEmpty() ? QString::fromUtf8(text) : translated;
}

}  // namespace hx::qt
