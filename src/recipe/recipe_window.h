#pragma once

#include <string_view>

#include "forms/form.h"
#include "host/services.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "resources/help.h"

namespace hx::recipe {

/// The editor window as the operations on recipes and their members see it.
class RecipeWindow : public MemberView {
  public:
    /// The window itself: the owner of the dialogs, which it outlives.
    [[nodiscard]] virtual forms::Form& editorWindow() = 0;
    /// The table of the recipes; throws errFail while the window has no database.
    [[nodiscard]] virtual ado::Recordset& recipeRecordset() = 0;
    [[nodiscard]] virtual const host::Services& services() const = 0;
    [[nodiscard]] virtual const resources::ResourceTable& texts() const = 0;
    [[nodiscard]] virtual resources::Help& help() = 0;

    /// A message box with OK and the default title. The window is not refreshed meanwhile.
    virtual void tell(std::string_view text) = 0;
};

}  // namespace hx::recipe
