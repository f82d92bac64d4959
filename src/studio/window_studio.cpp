// SPDX-License-Identifier: MIT
#include "studio/window_studio.h"

#include <QDir>
#include <algorithm>

#include "adapters/qt/text.h"
#include "studio/editor_names.h"

namespace hx::studio {

// Relative paths begin where a choice of a file does.
std::string WindowStudio::pathOf(const std::string& path) const {
    return qt::fromQt(QDir::cleanPath(QDir(window_.projectFolder()).absoluteFilePath(qt::toQt(path))));
}

void WindowStudio::newProject(const std::string& path) {
    keepOpened();
    window_.create(qt::toQt(path));
}

void WindowStudio::openProject(const std::string& file) {
    keepOpened();
    window_.open(qt::toQt(file));
}

void WindowStudio::closeProject() {
    keepOpened();
    window_.closeProject();
}

void WindowStudio::keepOpened() {
    if (const auto open = addIn()) addIns_.push_back(open);
    (void)editorWindow();
}

std::string WindowStudio::file() const {
    const Project* project = window_.project();
    return project == nullptr ? std::string() : qt::fromQt(project->file());
}

std::shared_ptr<host::CHX4Extensibility> WindowStudio::addIn() const {
    const Project* project = window_.project();
    return project == nullptr ? nullptr : project->addIn();
}

automation::ObjectRef WindowStudio::editorWindow() {
    forms::Form* form = addIn() == nullptr ? nullptr : host_.attendedScreen().find(editor_name::window);
    if (form == nullptr) return nullptr;
    const automation::ObjectRef window = form->share();
    if (std::ranges::find(windows_, window) == windows_.end()) windows_.push_back(window);
    return window;
}

// The project's own node is the studio's, not the add-in's, and so is that of the variables.
std::vector<macros::Node> WindowStudio::nodes() {
    auto nodes = macros::nodesBelow(explorer_.model().nodes(), qt::QtExplorer::projectKey);
    std::erase_if(nodes, [this](const macros::Node& node) { return explorer_.isOwn(node.key); });
    return nodes;
}

}  // namespace hx::studio
