#include "studio/project.h"

#include <QFileInfo>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "studio/clipboard_keeper.h"
#include "studio/icons.h"
#include "studio/studio_texts.h"

namespace hx::studio {

namespace {

constexpr std::string_view addInClass = "HXRecipeEditor.Connect";
const QString extension = QStringLiteral(".hxs");

}  // namespace

Project::Project(const QString& file, StudioHost& host, qt::QtExplorer& explorer)
    : file_(QFileInfo(file).absoluteFilePath()),
      name_(QFileInfo(file).completeBaseName()),
      host_(host),
      explorer_(explorer) {
    host_.registry().open(qt::fromQt(name_), qt::fromQt(QFileInfo(file_).absolutePath()));
    host_.setProjectFile(file_);
    explorer_.openProject(qt::fromQt(name_), qt::svgIcon(icons::project));
}

Project::~Project() {
    host_.screen().settle();
    if (addIn_) addIn_->Terminate();
    explorer_.closeProject();
    addIn_.reset();
    host_.setProjectFile({});
    host_.registry().close();
}

void Project::startAddIn() {
    const auto object = host_.components().create(addInClass);
    addIn_ = std::dynamic_pointer_cast<host::CHX4Extensibility>(object);
    if (!addIn_) {
        throw automation::Error(automation::errFail, qt::fromQt(studioText(Text::addInWrong, host_.wording())));
    }
    // The add-in hands its pictures over by the clipboard, where the user may have something else.
    const ClipboardKeeper clipboard;
    // By its name the add-in finds a project in the registry, always with a small extension; else by its file.
    // A name that looks like a file would be taken for one.
    const bool looksLikeFile = name_.trimmed().endsWith(extension, Qt::CaseInsensitive);
    const QString& known = file_.endsWith(extension) && !looksLikeFile ? name_ : file_;
    explorer_.setAddIn(addIn_.get());
    addIn_->Initialize(qt::fromQt(known), {}, &explorer_, nullptr);
    addIn_->StartupComplete();
}

}  // namespace hx::studio
