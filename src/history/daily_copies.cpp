// SPDX-License-Identifier: MIT
#include "history/daily_copies.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "automation/error.h"
#include "history/sentences.h"
#include "hosting/file_bytes.h"

namespace hx::history {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view datePattern = "0000-00-00";

bool isDate(std::string_view text) {
    return text.size() == datePattern.size() && std::ranges::equal(text, datePattern, [](char c, char pattern) {
               return pattern == '0' ? c >= '0' && c <= '9' : c == pattern;
           });
}

std::uintmax_t sizeOf(const fs::path& file) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    return error ? 0 : size;
}

}  // namespace

std::string DailyCopies::localDate() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::string text(datePattern.size() + 1, '\0');
    text.resize(std::strftime(text.data(), text.size(), "%Y-%m-%d", std::localtime(&now)));
    return text;
}

DailyCopies::DailyCopies(ado::Provider& provider, std::string project, Today today)
    : DailyCopies(provider, std::move(project), std::move(today), Limits()) {}

DailyCopies::DailyCopies(ado::Provider& provider, std::string project, Today today, Limits limits)
    : provider_(provider), project_(std::move(project)), today_(std::move(today)), limits_(limits) {}

void DailyCopies::beforeChange() {
    const std::string today = today_();
    if (today == done_) return;
    done_ = today;
    const std::string copy = project_ + "." + today;
    std::error_code ignored;
    if (fs::exists(hosting::fileSystemPath(copy), ignored)) return;
    if (sizeOf(hosting::fileSystemPath(project_)) > limits_.bytes) {
        throw automation::Error(automation::errFail, sentence::tooLargeToCopy, {project_});
    }
    if (provider_.copy("Data Source=\"" + project_ + "\";Mode=Read;", copy)) removeOld();
}

std::vector<fs::path> DailyCopies::copies() const {
    const fs::path project = hosting::fileSystemPath(project_);
    const fs::path name = project.filename();
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator file(project.parent_path(), error), end; !error && file != end; file.increment(error)) {
        const fs::path& path = file->path();
        std::error_code ignored;
        if (path.stem() != name || !fs::is_regular_file(file->symlink_status(ignored))) continue;
        const std::string extension = path.extension().string();
        if (!extension.empty() && isDate(std::string_view(extension).substr(1))) found.push_back(path);
    }
    std::ranges::sort(found);
    return found;
}

// The latest one stays.
void DailyCopies::removeOld() const {
    std::vector<fs::path> all = copies();
    std::uintmax_t bytes = 0;
    std::size_t kept = 0;
    std::ranges::reverse(all);
    for (const fs::path& copy : all) {
        bytes += sizeOf(copy);
        if (++kept == 1 || (kept <= limits_.copies && bytes <= limits_.bytes)) continue;
        std::error_code ignored;
        fs::remove(copy, ignored);
    }
}

}  // namespace hx::history
