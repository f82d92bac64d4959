// SPDX-License-Identifier: MIT

// A damaged file is told as such or read as far as it goes; it never ends the program or keeps it for ever.
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "adapters/jet/header.h"
#include "random_changes.h"
#include "samples.h"
#include "support/error_of.h"

namespace hx::jet {

namespace {

void useAll(const std::string& path) {
    try {
        Opened opened(path);
        (void)opened->damages(10);
        (void)RandomChanges(*opened, 5).run(20);
    } catch (const automation::Error& error) {
        EXPECT_FALSE(error.description().empty());
    }
}

TEST(DamagedFile, WithOtherBytesIsRefusedOrRead) {
    const Sample sample("leer.hxs");
    const std::string whole = sample.bytes();
    std::mt19937 random(3);
    for (int i = 0; i < 150; ++i) {
        std::string bytes = whole;
        for (auto flips = random() % 40 + 1; flips > 0; --flips) {
            bytes[random() % bytes.size()] = static_cast<char>(random() % 3 == 0 ? 0xFF : random());
        }
        sample.write(bytes);
        useAll(sample.path());
    }
}

TEST(DamagedFile, ThatIsCutOffIsRefusedOrRead) {
    const Sample sample("brauerei.hxs");
    const std::string whole = sample.bytes();
    for (std::size_t size = 0; size < whole.size(); size += 9973) {
        sample.write(whole.substr(0, size));
        useAll(sample.path());
    }
}

std::string refusalOf(const Sample& sample, const std::function<void(std::string&)>& change) {
    std::string bytes = sample.bytes();
    change(bytes);
    sample.write(bytes);
    return support::errorOf([&] { const Opened opened(sample.path()); }).description();
}

TEST(OtherFormats, AreNamed) {
    constexpr std::size_t version = 0x14, key = 0x3E, password = 0x42;
    const Sample sample("leer.hxs");
    const std::string start = "The project '" + sample.path() + "' ";
    const auto flip = [](std::size_t at) {
        return [at](std::string& bytes) { bytes[at] = static_cast<char>(bytes[at] ^ 1); };
    };
    EXPECT_EQ(refusalOf(sample, flip(version)).find(start + "is a Jet 3 database"), 0U);
    sample.reset();
    EXPECT_EQ(
        refusalOf(sample, [&](std::string& bytes) { bytes[version] = 2; }).find(start + "is a database of the format"),
        0U);
    sample.reset();
    EXPECT_EQ(refusalOf(sample, flip(key)).find(start + "is encrypted"), 0U);
    sample.reset();
    EXPECT_EQ(refusalOf(sample, flip(password)).find(start + "has a database password"), 0U);
}

TEST(OtherFormats, ANewHeaderIsThatOfAJet4DatabaseWithoutPassword) {
    const PageBytes page = Header::make();
    EXPECT_EQ(fileKindOf(page), FileKind::jet4);
    EXPECT_FALSE(Header(page).isEncrypted());
    EXPECT_FALSE(Header(page).hasPassword());
}

TEST(OtherUsers, AreNotThereWhenTheFileThatNamesThemHasLostItsContent) {
    const Sample sample("leer.hxs");
    const std::string users = sample.path().substr(0, sample.path().size() - 4) + ".ldb";
    std::ofstream(users, std::ios::binary) << std::string(56, '\0') + "\2" + std::string(7, '\0');
    {
        Opened opened(sample.path());
        opened->pages().beginWrite();
        (void)opened->table("TrcpRecipeMember")->insert({});
        opened->pages().commit();
        EXPECT_TRUE(std::filesystem::exists(users));
    }
    EXPECT_FALSE(std::filesystem::exists(users));
}

TEST(OtherUsers, MakeAProjectOneForReading) {
    const Sample sample("leer.hxs");
    std::string record(64, '\0');
    record.replace(0, 6, "OFFICE");
    record.replace(32, 5, "Admin");
    const std::string users = sample.path().substr(0, sample.path().size() - 4) + ".ldb";
    std::ofstream(users, std::ios::binary) << record;
    Opened opened(sample.path());
    EXPECT_EQ(textsOf(*opened, "TrcpRecipe", "Name").size(), 0U);
    const auto error = support::errorOf([&] { opened->pages().beginWrite(); });
    EXPECT_NE(error.description().find("\"OFFICE\""), std::string::npos) << error.description();
    EXPECT_TRUE(std::filesystem::exists(users));
}

}  // namespace

}  // namespace hx::jet
