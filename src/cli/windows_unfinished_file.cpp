// SPDX-License-Identifier: MIT
#include <array>
#include <mutex>
#include <windows.h>

#include "cli/unfinished_file.h"
#include "hosting/windows_path.h"

namespace hx::cli {

namespace {

// Windows calls with nothing but the event, in a thread of its own.
std::mutex takingAway;
std::array<std::wstring, 2> unfinished;

// What a database still holds open stays until somebody writes the same file again.
BOOL WINAPI takeAway(DWORD) {
    const std::scoped_lock lock(takingAway);
    for (const std::wstring& name : unfinished) {
        if (!name.empty()) DeleteFileW(name.c_str());
    }
    return FALSE;  // now as if nobody had asked
}

void announce(const std::array<std::wstring, 2>& names) {
    const std::scoped_lock lock(takingAway);
    unfinished = names;
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::filesystem::path& path) : path_(path), journal_(path) {
    journal_ += "-journal";
    announce({hosting::longName(path_), hosting::longName(journal_)});
    SetConsoleCtrlHandler(takeAway, TRUE);
}

UnfinishedFile::~UnfinishedFile() {
    SetConsoleCtrlHandler(takeAway, FALSE);
    announce({});
}

}  // namespace hx::cli
