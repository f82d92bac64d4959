#include "adapters/qt/wording.h"

#include <QLocale>
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

QString Wording::number(std::size_t value) const {
    const QLocale locale(isEnglish() ? QLocale::English : QLocale::German);
    return locale.toString(static_cast<qulonglong>(value));
}

}  // namespace hx::qt
