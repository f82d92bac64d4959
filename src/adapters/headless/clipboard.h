// SPDX-License-Identifier: MIT
#pragma once

#include "host/system_services.h"

namespace hx::headless {

class Clipboard : public host::Clipboard {
  public:
    void clear() override { picture_ = {}; }
    void setPicture(const forms::Picture& picture) override { picture_ = picture; }
    [[nodiscard]] forms::Picture picture() const override { return picture_; }

  private:
    forms::Picture picture_;
};

}  // namespace hx::headless
