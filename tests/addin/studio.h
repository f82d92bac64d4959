// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "addin/connect.h"
#include "support/faulty_provider.h"
#include "support/memory_provider.h"

namespace hx::addin {

/// A studio without a screen with the project "Plant" in D:\Prj, and the add-in that it has created for it.
struct Studio {
    explicit Studio(headless::HostOptions options = windowsOptions()) : host(provider, std::move(options)) {
        host.registry.writeString(std::string(host::registry_keys::projects) + "Plant", "Path", "D:\\Prj");
    }
    ~Studio() { connect.reset(); }
    Studio(const Studio&) = delete;
    Studio& operator=(const Studio&) = delete;

    static headless::HostOptions windowsOptions() {
        headless::HostOptions options;
        options.project = "Plant";
        options.separator = '\\';
        options.moduleFile = "C:\\Helvix\\Studio.exe";
        return options;
    }
    /// As `windowsOptions`, with the add-in running as its built library.
    static headless::HostOptions libraryOptions() {
        headless::HostOptions options = windowsOptions();
        options.moduleFile = "C:\\Helvix\\HXRecipeEditor.so";
        return options;
    }

    /// Creates the add-in and tells it the project.
    void start(const std::string& project = "Plant") {
        create();
        connect->Initialize(project, "", &host.explorer, nullptr);
    }
    void create() { connect = std::make_shared<Connect>(host.services()); }

    std::int32_t addRecipe(const std::string& name) {
        return static_cast<std::int32_t>(database.table("TrcpRecipe").insert(std::vector<ado::ColumnValue>{{1, name}}));
    }
    void addMember(std::int32_t parent, const std::string& variable, std::int32_t child = 0) {
        database.table("TrcpRecipeMember")
            .insert(std::vector<ado::ColumnValue>{{1, parent}, {2, variable}, {3, child}});
    }

    // What the user does in the explorer; the node need not exist.
    static host::NodeEvent node(const std::string& key) { return {"Plant", key, ""}; }
    void click(const std::string& key) { connect->NodeClick(node(key)); }
    void rightClick(const std::string& key) { connect->NodeMouseUp(node(key), {forms::button::right, 0, 10, 10}); }
    void press(const std::string& key, std::int16_t code, std::int16_t shift = 0) {
        connect->NodeKeyDown(node(key), code, shift);
    }

    [[nodiscard]] editor::frmtabgrid& window() { return *connect->editorWindow(); }
    [[nodiscard]] std::vector<std::string> nodes() const { return host.explorer.childKeys("", 9); }
    [[nodiscard]] std::vector<std::string> variables() {
        std::vector<std::string> names;
        const forms::Grid& grid = *window().tdbRM;
        for (std::int32_t row = 0; row < grid.rowCount(); ++row) {
            names.push_back(automation::toText(window().memberRecordset().valueAt(static_cast<std::size_t>(row), 2)));
        }
        return names;
    }
    /// The boxes since the last call, each as "title|text".
    [[nodiscard]] std::vector<std::string> boxes() {
        std::vector<std::string> shown;
        for (const forms::ShownMessage& box : host.record.messages) {
            EXPECT_EQ(box.style, forms::message::ok) << box.text;
            shown.push_back(box.title + "|" + box.text);
        }
        host.record.messages.clear();
        return shown;
    }

    support::MemoryProvider memory;
    support::MemoryDatabase& database = memory.add("D:\\Prj\\Plant.hxs");
    support::FaultPlan faults;
    support::FaultyProvider provider{memory, faults};
    headless::Host host;
    std::shared_ptr<Connect> connect;
};

using Texts = std::vector<std::string>;

}  // namespace hx::addin
