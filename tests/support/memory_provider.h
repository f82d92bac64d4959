// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "ado/provider.h"
#include "support/memory_database.h"

namespace hx::support {

/// A provider over tables in memory: what a project file is to the SQLite provider, a named MemoryDatabase is here.
///
///   MemoryProvider provider;
///   provider.add("plant.hxs");                        // both recipe tables, empty
///   auto connection = std::make_shared<ado::Connection>(provider);
///   connection->open("Data Source=plant.hxs");
class MemoryProvider : public ado::Provider {
  public:
    MemoryDatabase& add(const std::string& path, MemoryDatabase database = MemoryDatabase::withRecipeTables());

    /// Throws dbErrUnspecified "Could not find file 'x'." for a path that was not added.
    [[nodiscard]] std::unique_ptr<ado::Session> connect(std::string_view connectionString) override;

  private:
    std::map<std::string, std::unique_ptr<MemoryDatabase>> databases_;
};

}  // namespace hx::support
