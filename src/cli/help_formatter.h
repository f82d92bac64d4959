// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace hx::cli {

/// Writes help texts so that they fit into a usual terminal, with "--mode add|update" and "--project FILE" for options
/// that take a value.
class HelpFormatter : public CLI::Formatter {
  public:
    static constexpr std::size_t width = 80;
    [[nodiscard]] std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
    [[nodiscard]] std::string make_option_opts(const CLI::Option* option) const override;
};

}  // namespace hx::cli
