// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/qt_path_selection.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

const QString placeholder = QStringLiteral("<ProjectDir>");

bool usesSlashes(const QString& path) { return path.contains('/') && !path.contains('\\'); }

/// The way from `root` down to `folder`, with "/" before it; empty for root itself, null for a folder elsewhere.
QString wayFrom(const QString& root, const QString& folder) {
    if (root.isEmpty()) return {};
    if (folder == root) return QStringLiteral("");
    return folder.startsWith(root + '/') ? folder.mid(root.size()) : QString();
}

QString canonical(const QString& folder) { return QFileInfo(folder).canonicalFilePath(); }

}  // namespace

QString QtPathSelection::expand(const QString& path) const {
    if (projectFolder_.isEmpty() || !path.startsWith(placeholder, Qt::CaseInsensitive)) return path;
    return QDir::cleanPath(projectFolder_ + '/' + path.mid(placeholder.size()).replace('\\', '/'));
}

QString QtPathSelection::shorten(const QString& folder, const QString& like) const {
    QString way = wayFrom(QDir::cleanPath(projectFolder_), QDir::cleanPath(folder));
    // The same folder may be reached by a link.
    if (way.isNull()) way = wayFrom(canonical(projectFolder_), canonical(folder));
    if (way.isNull()) return QDir::toNativeSeparators(folder);
    return placeholder + (usesSlashes(like) ? way : way.replace('/', '\\'));
}

QString QtPathSelection::startFolder(const QString& path) const {
    QString folder = QDir::cleanPath(expand(path.trimmed()));
    // A whole disk may be missing, which has nothing above it.
    for (QString below; QDir::isAbsolutePath(folder) && folder != below; folder = QFileInfo(folder).path()) {
        if (QDir(folder).exists()) return folder;
        below = folder;
    }
    return projectFolder_.isEmpty() ? QDir::homePath() : projectFolder_;
}

std::string QtPathSelection::choose(forms::WindowHandle owner, const std::string& current) {
    QWidget* window = windows_.widget(owner);
    const QString start = startFolder(toQt(current));
    QFileDialog dialog(window == nullptr ? QApplication::activeWindow() : window->window(),
                       wording_.translate("dialogs", "Select Folder"), start);
    dialog.setObjectName(QStringLiteral("pathDialog"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setLabelText(QFileDialog::Accept, wording_.translate("dialogs", "Select"));
    dialog.setLabelText(QFileDialog::Reject, wording_.translate("dialogs", "Cancel"));
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) dressButtons(*buttons, wording_);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return current;
    const QString folder = QDir::cleanPath(dialog.selectedFiles().front());
    // The folder that was given keeps its spelling.
    return folder == QDir::cleanPath(expand(toQt(current))) ? current : fromQt(shorten(folder, toQt(current)));
}

}  // namespace hx::qt
