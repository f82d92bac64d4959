// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "forms/record.h"
#include "host/system_services.h"

namespace hx::headless {

/// Records which help was asked for.
class HelpViewer : public host::HelpViewer {
  public:
    explicit HelpViewer(forms::Record& record) : record_(record) {}
    void showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) override {
        if (error_) throw automation::Error(*error_);
        record_.help.push_back({owner, file, context});
    }
    void closeAll() override {
        if (error_) throw automation::Error(*error_);
        ++record_.helpCloses;
    }
    /// From now on it can be neither opened nor closed.
    void failWith(automation::Error error) { error_ = std::move(error); }

  private:
    std::optional<automation::Error> error_;
    forms::Record& record_;
};

}  // namespace hx::headless
