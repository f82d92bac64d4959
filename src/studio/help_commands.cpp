// SPDX-License-Identifier: MIT
#include "studio/help_commands.h"

#include <QMenuBar>
#include <QStatusBar>

#include "adapters/qt/help/help_archive.h"
#include "adapters/qt/text.h"
#include "resources/help.h"
#include "studio/about_dialog.h"
#include "studio/shortcut_list.h"

namespace hx::studio {

namespace {

constexpr int helpNoticeTime = 8000;
const QString keysTopic = QStringLiteral("/keys.htm");

}  // namespace

void HelpCommands::install() {
    HelpFile& help = host_.helpFile();
    help.nameCommonFolder();
    if (help.install(wording_.language()) == HelpFile::Result::failed) {
        window_.statusBar()->showMessage(
            wording_.translate("studio", "The help could not be put in its place: %1").arg(help.path()),
            helpNoticeTime);
    }
}

bool HelpCommands::installed() {
    try {
        install();
        return true;
    } catch (const automation::Error& error) {
        warn_(wording_.translate("studio", "The setting could not be saved.\n%1")
                  .arg(qt::toQt(error.message(host_.screen().language()))));
        return false;
    }
}

void HelpCommands::show(forms::WindowHandle owner) {
    if (!installed()) return;
    host_.help().showContext(owner, qt::fromQt(host_.helpFile().path()), resources::help_context::overview);
}

void HelpCommands::showShortcuts() {
    QList<ShortcutList::Group> groups = ShortcutList::ofMenus(window_.menuBar()->actions());
    if (installed()) {
        const qt::HelpArchive help(host_.helpFile().path());
        groups += ShortcutList::ofTopic(QString::fromUtf8(help.read(keysTopic).value_or(QByteArray())));
    }
    ShortcutList(window_, groups, wording_).exec();
}

void HelpCommands::showAbout() { AboutDialog(window_, wording_).exec(); }

}  // namespace hx::studio
