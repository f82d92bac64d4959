// SPDX-License-Identifier: MIT
#include "studio/help_file.h"

#include <QDir>
#include <QFileInfo>

#include "adapters/headless/memory_registry.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "help/compiled_help.h"

namespace hx::help {
namespace {

using studio::HelpFile;
using Result = studio::HelpFile::Result;

class HelpFileTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    headless::MemoryRegistry registry;
    const QString common = folder.filePath("common");
    const QString target = common + "/helpfiles/Rezeptsystem.chm";
    HelpFile help{registry, {folder.filePath("nothing"), QStringLiteral(HX_STUDIO_FOLDER)}, common};

    Result install(std::int32_t lcid = qt::Wording::german) {
        help.nameCommonFolder();
        return help.install(lcid);
    }
    [[nodiscard]] std::string named() const { return registry.readString(host::registry_keys::tarnwell, "Common"); }
};

TEST_F(HelpFileTest, AMissingCommonFolderIsNamedAndMade) {
    EXPECT_EQ(install(), Result::ready);
    EXPECT_EQ(named(), qt::fromQt(common));
    EXPECT_EQ(bytesOf(target), bytesOf(compiledHelp("de")));
}

TEST_F(HelpFileTest, ACommonFolderThatIsNamedStaysAndIsUsed) {
    const QString other = folder.filePath("other");
    registry.writeString(host::registry_keys::tarnwell, "Common", qt::fromQt(other));
    EXPECT_EQ(install(), Result::ready);
    EXPECT_EQ(named(), qt::fromQt(other));
    EXPECT_TRUE(QFileInfo::exists(other + "/helpfiles/Rezeptsystem.chm"));
    EXPECT_FALSE(QFileInfo::exists(common));
}

TEST_F(HelpFileTest, TheHelpFollowsTheLanguage) {
    install(qt::Wording::german);
    EXPECT_EQ(install(qt::Wording::english), Result::ready);
    EXPECT_EQ(bytesOf(target), bytesOf(compiledHelp("en")));
    EXPECT_EQ(install(2057), Result::ready);
    EXPECT_EQ(bytesOf(target), bytesOf(compiledHelp("de")));
}

TEST_F(HelpFileTest, AForeignFileStays) {
    QDir().mkpath(common + "/helpfiles");
    write(target, "of the plant's own");
    EXPECT_EQ(install(), Result::foreign);
    EXPECT_EQ(bytesOf(target), "of the plant's own");
}

TEST_F(HelpFileTest, AFileThatTookThePlaceOfTheStudiosStays) {
    install();
    write(target, "of the plant's own");
    EXPECT_EQ(install(qt::Wording::english), Result::foreign);
    EXPECT_EQ(bytesOf(target), "of the plant's own");
}

TEST_F(HelpFileTest, AnEarlierHelpOfTheStudioIsReplaced) {
    const QString earlier = folder.filePath("earlier");
    QDir().mkpath(earlier + "/help/de");
    write(earlier + "/help/de/Rezeptsystem.chm", "an earlier version");
    HelpFile before(registry, {earlier}, common);
    before.nameCommonFolder();
    ASSERT_EQ(before.install(qt::Wording::german), Result::ready);
    EXPECT_EQ(install(), Result::ready);
    EXPECT_EQ(bytesOf(target), bytesOf(compiledHelp("de")));
}

TEST_F(HelpFileTest, AFileThatIsTheSameIsTheStudiosFromThenOn) {
    QDir().mkpath(common + "/helpfiles");
    write(target, bytesOf(compiledHelp("de")));
    EXPECT_EQ(install(qt::Wording::german), Result::ready);
    EXPECT_EQ(install(qt::Wording::english), Result::ready);
    EXPECT_EQ(bytesOf(target), bytesOf(compiledHelp("en")));
}

TEST_F(HelpFileTest, ADeletedFileComesBack) {
    install();
    QFile::remove(target);
    EXPECT_EQ(install(), Result::ready);
    EXPECT_TRUE(QFileInfo::exists(target));
}

TEST_F(HelpFileTest, AFolderThatCannotBeWrittenIsAFailure) {
    write(common, "a file where the folder should be");
    EXPECT_EQ(install(), Result::failed);
    EXPECT_EQ(bytesOf(common), "a file where the folder should be");
}

TEST_F(HelpFileTest, AFolderOfAnotherSystemIsNotWrittenTo) {
    registry.writeString(host::registry_keys::tarnwell, "Common", "C:\\Shared");
    EXPECT_EQ(install(), Result::absent);
    EXPECT_FALSE(QFileInfo::exists("C:"));
}

TEST_F(HelpFileTest, AStudioThatBringsNoHelpPutsNone) {
    HelpFile none(registry, {folder.filePath("nothing")}, common);
    none.nameCommonFolder();
    EXPECT_EQ(none.install(qt::Wording::german), Result::absent);
    EXPECT_FALSE(QFileInfo::exists(target));
}

}  // namespace
}  // namespace hx::help
