// SPDX-License-Identifier: MIT
#include "studio/macro_menu.h"

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::studio {

namespace {

QString asEntry(QString name) { return name.replace('&', QStringLiteral("&&")); }

}  // namespace

MacroMenu::MacroMenu(QWidget& window, const MacroLibrary& library, MacroMenuCommands& commands, QAction& runAgain,
                     QAction& stop, const qt::Wording& wording)
    : QMenu(&window),
      library_(library),
      commands_(commands),
      runAgain_(runAgain),
      stop_(stop),
      wording_(wording),
      runFile_(&window),
      openFolder_(&window),
      copySamples_(&window) {
    setObjectName(QStringLiteral("menuMacros"));
    runFile_.setObjectName(QStringLiteral("actionRunMacroFile"));
    openFolder_.setObjectName(QStringLiteral("actionMacroFolder"));
    copySamples_.setObjectName(QStringLiteral("actionSampleMacros"));
    setToolTipsVisible(true);
    // An action that is taken out of a menu is cut off from it: these are hung in again whenever the menu is filled.
    connect(&runFile_, &QAction::triggered, &runFile_, [this] { commands_.chooseMacro(); });
    connect(&openFolder_, &QAction::triggered, &openFolder_, [this] { commands_.openMacroFolder(); });
    connect(&copySamples_, &QAction::triggered, &copySamples_, [this] { commands_.copySampleMacros(); });
    connect(this, &QMenu::aboutToShow, this, [this] { fill(); });
    retranslate();
    fill();
}

void MacroMenu::retranslate() {
    setTitle(wording_.translate("studio", "M&acros"));
    runFile_.setText(wording_.translate("studio", "Run Macro &File…"));
    openFolder_.setText(wording_.translate("studio", "&Open Macros Folder"));
    copySamples_.setText(wording_.translate("studio", "&Copy Sample Macros"));
}

void MacroMenu::setRunning(bool running) {
    running_ = running;
    runFile_.setEnabled(!running);
}

void MacroMenu::fill() {
    clear();
    for (QMenu* sub : findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) sub->deleteLater();
    bool any = false;
    for (const MacroFolder& folder : library_.list()) {
        any = any || !folder.macros.isEmpty();
        addMacros(folder, folder.name.isEmpty() ? *this : *addMenu(asEntry(folder.name)));
    }
    if (!any) addAction(wording_.translate("studio", "(no macros yet)"))->setEnabled(false);
    addSeparator();
    addActions({&runFile_, &runAgain_, &stop_});
    addSeparator();
    addAction(&openFolder_);
    if (library_.hasSamples()) addAction(&copySamples_);
}

void MacroMenu::addMacros(const MacroFolder& folder, QMenu& menu) {
    menu.setToolTipsVisible(true);
    for (const MacroFile& macro : folder.macros) {
        QAction* action = menu.addAction(qt::namedIcon("studio/run-macro"), asEntry(macro.name));
        const QString hint =
            macro.hint.isEmpty() ? wording_.translate("studio", "Run the macro %1").arg(macro.name) : macro.hint;
        action->setToolTip(qt::plainToolTip(hint));
        action->setStatusTip(hint);
        action->setEnabled(!running_);
        connect(action, &QAction::triggered, this, [this, path = macro.path] { commands_.runMacro(path); });
    }
}

}  // namespace hx::studio
