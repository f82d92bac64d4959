#pragma once

#include <cstdint>

#include "automation/dispatch.h"
#include "editor/add_in.h"

namespace hx::editor {

class frmtabgrid;

/// What the tools of the bar run. Each procedure takes the fixed number of a command; a number without a command does
/// nothing. Errors are shown under the procedure's name. A command may end the window.
class Commands {
  public:
    Commands(frmtabgrid& window, AddIn& addIn) : window_(window), addIn_(addIn) {}
    virtual ~Commands() = default;
    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;

    /// 0 new, 1 edit, 2 delete recipe: none of them exists yet.
    virtual void mnuRecipeFunc(std::int16_t index);
    /// 0 add or delete variables, 1 new sub-recipe, 2 delete members, 3 edit sub-recipe: none of them exists yet.
    virtual void mnuRecipeMember(std::int16_t index);
    /// 0 statistic, 2 refresh, 5 recipe-server configuration, 7 report; 6, the options, does not exist yet.
    virtual void mnuOption(std::int16_t index);
    /// Any number: shows the editor's window in front.
    virtual void mnuShowEditor(std::int16_t index);

  private:
    void statistic();
    void refresh();
    void configureRecipeServer();
    void report();
    [[nodiscard]] automation::ObjectRef sibling(std::string_view programId);

    frmtabgrid& window_;
    AddIn& addIn_;
    automation::ObjectRef report_;  // while it is shown
};

}  // namespace hx::editor
