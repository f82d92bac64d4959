// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileInfo>

#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using testing::HasSubstr;

TEST_F(StudioMacroTest, WritesSettingsIntoTheProjectsFolderAlone) {
    start();
    const QString file = makeProject();
    const QString outside = QFileInfo(file).dir().absoluteFilePath(QStringLiteral("../outside.ini"));
    open(file);
    EXPECT_THAT(run("studio.Click('RCPE0') editor.inits.SaveInits('own.ini')\n"
                    "print(pcall(editor.inits.SaveInits, '../outside.ini'))\n"
                    "print(pcall(editor.inits.SaveInits, '" +
                    file.toStdString() + "'))"),
                testing::AllOf(HasSubstr("'../outside.ini' is not in the folder"),
                               HasSubstr("is a project and cannot be written by a macro")));
    EXPECT_TRUE(QFileInfo::exists(QFileInfo(file).dir().absoluteFilePath(QStringLiteral("own.ini"))));
    EXPECT_FALSE(QFileInfo::exists(outside));
}

}  // namespace
}  // namespace hx::gui
