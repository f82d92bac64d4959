// SPDX-License-Identifier: MIT
#include "studio/preferences.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include "adapters/qt/text.h"
#include "automation/error.h"
#include "hosting/file_bytes.h"

namespace hx::studio {

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString layoutKey = QStringLiteral("window/layout");
const QString recentKey = QStringLiteral("projects/recent");

const QString dailyCopiesKey = QStringLiteral("projects/dailyCopies");

QVariant read(const QString& file, const QString& key) { return QSettings(file, QSettings::IniFormat).value(key); }

QStringList recentIn(const QSettings& settings) {
    return settings.value(recentKey).toStringList().mid(0, Preferences::recentCount);
}

// The bytes of a settings file after a change. The toolkit replaces the copy, which may be open nowhere then.
std::string changed(std::string_view bytes, const Preferences::Change& change) {
    const QTemporaryDir folder;
    const std::string copy = qt::fromQt(folder.filePath(QStringLiteral("copy.ini")));
    hosting::replaceFile(hosting::fileSystemPath(copy), bytes);
    {
        QSettings settings(qt::toQt(copy), QSettings::IniFormat);
        change(settings);
        settings.sync();
        if (settings.status() != QSettings::NoError) throw automation::Error(automation::errFail, copy);
    }
    return hosting::readFile(hosting::fileSystemPath(copy)).value_or("");
}

}  // namespace

Preferences::Preferences(const QString& folder) : file_(folder + QStringLiteral("/studio.ini")) {}

QByteArray Preferences::geometry() const { return read(file_, geometryKey).toByteArray(); }

QByteArray Preferences::layout() const { return read(file_, layoutKey).toByteArray(); }

bool Preferences::saveWindow(const QByteArray& geometry, const QByteArray& layout) {
    return write([&](QSettings& settings) {
        settings.setValue(geometryKey, geometry);
        settings.setValue(layoutKey, layout);
    });
}

QStringList Preferences::recent() const { return recentIn(QSettings(file_, QSettings::IniFormat)); }

bool Preferences::addRecent(const QString& path) {
    return write([&](QSettings& settings) {
        QStringList list = recentIn(settings);
        list.removeAll(path);
        list.prepend(path);
        settings.setValue(recentKey, QStringList(list.mid(0, recentCount)));
    });
}

bool Preferences::removeRecent(const QString& path) {
    return write([&](QSettings& settings) {
        QStringList list = recentIn(settings);
        list.removeAll(path);
        settings.setValue(recentKey, list);
    });
}

bool Preferences::clearRecent() {
    return write([](QSettings& settings) { settings.setValue(recentKey, QStringList()); });
}

bool Preferences::keepsDailyCopies() const {
    const QVariant keeps = read(file_, dailyCopiesKey);
    return keeps.isNull() || keeps.toBool();
}

bool Preferences::setKeepsDailyCopies(bool keeps) {
    return write([&](QSettings& settings) { settings.setValue(dailyCopiesKey, keeps); });
}

// The toolkit takes a file that it cannot read for an empty one, and would write it so; it changes a copy alone.
bool Preferences::write(const Change& change) {
    try {
        hosting::changeFile(hosting::fileSystemPath(qt::fromQt(file_)),
                            [&](std::string_view bytes) { return changed(bytes, change); });
        return true;
    } catch (const automation::Error&) {
        return false;
    }
}

}  // namespace hx::studio
