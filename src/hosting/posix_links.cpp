// SPDX-License-Identifier: MIT
#include "hosting/links.h"

namespace hx::hosting {

namespace fs = std::filesystem;

fs::path behindLinks(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

fs::path placeOf(const fs::path& path) {
    const fs::path place = fs::weakly_canonical(path);
    // What is left of a link here leads to nothing: writing to it would make the file that it leads to.
    return fs::is_symlink(fs::symlink_status(place)) ? fs::path() : place;
}

}  // namespace hx::hosting
