#include "host/file_bytes.h"

#include <fstream>
#include <random>
#include <system_error>

#include "automation/error.h"

namespace hx::host {

namespace fs = std::filesystem;

namespace {

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

[[noreturn]] void fail(std::string_view what, const fs::path& path, const std::string& why = {}) {
    std::string text(what);
    text += " \"" + textOf(path) + "\"";
    throw automation::Error(automation::errFail, why.empty() ? text : text + ": " + why);
}

/// A file beside the one that it is to replace; taken away again unless it has done so.
class Replacement {
  public:
    explicit Replacement(const fs::path& target) : target_(target), path_(target) {
        path_ += "." + std::to_string(std::random_device{}()) + ".tmp";
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() {
        std::error_code ignored;
        if (written_) fs::remove(path_, ignored);
    }

    void write(std::string_view bytes) {
        std::ofstream stream(path_, std::ios::binary | std::ios::trunc);
        if (!stream) fail("Cannot write in the folder of", target_);
        written_ = true;
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();  // what the disk refuses shows here at the latest
        if (!stream) fail("Cannot write", target_, "the disk took only a part of it");
    }

    void takePermissionsFrom(const fs::file_status& old) {
        std::error_code ignored;  // not every file system has them
        if (fs::exists(old)) fs::permissions(path_, old.permissions(), ignored);
    }

    void replace() {
        std::error_code error;
        fs::rename(path_, target_, error);
        if (error) fail("Cannot replace", target_, error.message());
        written_ = false;
    }

  private:
    fs::path target_, path_;
    bool written_ = false;
};

// The file that a link leads to, so that the link itself stays.
fs::path behindLinks(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(path, error)) return path;
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target;
}

void requireWritable(const fs::path& path, const fs::file_status& status) {
    if (!fs::exists(status)) return;
    if (!fs::is_regular_file(status)) fail("Cannot write", path, "it is no file");
    // Replacing a name asks for the folder's permission only, which would overrule a file that is set to read-only.
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) {
        fail("Cannot write", path, "it is set to read-only");
    }
}

}  // namespace

fs::path fileSystemPath(std::string_view path) { return fs::path(std::u8string(path.begin(), path.end())); }

std::optional<std::string> readFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return std::nullopt;
    if (!fs::is_regular_file(status)) fail("Cannot read", path, error ? error.message() : "it is no file");
    std::ifstream stream(path, std::ios::binary);
    std::string bytes;
    char block[16384];
    while (stream.read(block, sizeof block) || stream.gcount() > 0) {
        bytes.append(block, static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream.eof()) fail("Cannot read", path);
    return bytes;
}

void replaceFile(const fs::path& path, std::string_view bytes) {
    const fs::path target = behindLinks(path);
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    requireWritable(target, status);
    Replacement replacement(target);
    replacement.write(bytes);
    replacement.takePermissionsFrom(status);
    replacement.replace();
}

}  // namespace hx::host
