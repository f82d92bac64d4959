// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// The tables of a compiled help file. Each reader takes any bytes and gives what is sound in them.
namespace hx::qt {

/// What the object "/#SYSTEM" says. Paths are as written there, without the "/" before them.
struct HelpSystem {
    QString title;
    QString contents;  ///< path of the table of contents
    QString start;     ///< path of the first topic
};
[[nodiscard]] HelpSystem readHelpSystem(const QByteArray& system);

/// The paths of the topics by context number, from "/#IVB" and "/#STRINGS".
[[nodiscard]] QMap<std::int32_t, QString> readHelpContexts(const QByteArray& table, const QByteArray& strings);

/// Text that is UTF-8, or else in the code page 1252.
[[nodiscard]] QString decodeHelpText(const QByteArray& bytes);

}  // namespace hx::qt
