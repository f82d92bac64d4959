// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace hx::help {

/// The compiled help of a language, "de" or "en".
inline QString compiledHelp(const char* language) {
    return QStringLiteral(HX_STUDIO_FOLDER "/help/%1/Rezeptsystem.chm").arg(QLatin1StringView(language));
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

inline void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

}  // namespace hx::help
