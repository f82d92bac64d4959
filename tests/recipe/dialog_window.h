// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "dialogs/dialog.h"
#include "plant.h"
#include "recipe/recipe_window.h"

namespace hx::recipe {

/// Stands for the editor window over a plant.
struct FakeWindow : forms::Form, RecipeWindow {
    FakeWindow(const host::Services& lent, DataEnvironment& lentData)
        : Form("frmtabgrid", lent.screen), hostServices(lent), onlineHelp(lent), data(lentData) {
        resourceTexts.InitResources(lent.registry);
    }
    forms::Form& editorWindow() override { return *this; }
    ado::Recordset& recipeRecordset() override { return *data.rsRecipes; }
    const host::Services& services() const override { return hostServices; }
    const resources::ResourceTable& texts() const override { return resourceTexts; }
    resources::Help& help() override { return onlineHelp; }
    void tell(std::string_view text) override {
        screen().messageBox(text, forms::message::ok, forms::message::defaultTitle);
    }
    ado::Recordset& memberRecordset() override { return *data.rstabRecipeMembers; }
    const std::string& nodeKey() const override { return key; }

    const host::Services& hostServices;
    resources::ResourceTable resourceTexts;
    resources::Help onlineHelp;
    DataEnvironment& data;
    std::string key;
};

/// A test of dialogs over an open plant.
struct DialogTest : testing::Test {
    explicit DialogTest(const headless::HostOptions& options = {})
        : host(plant.provider, options), window(std::make_shared<FakeWindow>(host.services(), plant.data)) {
        window->load();
    }

    /// What the user does in the dialog; afterwards it is closed by its frame when it is still open.
    template <class D>
    void inDialog(const std::string& name, std::function<void(D&)> action) {
        host.script.onModal[name] = [action = std::move(action)](forms::Form& form) { action(dynamic_cast<D&>(form)); };
    }
    /// A stored value, as another connection reads it.
    [[nodiscard]] automation::Variant stored(std::string_view table, std::int32_t id, std::size_t column) {
        return plant.database.table(table).row(id)->at(column);
    }
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const auto& message : host.record.messages) texts.push_back(message.text);
        return texts;
    }
    void expectMessage(const std::string& text) const {
        ASSERT_EQ(messages(), std::vector<std::string>{text});
        EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
        EXPECT_EQ(host.record.messages[0].title, forms::message::defaultTitle);
    }

    Plant plant;
    headless::Host host;
    std::shared_ptr<FakeWindow> window;
};

}  // namespace hx::recipe
