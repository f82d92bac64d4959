// SPDX-License-Identifier: MIT
#include "studio/studio_application.h"

#include <QScopedValueRollback>
#include <clocale>

#include "adapters/qt/style.h"

namespace hx::studio {

StudioApplication::StudioApplication(int& argc, char** argv) : QApplication(argc, argv) {
    // Macros write and read numbers with a point, as on the command line; what is shown goes by QLocale.
    std::setlocale(LC_NUMERIC, "C");
    setStyle(new qt::Style);  // the application owns it
    setApplicationName(QStringLiteral("HelvixStudio"));
    installEventFilter(&inputRules_);
    installEventFilter(&toolTips_);
}

bool StudioApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception&) {
        report(automation::caughtError());
    }
    return true;
}

void StudioApplication::report(const automation::Error& error) {
    if (reporting_ || !report_) {
        qWarning("%s", error.what());
        return;
    }
    const QScopedValueRollback reporting(reporting_, true);
    report_(error);
}

}  // namespace hx::studio
