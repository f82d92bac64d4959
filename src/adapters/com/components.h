// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/com/border.h"
#include "host/system_services.h"

namespace hx::com {

/// Creates components that are registered as COM servers, by program identifier.
class Components : public host::Components {
  public:
    explicit Components(Border& border) : border_(border) {}
    [[nodiscard]] automation::ObjectRef create(std::string_view programId) override;

  private:
    Border& border_;
};

}  // namespace hx::com
