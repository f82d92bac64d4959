#include "studio/preferences.h"

#include <QSettings>
#include <QVariant>

namespace hx::studio {

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString layoutKey = QStringLiteral("window/layout");
const QString recentKey = QStringLiteral("projects/recent");

QVariant read(const QString& file, const QString& key) { return QSettings(file, QSettings::IniFormat).value(key); }

}  // namespace

Preferences::Preferences(QString folder) : file_(std::move(folder) + QStringLiteral("/studio.ini")) {}

QByteArray Preferences::geometry() const { return read(file_, geometryKey).toByteArray(); }

QByteArray Preferences::layout() const { return read(file_, layoutKey).toByteArray(); }

bool Preferences::saveWindow(const QByteArray& geometry, const QByteArray& layout) {
    return write(geometryKey, geometry) && write(layoutKey, layout);
}

QStringList Preferences::recent() const { return read(file_, recentKey).toStringList().mid(0, recentCount); }

bool Preferences::addRecent(const QString& path) {
    QStringList list = recent();
    list.removeAll(path);
    list.prepend(path);
    return write(recentKey, QStringList(list.mid(0, recentCount)));
}

bool Preferences::removeRecent(const QString& path) {
    QStringList list = recent();
    list.removeAll(path);
    return write(recentKey, list);
}

bool Preferences::clearRecent() { return write(recentKey, QStringList()); }

bool Preferences::write(const QString& key, const QVariant& value) {
    QSettings settings(file_, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

}  // namespace hx::studio
