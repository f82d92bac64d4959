// SPDX-License-Identifier: MIT
#include "server/toolkit/toolkit_application.h"

#include <windows.h>

#include "adapters/com/server.h"
#include "adapters/qt/style.h"
#include "hosting/windows_text.h"

namespace hx::server {

void ToolkitApplication::require(const QString& libraryFolder, automation::Language language) {
    static int count = 1;
    // The toolkit knows what this library has brought along, pictures and texts, and does not forget them.
    com::keepLoaded(&count);
    if (instance() != nullptr) return;
    addLibraryPath(libraryFolder);
    static char name[] = "HXRecipeEditor", *arguments[] = {name, nullptr};
    new ToolkitApplication(count, arguments, language);  // threads of the toolkit's may outlive every object here
}

ToolkitApplication::ToolkitApplication(int& argc, char** argv, automation::Language language)
    : QApplication(argc, argv), language_(language) {
    setStyle(new qt::Style);  // the application owns it
    setQuitOnLastWindowClosed(false);
    installEventFilter(&inputRules_);
}

bool ToolkitApplication::notify(QObject* receiver, QEvent* event) {
    ++depth_;
    bool isTaken = true;
    try {
        isTaken = QApplication::notify(receiver, event);
    } catch (...) {
        tell(automation::caughtError());
    }
    // A loop of the toolkit's own would now delete what waits for that.
    if (depth_ == 1) sendPostedEvents(nullptr, QEvent::DeferredDelete);
    --depth_;
    return isTaken;
}

void ToolkitApplication::tell(const automation::Error& error) const {
    MessageBoxW(nullptr, hosting::toWide(error.message(language_)).c_str(), L"HXRecipeEditor", MB_ICONERROR);
}

void ToolkitApplication::deleteSoon() {
    QMetaObject::invokeMethod(
        qApp, [] {}, Qt::QueuedConnection);
}

}  // namespace hx::server
