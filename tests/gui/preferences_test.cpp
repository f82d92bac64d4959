// SPDX-License-Identifier: MIT
#include "studio/preferences.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "adapters/qt/text.h"

namespace hx::gui {
namespace {

class PreferencesTest : public testing::Test {
  protected:
    [[nodiscard]] QString file() const { return folder.filePath("studio.ini"); }

    QTemporaryDir folder;
    studio::Preferences preferences{folder.path()};
};

TEST_F(PreferencesTest, RemembersTheLatestProjectsFirst) {
    for (int i = 0; i < 10; ++i) EXPECT_TRUE(preferences.addRecent(QStringLiteral("/Löwe, %1.hxs").arg(i)));
    EXPECT_TRUE(preferences.addRecent("/Löwe, 5.hxs"));
    EXPECT_EQ(preferences.recent().size(), 8);
    EXPECT_EQ(preferences.recent().mid(0, 2), (QStringList{"/Löwe, 5.hxs", "/Löwe, 9.hxs"}));
    EXPECT_TRUE(preferences.removeRecent("/Löwe, 5.hxs"));
    EXPECT_EQ(preferences.recent().constFirst(), "/Löwe, 9.hxs");
    EXPECT_TRUE(preferences.clearRecent());
    EXPECT_EQ(preferences.recent(), QStringList());
}

TEST_F(PreferencesTest, KeepsBytesAndWhatItDoesNotKnow) {
    QFile ini(file());
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[other]\nmine=1\n");
    ini.close();
    const QByteArray geometry("\x01\xD9\x00,=\n\xFF;", 8), layout("\x00\x02", 2);
    EXPECT_TRUE(preferences.saveWindow(geometry, layout));
    EXPECT_EQ(preferences.geometry(), geometry);
    EXPECT_EQ(preferences.layout(), layout);
    ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ini.readAll().contains("mine=1"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"studio.ini"});
}

TEST_F(PreferencesTest, DoNotWriteOverAFileThatCannotBeRead) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("studio.ini"));
    EXPECT_FALSE(preferences.addRecent("/a.hxs"));
    EXPECT_FALSE(preferences.saveWindow("a", "b"));
    EXPECT_TRUE(QDir(file()).exists());
}

TEST_F(PreferencesTest, DoNotWriteOverAFileThatIsSetToReadOnly) {
    EXPECT_TRUE(preferences.addRecent("/a.hxs"));
    ASSERT_TRUE(QFile::setPermissions(file(), QFile::ReadOwner));
    EXPECT_FALSE(preferences.addRecent("/b.hxs"));
    EXPECT_EQ(preferences.recent(), QStringList{"/a.hxs"});
}

}  // namespace
}  // namespace hx::gui
