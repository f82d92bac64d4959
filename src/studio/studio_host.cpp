// SPDX-License-Identifier: MIT
#include "studio/studio_host.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include "adapters/qt/text.h"
#include "hosting/file_bytes.h"

namespace hx::studio {

namespace {

// A window that waits does nothing else.
constexpr sqlite::LockWait::Milliseconds longestLockWait{500};

automation::NumberFormat systemFormat() { return {qt::fromQt(QLocale::system().decimalPoint())}; }

}  // namespace

StudioHost::StudioHost(const QString& configFolder, const QStringList& moduleFolders)
    : configFolder_(configFolder),
      moduleFolders_(moduleFolders),
      screen_(windows_, wording_),
      provider_([this] { return openOptions(); }),
      recordingProvider_(provider_, [this](const std::string& path) { return historyOf(path); }),
      registry_(qt::fromQt(configFolder + QStringLiteral("/registry.ini"))),
      projectRegistry_(registry_),
      help_(screen_, windows_, wording_),
      helpFile_(registry_, moduleFolders, configFolder + QStringLiteral("/common")),
      components_(moduleFolders),
      variables_([this] { return openOptions(); }),
      items_(variables_, windows_, wording_),
      folders_(windows_, wording_),
      attendedProvider_(
          recordingProvider_, [this] { return projectFile_; },
          [this] { return attendance_.answers() ? &attendance_.files() : nullptr; }),
      attendedIniFile_(iniFile_, attendance_, [this] { return hosting::fileSystemPath(projectFile_).parent_path(); }),
      attendedScreen_(screen_, attendance_,
                      [this](forms::Form& form, forms::WindowHandle owner, const std::function<void()>& work) {
                          screen_.showFor(form, owner, work);
                      }),
      attendedHelp_(help_, attendance_),
      attendedComponents_(components_, attendance_),
      attendedItems_(items_, attendance_),
      attendedFolders_(folders_, attendance_),
      services_{.screen = attendedScreen_,
                .database = attendedProvider_,
                .registry = projectRegistry_,
                .iniFile = attendedIniFile_,
                .clipboard = clipboard_,
                .help = attendedHelp_,
                .windows = windows_,
                .components = attendedComponents_,
                .items = attendedItems_,
                .folders = attendedFolders_,
                .paths = host::PathStyle('/'),
                .numberFormat = systemFormat(),
                .moduleFile = {}} {
    components_.setServices(services_);
    screen_.setVariables(variables_);
}

// A file has many names: links, other capitals.
std::shared_ptr<history::History> StudioHost::historyOf(const std::string& path) const {
    if (history_ == nullptr) return nullptr;
    std::error_code error;
    const auto file = hosting::fileSystemPath(path), project = hosting::fileSystemPath(history_->project());
    return file == project || std::filesystem::equivalent(file, project, error) ? history_ : nullptr;
}

sqlite::OpenOptions StudioHost::openOptions() const {
    return {.language = automation::languageOf(wording_.language()), .lockWait = longestLockWait};
}

void StudioHost::setProjectFile(const QString& path) {
    projectFile_ = qt::fromQt(path);
    variables_.setFile(qt::fromQt(path));
    folders_.setProjectFolder(path.isEmpty() ? QString() : QFileInfo(path).absolutePath());
}

}  // namespace hx::studio
