// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "host/services.h"

namespace hx::resources {

/// The context numbers of the help file.
namespace help_context {
inline constexpr std::int32_t root = 100001, recipe = 100019, subRecipes = 100020;  ///< nodes of the explorer
inline constexpr std::int32_t recipeDialog = 100030, subRecipeDialog = 100031, itemsDialog = 100032,
                              configurationDialog = 100033;
inline constexpr std::int32_t grid = 100040, keys = 100041;
inline constexpr std::int32_t overview = 100042, menus = 100043, report = 100044, settings = 100045, messages = 100046;
inline constexpr std::int32_t history = 100047, find = 100048, variables = 100049;  ///< of the studio
}  // namespace help_context

/// The add-in's help file and the calls on it.
class Help {
  public:
    explicit Help(const host::Services& services) : services_(services) {}
    /// Takes the file from the registry (value "Common"); no check that it exists.
    void SetHelpFile();
    [[nodiscard]] const std::string& file() const noexcept { return file_; }
    void ShowHelp(forms::WindowHandle owner, std::int32_t context);
    void CloseHelp();

  private:
    const host::Services& services_;
    std::string file_;
};

}  // namespace hx::resources
