#include "automation/member_rows.h"
#include "editor/commands.h"
#include "editor/frmtabgrid.h"

namespace hx::editor {

using automation::method;
using automation::property;

namespace {

automation::ObjectRef initsOf(frmtabgrid& window) { return window.inits().share(); }
void clickTool(frmtabgrid& window, const std::string& tool) { window.abr->click(tool); }
void runRecipeCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuRecipeFunc(index); }
void runMemberCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuRecipeMember(index); }
void runOptionCommand(frmtabgrid& window, std::int16_t index) { window.commands().mnuOption(index); }

}  // namespace

const automation::MemberTable& frmtabgrid::members() const {
    static constexpr automation::Member rows[] = {
        property<&frmtabgrid::PosLeft, &frmtabgrid::setPosLeft>("PosLeft", "Left edge in the studio's window, twips"),
        property<&frmtabgrid::PosTop, &frmtabgrid::setPosTop>("PosTop", "Top edge in the studio's window, twips"),
        property<&frmtabgrid::path>("Path", "The project file"),
        property<&frmtabgrid::secondPath>("SecondPath", "The path that sibling add-ins get"),
        property<&frmtabgrid::nodeKey, &frmtabgrid::setNodeKey>("NodeKey", "The key of the shown explorer node"),
        property<&frmtabgrid::settingsFile>("SettingsFile", "Where layout and options are stored"),
        property<&frmtabgrid::subRecipeView>("SubRecipeView", "Whether the grid shows sub-recipes"),
        property<&initsOf>("inits", "Layout and options by their paths"),
        method<&frmtabgrid::SwitchGrids>("SwitchGrids", "Shows or hides the grid for a node"),
        method<&frmtabgrid::MakeMyCaption>("MakeMyCaption", "Sets the caption for a node and its recipe's name"),
        method<&frmtabgrid::VerifyAdds>("VerifyAdds", "Writes or drops a pending edit of the grid"),
        method<&frmtabgrid::MenuSwitcher>("MenuSwitcher", "Enables and shows the tools for a node: key, context menu"),
        method<&frmtabgrid::abr_Resize>("abr_Resize", "Lays out tool bar, status line and grid"),
        method<&clickTool>("abr_ToolClick", "Runs a tool by name; a disabled one beeps"),
        method<&frmtabgrid::bindGrid>("BindGrid", "Builds the grid's columns and applies the stored layout"),
        method<&frmtabgrid::refreshMembers>("RefreshMembers", "Reads the members of the node again"),
        method<&frmtabgrid::refreshSubRecipeNames>("RefreshSubRecipeNames", "Reads the names of sub-recipes again"),
        method<&frmtabgrid::recipeName>("RecipeName", "The name of a node's recipe"),
        method<&runRecipeCommand>("mnuRecipeFunc", "Runs a recipe command by its number"),
        method<&runMemberCommand>("mnuRecipeMember", "Runs a member command by its number"),
        method<&runOptionCommand>("mnuOption", "Runs an option command by its number"),
    };
    static const automation::MemberTable table{"frmtabgrid", rows, &formMembers()};
    return table;
}

}  // namespace hx::editor
