// SPDX-License-Identifier: MIT
#include "samples.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace hx::jet {

namespace fs = std::filesystem;

std::string samplePath(const std::string& name) { return std::string(HX_JET_SAMPLES) + "/" + name; }

Sample::Sample(const std::string& name) : name_(name), path_(folder_.file("plant.hxs")) { reset(); }

void Sample::reset() const {
    fs::copy_file(samplePath(name_), path_, fs::copy_options::overwrite_existing);
    fs::permissions(path_, fs::perms::owner_write, fs::perm_options::add);
    fs::remove(path_ + "-journal");
}

std::string Sample::bytes() const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_, std::ios::binary).rdbuf();
    return std::move(bytes).str();
}

void Sample::write(const std::string& bytes) const {
    std::ofstream(path_, std::ios::binary | std::ios::trunc) << bytes;
    fs::remove(path_ + "-journal");
}

std::vector<std::string> textsOf(Database& database, const std::string& name, const std::string& column) {
    const Reading reading(database.pages());
    Table& table = *database.table(name);
    std::vector<std::string> texts;
    std::string room;
    Table::Scan scan(table);
    for (Table::Found found; scan.next(found);) {
        texts.emplace_back(table.value(found.row, table.definition().column(column).value(), room).text);
    }
    std::ranges::sort(texts);
    return texts;
}

std::vector<std::string> damagesOf(Database& database) {
    std::vector<std::string> texts;
    for (const automation::Error& damage : database.damages(20)) texts.push_back(damage.description());
    return texts;
}

}  // namespace hx::jet
