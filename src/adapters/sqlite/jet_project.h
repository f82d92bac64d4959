// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "adapters/jet/database_maker.h"

namespace hx::sqlite {

/// Makes a Jet database with the tables of an empty project of an empty file.
void fillJetProject(const std::string& path);

/// The variable list, which a host's project may not have.
inline constexpr std::string_view variableTable = "ThxVariable";
[[nodiscard]] jet::TablePlan variableTablePlan();

}  // namespace hx::sqlite
