// SPDX-License-Identifier: MIT

// The same project as a Jet database.
#include <array>
#include <filesystem>
#include <iostream>
#include <mdbtools.h>
#include <memory>

#include "adapters/sqlite/provider.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "cli/convert.h"

namespace hx::bench {

namespace {

/// A table that the mdbtools read.
class PeerTable {
  public:
    PeerTable(const std::string& path, const char* name) : file_(mdb_open(path.c_str(), MDB_NOFLAGS)) {
        require(file_ != nullptr, "the peer does not open the project");
        std::string table(name);
        table_ = mdb_read_table_by_name(file_, table.data(), MDB_TABLE);
        require(table_ != nullptr, "the peer does not find the table");
        mdb_read_columns(table_);
        for (std::size_t i = 0; i < columns_.size(); ++i)
            mdb_bind_column(table_, static_cast<int>(i) + 1, columns_[i].data(), nullptr);
    }
    ~PeerTable() {
        mdb_free_tabledef(table_);
        mdb_close(file_);
    }
    PeerTable(const PeerTable&) = delete;
    PeerTable& operator=(const PeerTable&) = delete;

    [[nodiscard]] std::int64_t readAll() {
        std::int64_t rows = 0;
        mdb_rewind_table(table_);
        while (mdb_fetch_row(table_) != 0) ++rows;
        return rows;
    }

  private:
    MdbHandle* file_;
    MdbTableDef* table_;
    std::array<std::array<char, MDB_BIND_SIZE>, 4> columns_{};
};

std::int64_t memberCount(const Project& project) {
    constexpr std::int64_t membersEach = 9;
    return project.big + project.recipes * membersEach;
}

}  // namespace

Project jet_project::of(const Project& original) {
    Project jet = original;
    jet.path = std::filesystem::path(original.path).replace_extension(".jet.hxs").string();
    if (!std::filesystem::exists(jet.path)) cli::convertProject(original.path, jet.path, {std::cout, std::cerr, false});
    return jet;
}

Subject jet_project::readMembers(const Project& project) {
    return [=]() -> Work {
        const auto provider = std::make_shared<sqlite::Provider>();
        const std::shared_ptr session = provider->connect("Data Source=\"" + project.path + "\";Mode=Read;");
        return [=] {
            std::int64_t rows = 0;
            const auto table = session->open("TrcpRecipeMember", ado::adCmdTable);
            table->scan(ado::allColumns(*table), [&](std::span<const ado::StoredValue>) { ++rows; });
            require(rows == memberCount(project), "rows are missing");
        };
    };
}

Subject jet_project::readMembersByPeer(const Project& project) {
    return [=]() -> Work {
        const auto table = std::make_shared<PeerTable>(project.path, "TrcpRecipeMember");
        return [=] { require(table->readAll() == memberCount(project), "the peer does not find all rows"); };
    };
}

}  // namespace hx::bench
