// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "adapters/lua/macro_files.h"
#include "ado/provider.h"

namespace hx::macros {

/// The databases that the add-in opens: a macro that works it can hand it the name of any file. While one does, those
/// are the project that is open and the macro's own files.
class MacroProvider : public ado::Provider {
  public:
    /// The provider is lent; `files` are those of the macro, null while the user works.
    MacroProvider(ado::Provider& provider, std::function<std::string()> openProject,
                  std::function<const lua::MacroFiles*()> files)
        : provider_(provider), openProject_(std::move(openProject)), files_(std::move(files)) {}

    /// Throws errFail for another file.
    [[nodiscard]] std::unique_ptr<ado::Session> connect(std::string_view connectionString) override;

  private:
    ado::Provider& provider_;
    std::function<std::string()> openProject_;
    std::function<const lua::MacroFiles*()> files_;
};

}  // namespace hx::macros
