#include "adapters/sqlite/provider.h"

#include <filesystem>
#include <fstream>

#include "adapters/sqlite/sentences.h"
#include "adapters/sqlite/session.h"
#include "ado/connection_string.h"
#include "automation/text.h"

namespace hx::sqlite {

using automation::Error;

namespace {

namespace fs = std::filesystem;

void requireFile(const std::string& path, automation::Language language) {
    const auto refuse = [&](const automation::Sentence& problem, std::string_view reason = {}) {
        throw Error(ado::dbErrUnspecified, automation::say(language, problem, {path, reason}));
    };
    std::error_code error;
    const fs::file_status status = path.empty() ? fs::file_status(fs::file_type::not_found) : fs::status(path, error);
    if (status.type() == fs::file_type::not_found) refuse(sentence::missing);
    if (error) refuse(sentence::unreachable, error.message());
    if (fs::is_directory(status)) refuse(sentence::folder);
    if (!fs::is_regular_file(status)) refuse(sentence::noFile);
    if (!std::ifstream(path).is_open()) refuse(sentence::noReadPermission);
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
    const OpenOptions options = options_();
    requireFile(path, options.language);
    return std::make_unique<Session>(path, isReadOnly(connectionString), options);
}

}  // namespace hx::sqlite
