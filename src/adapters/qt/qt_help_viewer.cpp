#include "adapters/qt/qt_help_viewer.h"

#include <QFileInfo>

#include "adapters/qt/text.h"

namespace hx::qt {

void QtHelpViewer::showContext(forms::WindowHandle, const std::string& file, std::int32_t) {
    // The path may come with the separator of another system.
    const QString path = toQt(file).replace('\\', '/');
    if (QFileInfo(path).isFile()) return;
    screen_.messageBox(fromQt(wording_.text(Word::helpMissing).arg(toQt(file))),
                       forms::message::ok | forms::message::exclamation, forms::message::defaultTitle);
}

}  // namespace hx::qt
