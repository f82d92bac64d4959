#pragma once

#include <string>

#include "host/services.h"

namespace hx::resources {

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
