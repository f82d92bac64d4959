// SPDX-License-Identifier: MIT
#include <array>
#include <atomic>
#include <windows.h>

#include "cli/unfinished_file.h"

namespace hx::cli {

namespace {

// Windows calls with nothing but the event, in a thread of its own. The names are the living object's. What a database
// still holds open stays until somebody writes the same file again.
std::array<const wchar_t*, 2> unfinished{};
std::atomic<bool> isUnfinished = false;

BOOL WINAPI takeAway(DWORD) {
    if (isUnfinished) {
        for (const wchar_t* path : unfinished) DeleteFileW(path);
    }
    return FALSE;  // now as if nobody had asked
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::filesystem::path& path) : path_(path), journal_(path) {
    journal_ += "-journal";
    unfinished = {path_.c_str(), journal_.c_str()};
    isUnfinished = true;
    SetConsoleCtrlHandler(takeAway, TRUE);
}

UnfinishedFile::~UnfinishedFile() {
    SetConsoleCtrlHandler(takeAway, FALSE);
    isUnfinished = false;
}

}  // namespace hx::cli
