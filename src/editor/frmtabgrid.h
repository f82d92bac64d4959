#pragma once

#include <memory>
#include <string>

#include "editor/add_in.h"
#include "forms/bar.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/simple_controls.h"
#include "forms/status_bar.h"
#include "forms/tool_bar.h"
#include "recipe/data_environment.h"
#include "recipe/hierarchy.h"
#include "settings/cinit.h"

namespace hx::editor {

/// The recipe editor's window: the members of the explorer's node in a grid, menus, tool bar and status line.
class frmtabgrid : public forms::Form, public recipe::MemberView {
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
    /// The project file; the settings file lies in its folder. The second path is handed to sibling add-ins.
    void setPaths(const std::string& path, const std::string& secondPath);
    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] const std::string& nodeKey() const override { return nodeKey_; }
    void setNodeKey(const std::string& key) { nodeKey_ = key; }

    // --- operations that the add-in calls
    void SwitchGrids(const std::string& key);
    void MakeMyCaption(const std::string& key, const std::string& name);
    void VerifyAdds();
    void MenuSwitcher(const std::string& key, bool context);
    void abr_ToolClick(forms::Tool& tool);
    void abr_Resize();
    /// Builds the grid's columns from the member recordset and applies the stored layout.
    void bindGrid();
    /// Forgets and rebuilds the names of sub-recipes in the grid.
    void refreshSubRecipeNames();
    /// RefreshMemberView for the current node.
    void refreshMembers();
    /// The name of the node's recipe, empty for the root or when it is gone.
    [[nodiscard]] std::string recipeName(const std::string& key) const;

    // --- position in the host's document area, in twips
    [[nodiscard]] double PosLeft() const;
    void setPosLeft(double twips);
    [[nodiscard]] double PosTop() const;
    void setPosTop(double twips);

    [[nodiscard]] settings::CInit& inits();

    // --- MemberView
    [[nodiscard]] forms::Grid& memberGrid() override { return *tdbRM; }
    [[nodiscard]] ado::Recordset& memberRecordset() override { return *data_->rstabRecipeMembers; }
    [[nodiscard]] bool saveFirst() const override { return saveFirst_; }
    void setSubRecipeView(bool subRecipes) override { subRecipeView_ = subRecipes; }

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    // The implementer's: load, query-unload, key and split bar handlers, and the parts (member grid, commands, menus)
    // as classes in files of their own that this window owns.
    AddIn& addIn_;
    std::shared_ptr<recipe::DataEnvironment> data_;
    std::string path_, secondPath_, nodeKey_;
    std::unique_ptr<settings::CInit> inits_;
    bool subRecipeView_ = false, saveFirst_ = true, splitting_ = false;
};

}  // namespace hx::editor
