// SPDX-License-Identifier: MIT
#pragma once

#include "host/system_services.h"

namespace hx::windows {

/// Windows' own viewer of compiled help. Where Windows has none, nothing is shown.
class HtmlHelp : public host::HelpViewer {
  public:
    void showContext(host::WindowHandle owner, const std::string& file, std::int32_t context) override;
    void closeAll() override;
};

}  // namespace hx::windows
