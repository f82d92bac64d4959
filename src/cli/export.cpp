#include "cli/export.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdlib.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "automation/error.h"
#include "cli/content.h"
#include "cli/project_reader.h"

namespace hx::cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

bool isExport(const std::string& path) {
    constexpr std::string_view mark = "{\n  \"format\": \"hxrecipe\"";
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) return false;
    std::string start(mark.size(), '\0');
    std::ifstream file(path, std::ios::binary);
    return file.read(start.data(), static_cast<std::streamsize>(start.size())) && start == mark;
}

/// A file that takes its place only when it is whole.
class Replacement {
  public:
    explicit Replacement(std::string path) : path_(std::move(path)), temporary_(path_ + ".new-XXXXXX") {
        const int file = mkstemp(temporary_.data());
        if (file < 0) fail(errno);
        (void)fchmod(file, permissions());
        ::close(file);
        stream_.open(temporary_, std::ios::binary);
    }
    ~Replacement() {
        if (!temporary_.empty()) unlink(temporary_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    [[nodiscard]] std::ostream& stream() { return stream_; }

    void publish() {
        stream_.close();
        if (!stream_) fail(errno);
        sync();
        if (rename(temporary_.c_str(), path_.c_str()) != 0) fail(errno);
        temporary_.clear();
    }

  private:
    [[noreturn]] void fail(int code) const {
        refuse("The file '" + path_ + "' cannot be written: " + std::generic_category().message(code) + ".");
    }

    // Those of the file that is replaced, else those of any new one.
    [[nodiscard]] mode_t permissions() const {
        struct stat old {};
        if (::stat(path_.c_str(), &old) == 0) return old.st_mode & 0777;
        const mode_t mask = umask(0);
        umask(mask);
        return 0666 & ~mask;
    }

    // After a power failure there is the old file or the new one, never an empty one.
    void sync() const {
        const int file = open(temporary_.c_str(), O_RDONLY | O_CLOEXEC);
        const bool synced = file >= 0 && fsync(file) == 0;
        const int code = errno;
        if (file >= 0) ::close(file);
        if (!synced) fail(code);
    }

    std::string path_;
    std::string temporary_;
    std::ofstream stream_;
};

// A link stays one: the file that it leads to is replaced.
std::string placeOf(const std::string& target) {
    return fs::is_symlink(fs::symlink_status(target)) ? fs::canonical(target).string() : target;
}

}  // namespace

void exportProject(const std::string& path, const std::string& target, const Output& output) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(target, ignored)) && !isExport(target)) {
        refuse("The file '" + target + "' exists already and is no export.");
    }
    ProjectReader project(path);
    const Content content = readContent(project.database());
    Replacement file(placeOf(target));
    writeContent(content, file.stream());
    file.publish();
    std::size_t members = content.orphans.size();
    for (const ContentRecipe& recipe : content.recipes) members += recipe.members.size();
    output.results << "Wrote " << target << ": " << content.recipes.size() << " recipes, " << members << " members.\n";
}

}  // namespace hx::cli
