// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <string>
#include <vector>
#include <windows.h>

#include "cli/command_line.h"
#include "hosting/windows_text.h"

namespace {

/// While it lives, what is written to the console is UTF-8.
class Utf8Console {
  public:
    Utf8Console() { SetConsoleOutputCP(CP_UTF8); }
    ~Utf8Console() { SetConsoleOutputCP(before_); }
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

  private:
    UINT before_ = GetConsoleOutputCP();
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const Utf8Console console;
    for (const int stream : {0, 1, 2}) _setmode(stream, _O_BINARY);  // files are the same on every system
    std::vector<std::string> texts;
    for (int i = 0; i < argc; ++i) texts.push_back(hx::hosting::toUtf8(argv[i]));
    std::vector<const char*> arguments;
    for (const std::string& text : texts) arguments.push_back(text.c_str());
    const hx::cli::Output output{std::cout, std::cerr, _isatty(2) != 0};
    return hx::cli::run(argc, arguments.data(), output);
}
