// SPDX-License-Identifier: MIT
#include "macros/macro_provider.h"

#include <filesystem>

#include "ado/connection_string.h"
#include "hosting/file_bytes.h"

namespace hx::macros {

std::unique_ptr<ado::Session> MacroProvider::connect(std::string_view connectionString) {
    const std::string file = ado::connectionStringValue(connectionString, "Data Source");
    const lua::MacroFiles* const files = files_();
    std::error_code differs;
    const auto isOpen = [&] {
        return std::filesystem::equivalent(hosting::fileSystemPath(file), hosting::fileSystemPath(openProject_()),
                                           differs);
    };
    if (files != nullptr && !isOpen()) (void)files->toRead(file);
    return provider_.connect(connectionString);
}

}  // namespace hx::macros
