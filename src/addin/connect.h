// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "addin/embedding.h"
#include "addin/explorer_object.h"
#include "addin/image_list.h"
#include "editor/add_in.h"
#include "editor/frmtabgrid.h"
#include "host/extensibility.h"

namespace hx::addin {

inline constexpr std::string_view connectProgramId = "HXRecipeEditor.Connect";

/// The add-in of one open project. It puts the recipe branch into the studio's explorer, opens the editor window with
/// the first click on it, and shows in that window what the explorer's node stands for. No error leaves a member: each
/// is shown in a message box under the name of the procedure that met it.
class Connect : public host::CHX4Extensibility, public editor::AddIn {
  public:
    /// Reads the language and registers the texts; German ones, after a message, when the registry cannot be read. The
    /// services must outlive the object.
    explicit Connect(const host::Services& services);
    ~Connect() override;

    // --- CHX4Extensibility
    void Initialize(const std::string& projectName, const std::string& second, host::ProjectExplorer* explorer,
                    const automation::ObjectRef& fourth) override;
    void StartupComplete() override {}
    void Terminate() override;
    void Deactivate() override {}
    void NodeClick(const host::NodeEvent& node) override;
    void NodeDblClick(const host::NodeEvent& node) override;
    void NodeExpand(const host::NodeEvent& node) override;
    void NodeMouseDown(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseMove(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) override;
    void NodeKeyDown(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shift) override;
    void NodeKeyPress(const host::NodeEvent&, std::int32_t) override {}
    void NodeKeyUp(const host::NodeEvent&, std::int16_t, std::int16_t) override {}
    automation::Variant GetMessage(const std::string& sender, const std::string& message,
                                   const automation::Variant& parameter) override;

    // --- public properties
    [[nodiscard]] bool LanguageChanged() const noexcept { return languageChanged_; }
    /// The project's database file; the project's name when that was not found.
    [[nodiscard]] const std::string& ProjectPath() const noexcept { return projectPath_; }
    [[nodiscard]] const std::string& ProjectName() const noexcept { return projectName_; }
    [[nodiscard]] const std::string& Text1() const noexcept { return freeTexts_[0]; }
    [[nodiscard]] const std::string& Text2() const noexcept { return freeTexts_[1]; }
    [[nodiscard]] const std::string& Text3() const noexcept { return freeTexts_[2]; }
    void setText1(const std::string& text) { freeTexts_[0] = text; }
    void setText2(const std::string& text) { freeTexts_[1] = text; }
    void setText3(const std::string& text) { freeTexts_[2] = text; }
    /// An ExplorerObject, or empty while there is no explorer.
    [[nodiscard]] automation::ObjectRef Explorer() const;
    /// The studio window that receives editor windows.
    [[nodiscard]] forms::WindowHandle HostValue() const noexcept { return hostValue_; }

    // --- editor::AddIn
    void RefreshView() override;
    [[nodiscard]] host::ProjectExplorer* explorer() const override { return explorer_; }
    [[nodiscard]] const host::Services& services() const override { return services_; }
    [[nodiscard]] const resources::ResourceTable& texts() const override { return resources_; }
    [[nodiscard]] resources::Help& help() override { return help_; }
    [[nodiscard]] recipe::StatusCounters& counters() override { return counters_; }
    [[nodiscard]] bool& busy() override { return busy_; }

    /// The editor window; null before the first OpenEditor and after CloseEditor.
    [[nodiscard]] const std::shared_ptr<editor::frmtabgrid>& editorWindow() const noexcept { return editor_; }
    [[nodiscard]] const EditorEmbedding& embedding() const noexcept { return embedding_; }

    // --- for macros, by name; nothing while there is no editor
    /// Opens the editor, unless it is open.
    void OpenEditor() noexcept;
    /// Makes the editor show a node of the recipe branch. While an edit is refused, the node that is shown stays.
    void SelectNode(const std::string& key);
    /// Shows the explorer's selected node and brings the editor to the front.
    void ShowSelectedNode();

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    /// A call that is under way, from the studio or from the window.
    class Call;

    template <class Action>
    void event(std::string_view procedure, Action&& action) noexcept;

    // Lifecycle.
    void ReadLanguageChanged() noexcept;
    void start(const std::string& projectName, host::ProjectExplorer* explorer);
    void createEditor();
    void embedEditor();
    void fillEditor();
    void CloseEditor() noexcept;
    void closeWindow() noexcept;

    // Node events.
    [[nodiscard]] std::shared_ptr<editor::frmtabgrid> openWindow() const;
    [[nodiscard]] bool reach(editor::frmtabgrid& window, const std::string& key);

    const host::Services& services_;
    resources::ResourceTable resources_;
    resources::Help help_;
    recipe::StatusCounters counters_;
    bool busy_ = false;
    EditorEmbedding embedding_;
    FImageList images_;
    host::ProjectExplorer* explorer_ = nullptr;
    std::shared_ptr<ExplorerObject> explorerObject_;
    std::string projectPath_, projectName_;
    std::array<std::string, 3> freeTexts_;
    forms::WindowHandle hostValue_ = 0;
    std::shared_ptr<editor::frmtabgrid> editor_;
    /// Windows that were closed from inside their own commands; released once no call is under way.
    std::vector<std::shared_ptr<editor::frmtabgrid>> retired_;
    int callDepth_ = 0;
    /// The result of SetParentFromMe as a number, true being -1; CloseEditor hands it on as the window's new parent.
    std::int32_t previousParent_ = 0;
    bool languageChanged_ = false;
    bool editorOpened_ = false;
    bool rootAdded_ = false;
};

}  // namespace hx::addin
