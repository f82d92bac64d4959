#pragma once

#include <QString>

#include "adapters/qt/wording.h"

namespace hx::studio {

/// The studio's own texts.
enum class Text {
    fileMenu,
    newProject,
    openProject,
    recentProjects,
    clearRecent,
    closeProject,
    exitStudio,
    viewMenu,
    explorer,
    macrosMenu,
    noMacros,
    macroHint,
    runMacroFile,
    runMacroFileTitle,
    macroFiles,
    runMacroAgain,
    runMacroAgainTip,
    stopMacro,
    stopMacroTip,
    openMacroFolder,
    macroFolderNotOpened,
    copySampleMacros,
    sampleMacrosCopied,
    sampleMacrosThere,
    macroFolderNotWritten,
    macroOutput,
    clearOutput,
    copyOutput,
    macroArguments,
    macroArgumentsTip,
    macroRunning,
    macroDone,
    macroFailed,
    macroFailedInLine,
    macroStopped,
    macroNotRead,
    macroLinesLeftOut,
    languageMenu,
    german,
    english,
    helpMenu,
    showHelp,
    helpNotInstalled,
    about,
    aboutText,
    ready,
    projectOpened,
    projectClosed,
    languageLater,
    newProjectTitle,
    openProjectTitle,
    projectFiles,
    allFiles,
    fileMissing,
    fileExists,
    fileNotCreated,
    notProjectName,
    notProjectPath,
    addInNotLoaded,
    addInWrong,
    registryNotRead,
    registryNotWritten,
    settingsNotWritten,
    unexpected,
    hint,
    documents
};

[[nodiscard]] QString studioText(Text text, const qt::Wording& wording);

}  // namespace hx::studio
