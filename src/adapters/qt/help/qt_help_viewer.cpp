// SPDX-License-Identifier: MIT
#include "adapters/qt/help/qt_help_viewer.h"

#include <QApplication>
#include <QFileInfo>

#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

QtHelpViewer::QtHelpViewer(forms::Screen& screen, const QtWindows& windows, const Wording& wording)
    : screen_(screen), windows_(windows), wording_(wording) {}

QtHelpViewer::~QtHelpViewer() = default;

void QtHelpViewer::showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) {
    // The path may come with the separator of another system.
    if (!openFile(toQt(file).replace('\\', '/'), toQt(file))) return;
    window_->showContext(context);
    QWidget* widget = windows_.widget(owner);
    window_->showOver(widget != nullptr ? widget : QApplication::activeWindow());
}

// Opens the file, again when it has changed since.
bool QtHelpViewer::openFile(const QString& path, const QString& asNamed) {
    const QFileInfo info(path);
    if (!info.isFile()) {
        say(wording_.translate("dialogs", "The help file \"%1\" was not found.").arg(asNamed));
        return false;
    }
    if (window_ && path == path_ && info.lastModified() == changed_) return true;
    auto book = std::make_unique<HelpBook>(path);
    if (!book->isOpen()) {
        say(wording_
                .translate("help",
                           "The help file \"%1\" is damaged or cannot be read.\n\n"
                           "If you delete the file, the studio will put it there again when a project is next opened.")
                .arg(asNamed));
        return false;
    }
    if (!window_) window_ = std::make_unique<HelpWindow>(wording_);
    window_->setBook(std::move(book));
    path_ = path;
    changed_ = info.lastModified();
    return true;
}

void QtHelpViewer::closeAll() {
    // It may be asked for by what the help window itself set off: it is deleted when that has run.
    if (!window_) return;
    window_->close();
    window_.release()->deleteLater();
}

void QtHelpViewer::say(const QString& text) {
    screen_.messageBox(fromQt(text), forms::message::ok | forms::message::exclamation, forms::message::defaultTitle);
}

}  // namespace hx::qt
