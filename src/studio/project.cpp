// SPDX-License-Identifier: MIT
#include "studio/project.h"

#include <QFileInfo>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "studio/clipboard_keeper.h"

namespace hx::studio {

namespace {

constexpr std::string_view addInClass = "HXRecipeEditor.Connect";

}  // namespace

Project::Project(const QString& file, StudioHost& host, qt::QtExplorer& explorer)
    : file_(QFileInfo(file).absoluteFilePath()),
      host_(host),
      explorer_(explorer),
      open_(qt::fromQt(file_), host.registry()) {
    host_.setProjectFile(file_);
    showNode();
}

Project::~Project() {
    endAddIn();
    host_.setProjectFile({});
}

// The add-in's nodes come behind that of the variables: there may be very many.
void Project::showNode() {
    explorer_.openProject(open_.name(), qt::namedIcon("studio/project"));
    explorer_.addOwnNode(variablesKey, qt::fromQt(host_.wording().translate("studio", "Variables")),
                         qt::namedIcon("studio/variables"));
}

void Project::endAddIn() {
    host_.screen().settle();
    open_.end();
    explorer_.closeProject();
}

void Project::restartAddIn() {
    endAddIn();
    open_.reopen();
    showNode();
    startAddIn();
}

void Project::startAddIn() {
    const auto object = host_.components().create(addInClass);
    auto addIn = std::dynamic_pointer_cast<host::CHX4Extensibility>(object);
    if (!addIn) {
        throw automation::Error(automation::errFail, qt::fromQt(host_.wording().translate(
                                                         "studio", "The module is no add-in of the studio.")));
    }
    // The add-in hands its pictures over by the clipboard, where the user may have something else.
    const ClipboardKeeper clipboard;
    explorer_.setAddIn(addIn.get());
    open_.start(std::move(addIn), explorer_);
}

}  // namespace hx::studio
