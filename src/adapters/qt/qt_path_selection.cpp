#include "adapters/qt/qt_path_selection.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

const QString placeholder = QStringLiteral("<ProjectDir>");

}  // namespace

QString QtPathSelection::expand(const QString& path) const {
    if (projectFolder_.isEmpty() || !path.startsWith(placeholder, Qt::CaseInsensitive)) return path;
    return QDir::cleanPath(projectFolder_ + '/' + path.mid(placeholder.size()).replace('\\', '/'));
}

QString QtPathSelection::shorten(const QString& path) const {
    const QString root = QDir::cleanPath(projectFolder_);
    if (root.isEmpty()) return path;
    if (path == root) return placeholder;
    return path.startsWith(root + '/') ? placeholder + path.mid(root.size()) : path;
}

std::string QtPathSelection::choose(forms::WindowHandle owner, const std::string& current) {
    QWidget* window = windows_.widget(owner);
    const QString folder = QFileDialog::getExistingDirectory(
        window == nullptr ? QApplication::activeWindow() : window->window(), wording_.text(Word::chooseFolder),
        current.empty() ? projectFolder_ : expand(toQt(current)));
    return folder.isEmpty() ? current : fromQt(shorten(QDir::cleanPath(folder)));
}

}  // namespace hx::qt
