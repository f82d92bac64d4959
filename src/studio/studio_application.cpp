#include "studio/studio_application.h"

#include <QScopedValueRollback>
#include <clocale>
#include <memory>

#include "adapters/qt/style.h"
#include "adapters/qt/text.h"
#include "automation/error.h"

namespace hx::studio {

StudioApplication::StudioApplication(int& argc, char** argv) : QApplication(argc, argv) {
    // Macros write and read numbers with a point, as on the command line; what is shown goes by QLocale.
    std::setlocale(LC_NUMERIC, "C");
    setStyle(std::make_unique<qt::Style>().release());  // the application owns it
    setApplicationName(QStringLiteral("HelvixStudio"));
    installEventFilter(&inputRules_);
}

bool StudioApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const automation::Error& error) {
        report(qt::toQt(error.message()));
    } catch (const std::exception& error) {
        report(qt::toQt(error.what()));
    }
    return true;
}

void StudioApplication::report(const QString& message) {
    if (reporting_ || !report_) {
        qWarning("%s", qPrintable(message));
        return;
    }
    const QScopedValueRollback reporting(reporting_, true);
    report_(message);
}

}  // namespace hx::studio
