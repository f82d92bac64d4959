// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "adapters/jet/database.h"

namespace hx::jet {

/// Changes rows of all tables at random, with texts of every kind, in transactions some of which are taken back. What a
/// rule of a table refuses is part of it.
class RandomChanges {
  public:
    struct Figures {
        std::int64_t inserted = 0, updated = 0, removed = 0, refused = 0, takenBack = 0;
    };

    RandomChanges(Database& database, std::uint32_t seed) : database_(database), state_(seed) {}

    /// So many inserts, updates and deletions.
    Figures run(int operations);

  private:
    [[nodiscard]] std::uint32_t random(std::uint32_t below);
    [[nodiscard]] std::string text();
    [[nodiscard]] std::optional<ado::StoredValue> value(const Column& column, std::string& room);
    [[nodiscard]] std::vector<std::optional<ado::StoredValue>> row(const Table& table, std::vector<std::string>& rooms,
                                                                   bool all);
    [[nodiscard]] std::vector<Place> places(Table& table) const;
    void change(Table& table, Figures& figures);

    Database& database_;
    std::uint64_t state_;
    int texts_ = 0;
};

}  // namespace hx::jet
