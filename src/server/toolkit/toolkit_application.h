// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include "adapters/qt/screen/input_rules.h"
#include "automation/error.h"

namespace hx::server {

/// The toolkit in a process that has its own message loop, which serves the toolkit's windows and timers too: it is
/// never run. What event handlers throw is told in this language.
class ToolkitApplication : public QApplication {
  public:
    /// The one of this process; made with the first call unless the process has one. It stays to the end of the
    /// process, and so does this library. The toolkit's plug-ins lie beside the library.
    static void require(const QString& libraryFolder, automation::Language language);

    /// Lets the message loop delete what waits for that, also when nothing else happens.
    static void deleteSoon();

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    ToolkitApplication(int& argc, char** argv, automation::Language language);

    void tell(const automation::Error& error) const;

    qt::InputRules inputRules_;
    automation::Language language_;
    int depth_ = 0;  // of events inside each other
};

}  // namespace hx::server
