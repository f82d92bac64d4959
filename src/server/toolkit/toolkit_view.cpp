// SPDX-License-Identifier: MIT
#include "server/toolkit/toolkit_view.h"

#include <QFileInfo>

#include "adapters/qt/text.h"

namespace hx::server {

ToolkitView::ToolkitView(std::int32_t language)
    : screen_(toolkitWindows_, wording_),
      hosted_(toolkitWindows_, screen_),
      toolkitItems_(variables_, toolkitWindows_, wording_),
      toolkitFolders_(toolkitWindows_, wording_) {
    wording_.setLanguage(language);
    screen_.setVariables(variables_);
}

qt::VariableList ToolkitView::Variables::variables() const {
    studio::ProjectVariables project;
    if (path) project.setFile(path());
    return project.variables();
}

void ToolkitView::Help::showContext(host::WindowHandle owner, const std::string& file, std::int32_t context) {
    windows::HtmlHelp::showContext(view_.nativeWindow(owner), file, context);
}

std::string ToolkitView::Items::choose(host::WindowHandle owner, const std::string& current) {
    return view_.toolkitItems_.choose(view_.hosted_.toolkitHandle(owner), current);
}

std::string ToolkitView::Folders::choose(host::WindowHandle owner, const std::string& current) {
    const std::string project = view_.variables_.path ? view_.variables_.path() : std::string();
    view_.toolkitFolders_.setProjectFolder(QFileInfo(qt::toQt(project)).absolutePath());
    return view_.toolkitFolders_.choose(view_.hosted_.toolkitHandle(owner), current);
}

}  // namespace hx::server
