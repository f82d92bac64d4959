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

const QString columnsGroup = QStringLiteral("columns");
const QString sessionGroup = QStringLiteral("session");
const QString lastFileKey = QStringLiteral("session/file");
const QString reopensKey = QStringLiteral("projects/reopen");
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

Preferences::Columns Preferences::columns() const {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(columnsGroup);
    Columns columns;
    for (const QString& list : settings.childKeys()) columns[list] = settings.value(list).toByteArray();
    return columns;
}

bool Preferences::saveWindow(const QByteArray& geometry, const QByteArray& layout, const Columns& columns) {
    return write([&](QSettings& settings) {
        settings.setValue(geometryKey, geometry);
        settings.setValue(layoutKey, layout);
        settings.beginGroup(columnsGroup);
        for (auto list = columns.begin(); list != columns.end(); ++list) settings.setValue(list.key(), list.value());
        settings.endGroup();
    });
}

Preferences::Session Preferences::session() const {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(sessionGroup);
    return {.file = settings.value(QStringLiteral("file")).toString(),
            .expanded = settings.value(QStringLiteral("expanded")).toStringList(),
            .node = settings.value(QStringLiteral("node")).toString(),
            .filter = settings.value(QStringLiteral("filter")).toString(),
            .row = settings.value(QStringLiteral("row"), -1).toInt(),
            .scrolled = settings.value(QStringLiteral("scrolled")).toInt(),
            .byName = settings.value(QStringLiteral("byName")).toBool()};
}

bool Preferences::saveSession(const Session& session) {
    return write([&](QSettings& settings) {
        settings.beginGroup(sessionGroup);
        const std::pair<const char*, QVariant> values[] = {
            {"file", session.file},    {"expanded", session.expanded}, {"node", session.node},
            {"row", session.row},      {"scrolled", session.scrolled}, {"filter", session.filter},
            {"byName", session.byName}};
        for (const auto& [key, value] : values) settings.setValue(QLatin1StringView(key), value);
        settings.endGroup();
    });
}

bool Preferences::reopens() const {
    const QVariant reopens = read(file_, reopensKey);
    return reopens.isNull() || reopens.toBool();
}

bool Preferences::setReopens(bool reopens) {
    return write([&](QSettings& settings) { settings.setValue(reopensKey, reopens); });
}

QStringList Preferences::recent() const { return recentIn(QSettings(file_, QSettings::IniFormat)); }

bool Preferences::addRecent(const QString& path) {
    return write([&](QSettings& settings) {
        QStringList list = recentIn(settings);
        list.removeAll(path);
        list.prepend(path);
        settings.setValue(recentKey, QStringList(list.mid(0, recentCount)));
        if (settings.value(lastFileKey).toString() == path) return;
        settings.remove(sessionGroup);  // is another's
        settings.setValue(lastFileKey, path);
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
