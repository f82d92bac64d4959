// SPDX-License-Identifier: MIT
#include "torture/state.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>
#include <sqlite3.h>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "torture/jet_state.h"
#include "torture/operation.h"

namespace hx::torture {

namespace {

namespace fs = std::filesystem;

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, Closer>;

std::string contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The rows of a query, a line each.
std::string rows(sqlite3* database, const std::string& sql) {
    std::string lines;
    const auto add = [](void* target, int count, char** values, char**) {
        for (int i = 0; i < count; ++i)
            *static_cast<std::string*>(target) += values[i] == nullptr ? "NULL|" : values[i] + std::string("|");
        *static_cast<std::string*>(target) += '\n';
        return 0;
    };
    char* problem = nullptr;
    if (sqlite3_exec(database, sql.c_str(), add, &lines, &problem) != SQLITE_OK) {
        lines = std::string("damaged: ") + (problem == nullptr ? sqlite3_errmsg(database) : problem);
        sqlite3_free(problem);
    }
    return lines;
}

std::string quotedColumns(sqlite3* database, const std::string& table) {
    std::istringstream names(rows(database, "SELECT name FROM pragma_table_info('" + table + "')"));
    std::string columns;
    for (std::string name; std::getline(names, name, '|');) {
        std::erase(name, '\n');
        if (!name.empty()) columns += (columns.empty() ? "quote(\"" : ", quote(\"") + name + "\")";
    }
    return columns;
}

std::string projectText(const fs::path& path) {
    if (fs::file_size(path) == 0) return "damaged: the file is empty";
    if (isJet(path)) return jetText(path);
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    const Database database(handle);
    if (code != SQLITE_OK) return "damaged: cannot be opened";
    const std::string sound = rows(handle, "PRAGMA integrity_check");
    if (sound != "ok|\n") return "damaged: " + sound;
    std::istringstream tables(rows(handle, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
    std::string text;
    for (std::string table; std::getline(tables, table);) {
        table.pop_back();
        text += table + "\n" + rows(handle, "SELECT " + quotedColumns(handle, table) + " FROM " + table);
    }
    return text;
}

void readValues(const std::string& file, const std::string& text, State& state) {
    std::istringstream lines(text);
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        const auto equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) section = line;
        else if (equals != std::string::npos) {
            // How a window lies, and where it goes on at the next start, depends on what it has shown.
            const bool isPlace = section == "[window]" || section == "[columns]" || section == "[session]";
            state.values[file + section + line.substr(0, equals)] =
                isPlace ? std::string("there") : line.substr(equals + 1);
        } else if (!line.empty() && !line.starts_with(';')) {
            state.values[file + ": a line that says nothing: " + line] = "";
        }
    }
}

// The report tells when it was made.
std::string withoutTime(const std::string& text) {
    static const std::regex time(R"(\d\d\.\d\d\.\d{4}, \d\d:\d\d)");
    return std::regex_replace(text, time, "now");
}

using Projects = std::map<std::string, std::string>;

std::string textOf(const Projects& projects) {
    std::string all;
    for (const auto& [name, text] : projects) all += text.starts_with("damaged") ? text + " (" + name + ")" : text;
    return all.empty() ? "none" : all;
}

void readFile(const fs::path& path, const std::string& name, const std::string& folder, State& state,
              Projects& projects) {
    const std::string kind = path.extension();
    if (kind == ".ldb") return;  // who uses a project
    if (kind == ".hxs") projects[name] = projectText(path);
    else if (kind == ".ini") readValues(name, inFolder(contents(path), folder, "~"), state);
    else if (kind == ".html") state.texts[name] = withoutTime(inFolder(contents(path), folder, "~"));
    else if (!isToolkits(name)) state.texts[name] = inFolder(contents(path), folder, "~");
}

}  // namespace

bool isToolkits(const std::string& file) { return file.starts_with("home/"); }

void change(const std::string& project, const std::string& sql) {
    if (isJet(project)) return changeJet(project, sql);
    sqlite3* handle = nullptr;
    const bool opened = sqlite3_open_v2(project.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK;
    const Database database(handle);
    const std::string problem = opened ? rows(handle, sql) : "damaged: cannot be opened";
    if (problem.starts_with("damaged")) throw std::runtime_error(project + ": " + problem);
}

bool isSound(const std::string& project) {
    if (isJet(project)) return !jetText(project).starts_with("damaged");
    sqlite3* handle = nullptr;
    const bool opened = sqlite3_open_v2(project.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK;
    const Database database(handle);
    return opened && rows(handle, "PRAGMA integrity_check") == "ok|\n";
}

State State::of(const std::string& folder) {
    State state;
    std::vector<fs::path> files;  // reading a project makes and removes some
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    Projects projects;
    for (const fs::path& file : files) {
        if (fs::exists(file)) readFile(file, fs::relative(file, folder), folder, state, projects);
    }
    state.project = textOf(projects);
    // Afterwards: what a project had left is gone now.
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) state.files.insert(fs::relative(entry.path(), folder));
    }
    return state;
}

}  // namespace hx::torture
