// SPDX-License-Identifier: MIT
#pragma once

#include "host/system_services.h"

namespace hx::qt {

/// The system clipboard. A picture is put there as SVG and, for programs that know none, as an image; an image of
/// another program is taken as a picture around it.
class QtClipboard : public host::Clipboard {
  public:
    void clear() override;
    void setPicture(const forms::Picture& picture) override;
    [[nodiscard]] forms::Picture picture() const override;
};

}  // namespace hx::qt
