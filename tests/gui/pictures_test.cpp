// SPDX-License-Identifier: MIT
#include <QDirIterator>
#include <gtest/gtest.h>

#include "adapters/qt/svg_icon.h"

namespace hx::gui {
namespace {

TEST(Pictures, AreDrawnByTheirNames) {
    int pictures = 0;
    for (QDirIterator files(":/pictures", QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next();
        if (files.fileInfo().isDir()) continue;
        ++pictures;
        const QByteArray name = path.mid(QStringLiteral(":/pictures/").size()).chopped(4).toUtf8();
        EXPECT_FALSE(qt::namedIcon(name.constData()).pixmap(16, 16).isNull()) << name.constData();
    }
    EXPECT_GT(pictures, 30);
    EXPECT_TRUE(qt::namedIcon("nothing").isNull());
}

}  // namespace
}  // namespace hx::gui
