#pragma once

#include "adapters/qt/wording.h"
#include "forms/screen.h"
#include "host/system_services.h"

namespace hx::qt {

/// Says when a help file is missing. Compiled help is not shown yet: an existing file opens nothing.
class QtHelpViewer : public host::HelpViewer {
  public:
    /// Both are lent.
    QtHelpViewer(forms::Screen& screen, const Wording& wording) : screen_(screen), wording_(wording) {}
    void showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) override;
    void closeAll() override {}

  private:
    forms::Screen& screen_;
    const Wording& wording_;
};

}  // namespace hx::qt
