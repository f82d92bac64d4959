// SPDX-License-Identifier: MIT
#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include "adapters/qt/text.h"
#include "studio/main_window.h"
#include "studio/options.h"
#include "studio/preferences.h"
#include "studio/program/console.h"
#include "studio/studio_application.h"
#include "studio/studio_host.h"

namespace hx::studio {
namespace {

QString userConfigFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/HelvixStudio");
}

QStringList moduleFolders() {
    const QString beside = QCoreApplication::applicationDirPath();
    return {beside, beside + QStringLiteral("/plugins")};
}

int runStudio(StudioApplication& application, const Options& options) {
    const QString config =
        QDir(options.configFolder.isEmpty() ? userConfigFolder() : options.configFolder).absolutePath();
    QDir().mkpath(config);
    StudioHost host(config, moduleFolders());
    Preferences preferences(config);
    MainWindow window(host, preferences);
    application.setReport([&host](const automation::Error& error) {
        host.screen().messageBox(error.message(host.screen().language()), forms::message::critical,
                                 qt::fromQt(host.wording().translate("studio", "Unexpected Error")));
    });
    window.show();
    QTimer::singleShot(0, &window, [&] {
        if (options.language) window.chooseLanguage(*options.language);
        if (!options.file.isEmpty()) window.openProject(options.file);
        else if (!options.empty) window.reopenLast();
    });
    const int result = QApplication::exec();
    application.setReport({});
    return result;
}

}  // namespace

static int run(int argc, char** argv) {
    const Options options = parseOptions(commandLine(argc, argv));
    if (!options.error.isEmpty()) {
        complain(QStringLiteral("HelvixStudio: ") + options.error + QStringLiteral("\n\n") + usageText());
        return 2;
    }
    if (options.help || options.version) {
        answer(options.help ? usageText() : versionText() + '\n');
        return 0;
    }
    StudioApplication application(argc, argv);
    return runStudio(application, options);
}

}  // namespace hx::studio

int main(int argc, char** argv) { return hx::studio::run(argc, argv); }
