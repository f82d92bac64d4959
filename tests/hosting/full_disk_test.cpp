// SPDX-License-Identifier: MIT
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "automation/error.h"
#include "hosting/file_bytes.h"
#include "hosting/files_folder.h"
#include "hosting/ini_text_file.h"
#include "hosting/registry_file.h"

namespace hx::hosting {
namespace {

/// While it lives no file of the process can grow beyond a few bytes, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        std::signal(SIGXFSZ, handler_);
        setrlimit(RLIMIT_FSIZE, &before_);
    }

  private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

TEST(AFullDisk, LeavesTheIniFileAsItWas) {
    const FilesFolder folder;
    const std::string path = folder.write("a.ini", "[S]\na=1\n");
    IniTextFile ini;
    {
        const FullDisk disk(4);
        EXPECT_THROW(ini.write("S", "a", "2", path), automation::Error);
    }
    EXPECT_EQ(folder.read("a.ini"), "[S]\na=1\n");
    EXPECT_EQ(folder.entries(), 1U) << "the unfinished file must be gone";
}

TEST(AFullDisk, LeavesTheRegistryAsItWas) {
    const FilesFolder folder;
    RegistryFile registry(folder.write("registry", "[K]\nLCID=dword:1031\n"));
    {
        const FullDisk disk(4);
        EXPECT_THROW(registry.writeNumber("K", "LCID", 1033), automation::Error);
    }
    EXPECT_EQ(registry.readNumber("K", "LCID", 0), 1031);
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(AFullDisk, ShowsInTheMessageWhichFileIsConcerned) {
    const FilesFolder folder;
    const FullDisk disk(0);
    try {
        replaceFile(folder.file("x"), "text");
        FAIL() << "written";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(), "The file '" + folder.file("x") + "' cannot be written: File too large.");
    }
}

}  // namespace
}  // namespace hx::hosting
