// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>

namespace hx::sqlite {

/// A SQLite file as another program uses it, without the provider.
class RawFile {
  public:
    explicit RawFile(const std::string& path) { EXPECT_EQ(sqlite3_open(path.c_str(), &handle_), SQLITE_OK); }
    ~RawFile() { sqlite3_close(handle_); }
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;

    void run(const std::string& sql) {
        char* message = nullptr;
        EXPECT_EQ(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, &message), SQLITE_OK) << message;
        sqlite3_free(message);
    }

    /// All values of all rows: columns joined by "|", rows by ",".
    std::string query(const std::string& sql) {
        std::string text;
        char* message = nullptr;
        EXPECT_EQ(sqlite3_exec(handle_, sql.c_str(), &RawFile::appendRow, &text, &message), SQLITE_OK) << message;
        sqlite3_free(message);
        return text;
    }

    sqlite3* handle() { return handle_; }

  private:
    static int appendRow(void* target, int count, char** values, char**) {
        auto& text = *static_cast<std::string*>(target);
        if (!text.empty()) text += ",";
        for (int i = 0; i < count; ++i) {
            text += std::string(i > 0 ? "|" : "") + (values[i] == nullptr ? "NULL" : values[i]);
        }
        return 0;
    }

    sqlite3* handle_ = nullptr;
};

}  // namespace hx::sqlite
