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

    /// The key of a node below a node. Who asks for one number after the other gets them from one list of the keys,
    /// until he changes the nodes here: a tree of thousands is not listed for each of them.
    [[nodiscard]] std::string childKey(const std::string& key, std::int32_t levels, std::int32_t number);
    void nodesChange() noexcept { next_ = 0; }

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    host::ProjectExplorer* explorer_;
    std::vector<std::string> keys_;  // below this node, down to so many levels
    std::string listed_;
    std::int32_t levels_ = 0, next_ = 0;
};

}  // namespace hx::addin
