// SPDX-License-Identifier: MIT
#include "studio/project_reading.h"

#include <QTemporaryDir>
#include <optional>

#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

/// Reading a project beside the window.
class ProjectReadingTest : public testing::Test {
  protected:
    void SetUp() override {
        sqlite::createProject(qt::fromQt(file));
        execute(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
            "INSERT INTO TrcpRecipe (Name) SELECT 'R' || i FROM n");
    }
    void execute(const char* sql) {
        sqlite::Database(qt::fromQt(file), {.lockWait = sqlite::LockWait::Milliseconds(0)}).execute(sql);
    }
    void start(studio::ProjectReading::Task task) {
        reading.start(file, {}, std::move(task),
                      [this](const automation::Error& error) { failure = error.description(); });
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("Anlage.hxs"));
    std::optional<std::size_t> found;
    std::string failure;
    studio::ProjectReading reading;
};

TEST_F(ProjectReadingTest, HandsItsResultOverToTheWindow) {
    start([this](project::Reader& reader) -> studio::ProjectReading::Result {
        const std::size_t count = reader.recipes().size();
        return [this, count] { found = count; };
    });
    EXPECT_TRUE(reading.isRunning());
    EXPECT_TRUE(waitUntil([this] { return found.has_value(); }));
    EXPECT_EQ(found, 3000U);
    EXPECT_FALSE(reading.isRunning());
}

TEST_F(ProjectReadingTest, EndsWhenItIsToldAndHoldsNoWriterUp) {
    std::atomic<bool> reads = false;
    start([&reads](project::Reader& reader) -> studio::ProjectReading::Result {
        for (;;) {
            (void)reader.recipes();
            reads = true;
        }
    });
    ASSERT_TRUE(waitUntil([&] { return reads.load(); }));
    EXPECT_THROW(execute("UPDATE TrcpRecipe SET Comment = 'x' WHERE ID = 1"), automation::Error);
    reading.stop();
    EXPECT_NO_THROW(execute("UPDATE TrcpRecipe SET Comment = 'x' WHERE ID = 1"));
}

TEST_F(ProjectReadingTest, GivesNothingOfWhatWasGivenUp) {
    const auto task = [this](std::size_t result) -> studio::ProjectReading::Task {
        return [this, result](project::Reader&) -> studio::ProjectReading::Result {
            return [this, result] { found = result; };
        };
    };
    start(task(1));
    start(task(2));
    EXPECT_TRUE(waitUntil([this] { return found.has_value(); }));
    handleEvents();
    EXPECT_EQ(found, 2U);
}

TEST_F(ProjectReadingTest, TellsWhyItCannotRead) {
    QFile::remove(file);
    start([](project::Reader&) -> studio::ProjectReading::Result { return [] {}; });
    EXPECT_TRUE(waitUntil([this] { return !failure.empty(); }));
    EXPECT_NE(failure.find("Anlage.hxs"), std::string::npos) << failure;
}

}  // namespace
}  // namespace hx::gui
