#include "host/file_place.h"

#include "automation/error.h"

namespace hx::host {

namespace fs = std::filesystem;

namespace {

constexpr int mostLinks = 40;

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

}  // namespace

fs::path behindLinks(fs::path path) {
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

fs::path folderOf(const fs::path& file) { return file.has_parent_path() ? file.parent_path() : fs::path("."); }

void failWith(std::string_view what, const fs::path& file, const std::string& why) {
    const std::string text = "The file '" + textOf(file) + "' " + std::string(what);
    throw automation::Error(automation::errFail, (why.empty() ? text : text + ": " + why) + ".");
}

void failWith(std::string_view what, const fs::path& file, const std::error_code& why) {
    failWith(what, file, why == std::errc::no_space_on_device ? "the disk is full" : why.message());
}

}  // namespace hx::host
