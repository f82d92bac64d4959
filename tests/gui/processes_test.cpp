// SPDX-License-Identifier: MIT
#include "support/processes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "adapters/qt/text.h"
#include "automation/convert.h"
#include "gui/studio_fixture.h"
#include "studio/project.h"
#include "support/rival.h"

namespace hx::gui {
namespace {

TEST(PreferencesOfTwoStudios, AreOneList) {
    QTemporaryDir folder;
    support::Processes studios;
    for (int studio = 0; studio < 4; ++studio) {
        studios.start([&folder, studio] {
            studio::Preferences own(folder.path());
            for (int i = 0; i < 10; ++i) own.addRecent(QStringLiteral("/%1.hxs").arg(studio));
        });
    }
    EXPECT_EQ(studios.wait(), 0);
    QStringList recent = studio::Preferences(folder.path()).recent();
    recent.sort();
    EXPECT_EQ(recent, (QStringList{"/0.hxs", "/1.hxs", "/2.hxs", "/3.hxs"}));
}

TEST_F(StudioTest, WorksOnItsProjectWhileAnotherProgramRecordsOneOfThatNameAllTheTime) {
    start();
    const support::Rival rival(qt::fromQt(folder.filePath("config/registry.ini")), "Anlage");
    const QString file = makeProject();
    for (int i = 0; i < 10; ++i) {
        open(file);
        EXPECT_EQ(automation::toText(window().project()->addIn()->get("ProjectPath")), qt::fromQt(file));
        EXPECT_EQ(automation::toText(window().project()->addIn()->get("ProjectName")), "Anlage");
    }
}

}  // namespace
}  // namespace hx::gui
