// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/mconfigeditor.h"
#include "editor/add_in.h"
#include "forms/bar.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/picture_box.h"
#include "forms/status_bar.h"
#include "forms/tool_bar.h"
#include "recipe/data_environment.h"
#include "recipe/recipe_window.h"
#include "settings/cinit.h"

namespace hx::editor {

class Commands;
class FunctionBar;
class MSurfingGrid;
class MemberGridKeys;
class MemberGridMouse;
class Menus;
class SplitBar;

/// The recipe editor's window: the members of the explorer's node in a grid, menus, tool bar and status line.
class frmtabgrid : public forms::Form, public recipe::RecipeWindow, public dialogs::ConfigurableWindow {
  public:
    explicit frmtabgrid(AddIn& addIn);
    ~frmtabgrid() override;

    // --- controls
    std::shared_ptr<forms::Bar> abr;
    std::shared_ptr<forms::ToolBar> tbrfunc;
    std::shared_ptr<forms::Grid> tdbRM;
    std::shared_ptr<forms::StatusBar> sb;
    std::shared_ptr<forms::PictureBox> pctrcpTabSplit;

    // --- what the add-in hands over
    void setDataEnvironment(std::shared_ptr<recipe::DataEnvironment> data) { data_ = std::move(data); }
    [[nodiscard]] const std::shared_ptr<recipe::DataEnvironment>& dataEnvironment() const noexcept { return data_; }
    /// Lets go of the add-in: the window has been closed.
    void releaseAddIn() noexcept { addIn_.release(); }
    /// The project file; the settings file lies in its folder. The second path is handed to sibling add-ins.
    void setPaths(const std::string& path, const std::string& secondPath);
    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] const std::string& secondPath() const noexcept { return secondPath_; }
    [[nodiscard]] const std::string& nodeKey() const override { return nodeKey_; }
    void setNodeKey(const std::string& key) { nodeKey_ = key; }

    // --- operations that the add-in calls
    /// Shows the grid for the node of a recipe, hides it for any other.
    void SwitchGrids(const std::string& key);
    void MakeMyCaption(const std::string& key, const std::string& name);
    /// The name that the caption was made with.
    [[nodiscard]] const std::string& shownName() const noexcept { return shownName_; }
    /// Writes a pending edit before the selection changes; one that is refused is dropped without a word.
    void VerifyAdds();
    /// The same before the rows go away; the user is told what was dropped, and why.
    void finishOrDropEdit();
    /// Enables and shows the tools for a node; `context` when a context menu is about to be shown.
    void MenuSwitcher(const std::string& key, bool context);
    /// Runs the tool's command, which may end the window; a disabled tool beeps.
    void abr_ToolClick(forms::Tool& tool);
    /// Lays out tool bar, status line and grid in the area that the menu leaves free.
    void abr_Resize() override;
    /// Builds the grid's columns from the member recordset and applies the stored layout.
    void bindGrid();
    /// Forgets and rebuilds the names of sub-recipes in the grid.
    void refreshSubRecipeNames();
    /// RefreshMemberView for the current node. Where its members are shown already, the current row and the selected
    /// rows stay. A pending edit is written first; when that fails, nothing else happens.
    void refreshMembers();
    /// refreshMembers, after which this row is current, when it is among the members, and none is selected.
    void refreshMembersAt(const ado::Bookmark& row);
    [[nodiscard]] bool readingMembers() const noexcept;
    /// The user is in the explorer: the tool bar's bin means its node.
    void explorerUsed();
    /// Writes a pending edit. False when that failed: the user has been told, and the edit waits to be corrected.
    [[nodiscard]] bool finishEdit();
    /// Shows the node that the user has chosen in the explorer: one of the recipe branch as showNode, once a pending
    /// edit is written or dropped; of another one the menus alone.
    void chooseNode(const std::string& key);
    /// Shows a node of the recipe branch, whole: its members, caption and menus. While a pending edit is refused, the
    /// node that is shown stays. When the node cannot be read, the window shows none, and the error reaches the caller.
    void showNode(const std::string& key);
    /// The name of the node's recipe, empty for the root or when it is gone; the database's errors reach the caller.
    [[nodiscard]] std::string recipeName(const std::string& key) const;

    /// Alt+F6 gives the explorer the keyboard; no other key does anything here.
    void onKeyDown(forms::KeyEvent& event);

    [[nodiscard]] Commands& commands() const noexcept { return *commands_; }
    /// Puts other commands under the tools in place of the editor's own.
    void setCommands(std::unique_ptr<Commands> commands);

    // --- position in the host's document area, in twips; of the normal window also while it is maximised or minimised
    [[nodiscard]] double PosLeft() const;
    void setPosLeft(double twips);
    [[nodiscard]] double PosTop() const;
    void setPosTop(double twips);

    // --- settings
    [[nodiscard]] settings::CInit& inits() override;
    /// HXEditors.ini in the folder of the project file.
    [[nodiscard]] std::string settingsFile() const;
    /// Applies the stored properties of a control or of the window ("Me"). What cannot be applied is named in one
    /// message; the other entries get their values.
    void applySettings(const std::string& name);

    // --- RecipeWindow and ConfigurableWindow
    [[nodiscard]] forms::Form& editorWindow() override { return *this; }
    [[nodiscard]] forms::StatusBar& statusBar() override { return *sb; }
    [[nodiscard]] const host::Services& services() const override { return addIn_.services(); }
    [[nodiscard]] const resources::ResourceTable& texts() const override { return addIn_.texts(); }
    [[nodiscard]] resources::Help& help() override { return addIn_.help(); }
    void tell(std::string_view text) override;
    /// Throws errFail while the window has no data environment; the same for the members.
    [[nodiscard]] ado::Recordset& recipeRecordset() override;
    [[nodiscard]] forms::Grid& memberGrid() override { return *tdbRM; }
    [[nodiscard]] ado::Recordset& memberRecordset() override;
    /// Whether a pending edit is saved when the query changes.
    [[nodiscard]] bool saveFirst() const { return true; }
    void setSubRecipeView(bool subRecipes) { subRecipeView_ = subRecipes; }
    [[nodiscard]] bool subRecipeView() const noexcept { return subRecipeView_; }

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    [[nodiscard]] recipe::DataEnvironment& requireData() const;
    void readNode(const std::string& key);
    void showNone();
    void onLoad();
    void onQueryUnload(bool& cancel, forms::UnloadMode mode);
    void showInHost();
    void loadSettings();
    void saveSettings();
    /// The window's place in the studio's window, in pixels; none while it is not there.
    [[nodiscard]] std::optional<double> hostOffset(float (*offset)(const host::WindowOperations&, forms::WindowHandle,
                                                                   forms::WindowHandle)) const;

    AddInReference addIn_;
    std::shared_ptr<recipe::DataEnvironment> data_;
    std::string path_, secondPath_, nodeKey_, shownName_;
    std::shared_ptr<settings::CInit> inits_;
    bool subRecipeView_ = false;
    // After the controls, whose events they hear.
    std::unique_ptr<Commands> commands_;
    std::unique_ptr<Menus> menus_;
    std::unique_ptr<MSurfingGrid> memberGrid_;
    std::unique_ptr<MemberGridKeys> gridKeys_;
    std::unique_ptr<MemberGridMouse> gridMouse_;
    std::unique_ptr<FunctionBar> functionBar_;
    std::unique_ptr<SplitBar> splitBar_;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
