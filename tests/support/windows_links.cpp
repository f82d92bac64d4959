// SPDX-License-Identifier: MIT
#include "support/windows_links.h"

#include <stdexcept>
#include <windows.h>

namespace hx::support {

namespace fs = std::filesystem;

namespace {

bool isThere(const fs::path& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

/// What Wine stands on. Wine says that it makes links, and does not, but follows those that the system below has.
class SystemBelowWine {
  public:
    [[nodiscard]] bool isThere() const { return nameBelow_ != nullptr; }
    [[nodiscard]] std::string quoted(const fs::path& path) const {
        return std::string(" \"") + nameBelow_(path.c_str()) + "\"";
    }
    void run(const std::string& program, const std::string& arguments) const {
        const std::string command = program + arguments;
        std::wstring writable = fs::path(std::u8string(command.begin(), command.end())).native();
        const std::wstring file = L"Z:\\bin\\" + fs::path(program).native();
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION process{};
        if (!CreateProcessW(file.c_str(), writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                            &process)) {
            throw std::runtime_error("cannot run " + command);
        }
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }

  private:
    using NameBelow = char*(const wchar_t*);
    NameBelow* nameBelow_ = reinterpret_cast<NameBelow*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
};

// Nobody is told when a program of the system below has ended.
void wait(const fs::path& link, bool isMade) {
    while (isThere(link) != isMade) Sleep(1);
}

}  // namespace

Link::Link(const fs::path& target, const fs::path& link) : link_(link) {
    constexpr DWORD anybodyMay = 2;  // SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
    const DWORD kind = fs::is_directory(target) ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    if (const SystemBelowWine below; below.isThere()) {
        below.run("ln", " -s" + below.quoted(target) + below.quoted(link));
        wait(link, true);
    } else if (!CreateSymbolicLinkW(link.c_str(), target.c_str(), kind | anybodyMay)) {
        throw std::runtime_error("There is no link " + link.string());
    }
}

Link::~Link() {
    if (const SystemBelowWine below; below.isThere()) {
        below.run("rm", below.quoted(link_));
        wait(link_, false);
    } else if (!RemoveDirectoryW(link_.c_str())) {
        DeleteFileW(link_.c_str());
    }
}

}  // namespace hx::support
