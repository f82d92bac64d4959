// SPDX-License-Identifier: MIT
#include "bench/command_window.h"

#include <stdexcept>

#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/node_key.h"

namespace hx::bench {

using automation::Variant;

void WindowOwner::RefreshView() { throw std::runtime_error("a command wants the editor to be opened again"); }

CommandWindow::CommandWindow(const Project& project) {
    const std::string root(recipe::rootKey);
    const std::string key = recipe::makeKey(recipe::prefixRecipe, bigRecipe);
    addNodes(key);
    data_->CnnRecipes->open("Data Source=" + project.path);
    window_->setDataEnvironment(data_);
    window_->setPaths(project.path, project.path);
    window_->setNodeKey(root);
    window_->load();
    data_->rstabRecipeMembers->setSource(recipe::memberQuery(root));
    window_->bindGrid();
    window_->inits().WriteAValueToCInits("RequestOnDelete", Variant(false));
    window_->showNode(key);
}

void CommandWindow::addNodes(const std::string& key) {
    const std::string root(recipe::rootKey);
    host_.explorer.addNode({.parent = {}, .caption = "Rezepte", .key = root, .tag = {}, .image = {}});
    host_.explorer.addNode({.parent = root, .caption = "Gesamtanlage", .key = key, .tag = {}, .image = {}});
}

void CommandWindow::click(const std::string& tool) {
    window_->MenuSwitcher(window_->nodeKey(), false);
    window_->abr->click(tool);
    if (!host_.record.messages.empty()) throw std::runtime_error(tool + ": " + host_.record.messages.front().text);
}

}  // namespace hx::bench
