#pragma once

#include "adapters/headless/record.h"
#include "host/system_services.h"

namespace hx::headless {

/// Records which help was asked for.
class HelpViewer : public host::HelpViewer {
  public:
    explicit HelpViewer(Record& record) : record_(record) {}
    void showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) override {
        record_.help.push_back({owner, file, context});
    }
    void closeAll() override { ++record_.helpCloses; }

  private:
    Record& record_;
};

}  // namespace hx::headless
