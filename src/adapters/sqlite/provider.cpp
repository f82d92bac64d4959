#include "adapters/sqlite/provider.h"

#include <filesystem>
#include <fstream>

#include "adapters/sqlite/session.h"
#include "ado/connection_string.h"
#include "automation/text.h"

namespace hx::sqlite {

using automation::Error;

namespace {

namespace fs = std::filesystem;

void requireFile(const std::string& path) {
    const auto refuse = [](const std::string& problem) { throw Error(ado::dbErrUnspecified, problem); };
    std::error_code error;
    const fs::file_status status = path.empty() ? fs::file_status(fs::file_type::not_found) : fs::status(path, error);
    if (status.type() == fs::file_type::not_found) refuse("Could not find file '" + path + "'.");
    if (error) refuse("The file '" + path + "' cannot be reached: " + error.message() + ".");
    if (fs::is_directory(status)) refuse("'" + path + "' is a folder, not a project file.");
    if (!fs::is_regular_file(status)) refuse("'" + path + "' is not a file.");
    if (!std::ifstream(path).is_open()) refuse("No permission to read the file '" + path + "'.");
}

bool isReadOnly(std::string_view connectionString) {
    const std::string mode = ado::connectionStringValue(connectionString, "Mode");
    if (mode.empty()) return false;
    for (const std::string& part : automation::split(mode, '|')) {
        const std::string_view word = automation::trim(part);
        if (automation::equalIgnoreCase(word, "Write") || automation::equalIgnoreCase(word, "ReadWrite")) return false;
    }
    return true;
}

}  // namespace

std::unique_ptr<ado::Session> Provider::connect(std::string_view connectionString) {
    const std::string path = ado::connectionStringValue(connectionString, "Data Source");
    requireFile(path);
    return std::make_unique<Session>(path, isReadOnly(connectionString));
}

}  // namespace hx::sqlite
