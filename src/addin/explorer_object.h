// SPDX-License-Identifier: MIT
#pragma once

#include "automation/dispatch.h"
#include "host/project_explorer.h"

namespace hx::addin {

/// The project explorer as an object that is reached by name: what `Connect.Explorer` gives. Once the add-in has let
/// go of the explorer, its members throw errFail.
class ExplorerObject : public automation::Dispatch {
  public:
    explicit ExplorerObject(host::ProjectExplorer& explorer) : explorer_(&explorer) {}

    /// The explorer itself; throws errFail once it is gone.
    [[nodiscard]] host::ProjectExplorer& explorer() const;
    void detach() noexcept { explorer_ = nullptr; }

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    host::ProjectExplorer* explorer_;
};

}  // namespace hx::addin
