// SPDX-License-Identifier: MIT

// The second takes what the first defines.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "studio/program/console.h"

namespace hx::studio {

namespace {

const wchar_t* wide(const QString& text) { return reinterpret_cast<const wchar_t*>(text.utf16()); }

/// A program with windows has no console of its own: the answer goes where its output was sent, or to the console that
/// it was started from, or into a window.
void say(DWORD stream, const QString& text) {
    DWORD written = 0;
    const QByteArray bytes = text.toUtf8();
    if (WriteFile(GetStdHandle(stream), bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr)) return;
    if (AttachConsole(ATTACH_PARENT_PROCESS)) {
        const HANDLE console =
            CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        const bool done = WriteConsoleW(console, wide(text), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
        CloseHandle(console);
        if (done) return;
    }
    MessageBoxW(nullptr, wide(text), L"HelvixStudio", MB_OK);
}

}  // namespace

QStringList commandLine(int, char**) {
    QStringList arguments;
    int count = 0;
    wchar_t** const texts = CommandLineToArgvW(GetCommandLineW(), &count);  // not in a code page, as main gets them
    for (int i = 0; i < count; ++i) arguments.append(QString::fromWCharArray(texts[i]));
    LocalFree(texts);
    return arguments;
}

void answer(const QString& text) { say(STD_OUTPUT_HANDLE, text); }
void complain(const QString& text) { say(STD_ERROR_HANDLE, text); }

}  // namespace hx::studio
