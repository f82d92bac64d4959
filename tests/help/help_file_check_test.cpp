// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_file_check.h"

#include <QtEndian>
#include <random>

#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_search.h"
#include "help/compiled_help.h"

namespace hx::help {
namespace {

bool isSound(const QByteArray& bytes) {
    return qt::isSoundHelpFile(
        {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
}

class HelpFileCheck : public testing::Test {
  protected:
    const QByteArray whole = bytesOf(compiledHelp("de"));
    QTemporaryDir folder;

    [[nodiscard]] std::uint64_t number(qsizetype at) const {
        return qFromLittleEndian<std::uint64_t>(whole.constData() + at);
    }
    [[nodiscard]] qsizetype directory() const { return static_cast<qsizetype>(number(0x48)); }
    [[nodiscard]] qsizetype firstList() const { return directory() + 0x54; }

    /// The file with a number of four bytes changed.
    [[nodiscard]] QByteArray with(qsizetype at, std::uint32_t value) const {
        QByteArray changed = whole;
        qToLittleEndian(value, changed.data() + at);
        return changed;
    }
    [[nodiscard]] qsizetype placeOf(const char* text) const {
        const qsizetype place = whole.indexOf(text);
        if (place < 0) throw std::runtime_error(text);
        return place;
    }
    /// Opens such a file and reads all of it, as the viewer would; gives whether it opened.
    bool readAll(const QByteArray& bytes) {
        const QString path = folder.filePath("some.chm");
        write(path, bytes);
        const qt::HelpBook book(path);
        if (book.isOpen()) (void)qt::HelpSearch(book).find("rezept");
        return book.isOpen();
    }
};

TEST_F(HelpFileCheck, TheCompiledHelpIsSound) {
    EXPECT_TRUE(isSound(whole));
    EXPECT_TRUE(isSound(bytesOf(compiledHelp("en"))));
    EXPECT_TRUE(readAll(whole));
}

TEST_F(HelpFileCheck, NothingAndOtherFilesAreNotSound) {
    EXPECT_FALSE(isSound({}));
    EXPECT_FALSE(isSound("ITSF"));
    EXPECT_FALSE(isSound(QByteArray(100000, '\0')));
    EXPECT_FALSE(isSound(bytesOf(QStringLiteral(HX_STUDIO_FOLDER "/help/de/Rezeptsystem.chm")).sliced(1)));
}

TEST_F(HelpFileCheck, AFileThatEndsAnywhereIsNotSound) {
    for (qsizetype length = 0; length < whole.size(); length += length < 5000 ? 1 : 97) {
        ASSERT_FALSE(isSound(whole.first(length))) << length;
    }
}

TEST_F(HelpFileCheck, ADirectoryThatRunsInACircleIsNotSound) { EXPECT_FALSE(isSound(with(firstList() + 0x10, 0))); }

TEST_F(HelpFileCheck, ADirectoryThatLeadsOutOfTheFileIsNotSound) {
    EXPECT_FALSE(isSound(with(firstList() + 0x10, 7)));
    EXPECT_FALSE(isSound(with(directory() + 0x20, 7)));
    EXPECT_FALSE(isSound(with(directory() + 0x1C, 0x7FFFFFFF)));
    EXPECT_FALSE(isSound(with(0x48, 0x7FFFFFFF)));
    EXPECT_FALSE(isSound(with(0x58, 0x7FFFFFFF)));
}

TEST_F(HelpFileCheck, AChunkWithoutLengthOrWithMoreFreeThanItHasIsNotSound) {
    EXPECT_FALSE(isSound(with(directory() + 0x10, 0)));
    EXPECT_FALSE(isSound(with(firstList() + 4, 0x1000)));
    EXPECT_FALSE(isSound(with(firstList() + 4, 0)));
}

TEST_F(HelpFileCheck, ANameWithoutLengthIsNotSound) {
    QByteArray changed = whole;
    changed[firstList() + 0x14] = '\0';
    EXPECT_FALSE(isSound(changed));
}

TEST_F(HelpFileCheck, ACompressedSectionThatWouldDivideByNothingIsNotSound) {
    const qsizetype control = placeOf("LZXC");
    EXPECT_FALSE(isSound(with(control + 8, 0)));       // the interval of the resets
    EXPECT_FALSE(isSound(with(control + 12, 0)));      // the window
    EXPECT_FALSE(isSound(with(control + 12, 3)));      // no power of two
    EXPECT_FALSE(isSound(with(control + 12, 0x200)));  // too large
    EXPECT_FALSE(isSound(with(control + 16, 0)));
    EXPECT_FALSE(isSound(with(control, 0)));
}

// Whatever stands in a file, reading it ends, and does not end the program.
TEST_F(HelpFileCheck, GarbledFilesAreReadOrRefused) {
    std::mt19937 random(20240607);  // NOLINT: the same files at each run
    const auto below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(limit));
    };
    int opened = 0;
    for (int round = 0; round < 400; ++round) {
        QByteArray bytes = whole;
        // By turns anywhere, in the headers and the directory, and in what is compressed.
        const qsizetype from = round % 3 == 2 ? placeOf("LZXC") + 200 : 0;
        const qsizetype to = round % 3 == 1 ? firstList() + 0x1000 : bytes.size();
        for (int i = 0; i < 1 + round % 20; ++i) bytes[from + below(to - from)] = static_cast<char>(random());
        if (round % 10 == 9) bytes.truncate(below(bytes.size()));
        opened += readAll(bytes) ? 1 : 0;
    }
    EXPECT_GT(opened, 20);
    EXPECT_LT(opened, 380);
}

}  // namespace
}  // namespace hx::help
