// SPDX-License-Identifier: MIT
#include "host/paths.h"

namespace hx::host {

namespace {

// Behind the last separator; 0 when there is none.
std::size_t nameStart(std::string_view path) noexcept {
    const auto separator = path.find_last_of("\\/");
    return separator == std::string_view::npos ? 0 : separator + 1;
}

}  // namespace

std::string PathStyle::join(std::string_view folder, std::string_view name) const {
    std::string path(folder);
    path += separator_;
    path += name;
    return path;
}

std::string_view PathStyle::folderOf(std::string_view path) noexcept { return path.substr(0, nameStart(path)); }

std::string_view PathStyle::fileOf(std::string_view path) noexcept { return path.substr(nameStart(path)); }

}  // namespace hx::host
