// SPDX-License-Identifier: MIT
#include "addin/connect.h"

#include <utility>

#include "addin/call.h"
#include "addin/database_connection.h"
#include "addin/msurfing_tree.h"
#include "addin/project_location.h"
#include "addin/trap.h"
#include "forms/wait_cursor.h"
#include "recipe/node_key.h"

namespace hx::addin {

namespace {

// The booleans of the studio are 16-bit numbers.
constexpr std::int32_t asNumber(bool value) { return value ? -1 : 0; }

}  // namespace

Connect::Connect(const host::Services& services) : services_(services), help_(services), embedding_(services, busy_) {
    // Without the registry the texts are German, and the editor works.
    trap(services.screen, "Connect", [&] { resources_.InitResources(services.registry); });
}

Connect::~Connect() {
    // The studio should have called Terminate; a window that is left would keep calling this object.
    if (editor_) CloseEditor();
    if (explorerObject_) explorerObject_->detach();
}

void Connect::Initialize(const std::string& projectName, const std::string&, host::ProjectExplorer* explorer,
                         const automation::ObjectRef&) {
    const Call call(*this, Call::From::studio);
    trap(services_.screen, "Connect: Initialize", [&] { start(projectName, explorer); });
}

void Connect::start(const std::string& projectName, host::ProjectExplorer* explorer) {
    projectName_ = projectName;
    projectPath_ = projectName;
    explorer_ = explorer;
    if (explorer != nullptr) explorerObject_ = std::make_shared<ExplorerObject>(*explorer);
    ReadLanguageChanged();
    if (!ReadCurrentProject(services_, projectPath_)) return;
    if (explorer == nullptr) {
        throw automation::Error(automation::errFail,
                                automation::Sentence{"The studio gave no project explorer.",
                                                     "Das Studio hat keinen Projektexplorer übergeben."});
    }
    hostValue_ = explorer->hostWindow();
    bool added = false;
    InitTreeView(services_, *explorer, resources_, images_, added);
    if (!added) return;
    rootAdded_ = true;
    help_.SetHelpFile();
}

void Connect::ReadLanguageChanged() noexcept { languageChanged_ = true; }

void Connect::Terminate() {
    const Call call(*this, Call::From::studio);
    if (explorer_ != nullptr && std::exchange(rootAdded_, false)) {
        trap(services_.screen, "Connect: Terminate", [&] { explorer_->removeNode(recipe::rootKey); });
    }
    CloseEditor();
    if (explorerObject_) explorerObject_->detach();
    explorerObject_.reset();
}

automation::Variant Connect::GetMessage(const std::string&, const std::string&, const automation::Variant&) {
    return {};
}

automation::ObjectRef Connect::Explorer() const { return explorerObject_; }

void Connect::OpenEditor() noexcept {
    if (editorOpened_ || explorer_ == nullptr) return;
    trap(services_.screen, "Connect: OpenEditor", [&] {
        const forms::WaitCursor wait(services_.screen);
        if (!editor_) createEditor();
        editor_->setPaths(projectPath_, projectPath_);
        bool connected = false;
        ConnectToDataBase(services_, *editor_, projectPath_, connected);
        if (!connected) return;
        embedEditor();
        fillEditor();
        if (services_.runsAsLibrary()) embedding_.HookEditorWindow(*editor_);
    });
}

void Connect::createEditor() {
    editor_ = std::make_shared<editor::frmtabgrid>(*this);
    editor_->setNodeKey(std::string(recipe::rootKey));
}

void Connect::embedEditor() {
    editor_->load();
    editorOpened_ = true;
    previousParent_ = asNumber(embedding_.SetParentFromMe(*editor_, *explorer_));
}

void Connect::fillEditor() {
    const std::string root(recipe::rootKey);
    const recipe::DataEnvironment& data = *editor_->dataEnvironment();
    // Recipes that cannot be read leave the editor open: its command to refresh the view tries again.
    trap(services_.screen, "Connect: AddRecipeNodes", [&] { addRecipeNodes(*data.rsRecipes, *explorer_, resources_); });
    // A grid that cannot be bound is bound with the next node.
    trap(services_.screen, "Connect: BindGrid", [&] {
        // The preset query gives the members of all recipes; the root shows none.
        data.rstabRecipeMembers->setSource(recipe::memberQuery(root));
        editor_->bindGrid();
    });
    editor_->MenuSwitcher(root, false);
    editor_->MakeMyCaption(root, {});
    editor_->show();
}

void Connect::CloseEditor() noexcept {
    if (editor_) closeWindow();
    explorer_ = nullptr;
    trap(services_.screen, "Connect: CloseEditor", [&] { help_.CloseHelp(); });
}

void Connect::closeWindow() noexcept {
    const std::shared_ptr<editor::frmtabgrid> window = editor_;
    const auto step = [&](auto action) { trap(services_.screen, "Connect: CloseEditor", action); };
    // A window that was never loaded, because the database could not be opened, was not placed anywhere either.
    if (window->loaded()) embedding_.GetParentFromMe(*window, previousParent_);
    step([&] { window->finishOrDropEdit(); });
    step([&] { disconnectFromDataBase(*window); });
    if (window->loaded()) {
        step([&] { embedding_.UnhookEditorWindow(*window); });
        step([&] { window->unload(forms::UnloadMode::byCode); });
    }
    window->releaseAddIn();
    // One of its own commands may have asked for this.
    step([&] { retired_.push_back(window); });
    editor_.reset();
}

void Connect::RefreshView() {
    const Call call(*this, Call::From::window);
    host::ProjectExplorer* const kept = explorer_;
    if (kept == nullptr) return;
    const auto step = [&](auto action) { trap(services_.screen, "Connect: RefreshView", action); };
    step([&] { removeRecipeNodes(*kept); });
    step([&] { kept->setNodeProperty(recipe::rootKey, host::node_property::expanded, false); });
    CloseEditor();
    explorer_ = kept;
    editorOpened_ = false;
    OpenEditor();
}

}  // namespace hx::addin
