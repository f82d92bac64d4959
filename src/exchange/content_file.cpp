// SPDX-License-Identifier: MIT
#include "exchange/content_file.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "adapters/sqlite/project_file.h"
#include "automation/error.h"
#include "exchange/content_parser.h"
#include "hosting/file_bytes.h"
#include "project/reader.h"

namespace hx::exchange {

namespace {

/// Reads a text and counts its lines.
class CountingIterator {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, Place* place) : at_(at), place_(place) {}
    reference operator*() const { return *at_; }
    CountingIterator& operator++() {
        place_->atLineEnd = *at_ == '\n';
        if (place_->atLineEnd) ++place_->line;
        ++at_;
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const CountingIterator& a, const CountingIterator& b) { return a.at_ == b.at_; }

  private:
    const char* at_;
    Place* place_;
};

// What cannot be opened, too, is better explained where projects are. A pipe gives its text only once.
bool isForProjects(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::path file = hosting::fileSystemPath(path);
    const auto status = std::filesystem::status(file, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return std::filesystem::is_directory(status);
    }
    return !std::ifstream(file).is_open() || sqlite::beginsLikeProject(path);
}

}  // namespace

Content parseContent(const std::string& path, const Progress& progress) {
    if (sqlite::beginsLikeProject(path)) {
        throw automation::Error(automation::errFail, path + " is a project, not an export");
    }
    const std::string text = hosting::readText(path);
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
        hosting::Line{path, 1, {}}.fail("the file is empty");
    }
    Place place;
    ContentParser parser(path, place, progress);
    Json::sax_parse(CountingIterator(text.data(), &place), CountingIterator(text.data() + text.size(), &place),
                    &parser);
    return parser.finish();
}

Content loadContent(ado::Provider& provider, const std::string& path, const Progress& progress) {
    if (!isForProjects(path)) return parseContent(path, progress);
    project::Reader reader(provider, path);
    reader.tell(progress);
    return readContent(reader);
}

}  // namespace hx::exchange
