// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>
#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/screen/qt_clipboard.h"
#include "gui/desktop.h"

namespace hx::gui {

/// Writes down what it hears, but for Shift, Ctrl and Alt themselves.
class HeardAddIn : public host::CHX4Extensibility {
  public:
    std::vector<std::string> heard;
    std::function<void(const host::NodeEvent&)> onExpand, onClick;
    host::NodeMouse lastMouse;

    void Initialize(const std::string&, const std::string&, host::ProjectExplorer*,
                    const automation::ObjectRef&) override {}
    void StartupComplete() override {}
    void Terminate() override {}
    void Deactivate() override {}
    void NodeClick(const host::NodeEvent& node) override {
        hear("click", node);
        if (onClick) onClick(node);
    }
    void NodeDblClick(const host::NodeEvent& node) override { hear("double click", node); }
    void NodeExpand(const host::NodeEvent& node) override {
        hear("expand", node);
        if (onExpand) onExpand(node);
    }
    void NodeMouseDown(const host::NodeEvent& node, const host::NodeMouse& mouse) override {
        hear("down", node, mouse);
    }
    void NodeMouseMove(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) override { hear("up", node, mouse); }
    void NodeKeyDown(const host::NodeEvent& node, std::int16_t code, std::int16_t shift) override {
        if (isModifier(code)) return;
        hear("key " + std::to_string(code) + "/" + std::to_string(shift), node);
    }
    void NodeKeyPress(const host::NodeEvent& node, std::int32_t character) override {
        hear("character " + std::to_string(character), node);
    }
    void NodeKeyUp(const host::NodeEvent& node, std::int16_t code, std::int16_t) override {
        if (isModifier(code)) return;
        hear("key up " + std::to_string(code), node);
    }
    automation::Variant GetMessage(const std::string&, const std::string&, const automation::Variant&) override {
        return {};
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"HeardAddIn", {}};
        return table;
    }

  private:
    void hear(const std::string& what, const host::NodeEvent& node) {
        heard.push_back(what + " " + node.owner + " " + node.key + " " + node.caption);
    }
    void hear(const std::string& what, const host::NodeEvent& node, const host::NodeMouse& mouse) {
        hear(what + " " + std::to_string(mouse.button) + "/" + std::to_string(mouse.shift), node);
        lastMouse = mouse;
    }
    static bool isModifier(std::int16_t code) { return code >= 16 && code <= 18; }
};

/// The project explorer in a window of its own, with the root of an add-in's branch.
class ExplorerTest : public Desktop {
  protected:
    QMdiArea area;
    forms::WindowHandle areaHandle = windows.add(area);
    qt::QtClipboard clipboard;
    qt::ExplorerTree tree;
    qt::QtExplorer explorer{tree, areaHandle, clipboard, screen};
    HeardAddIn addIn;

    void SetUp() override {
        tree.resize(300, 400);
        explorer.openProject("Anlage", {});
        explorer.setAddIn(&addIn);
        explorer.addNode({.parent = "", .caption = "Rezepte", .key = "RCPE0", .options = {true, true, true}});
        handleEvents();
    }
    void showTree() {
        tree.show();
        ASSERT_TRUE(activate(tree));
        tree.setFocus();
    }
    void addRecipes(int count) {
        for (int i = 1; i <= count; ++i) {
            const std::string number = std::to_string(i);
            const std::string recipe = "RCPR" + number;
            explorer.addNode({.parent = "RCPE0", .caption = "Rezept " + number, .key = recipe});
            explorer.addNode({.parent = recipe, .caption = "Unterrezepte", .key = "RCPU" + number});
        }
    }
    [[nodiscard]] QModelIndex node(std::string_view key) { return explorer.model().find(key); }
    void click(std::string_view key, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(tree.viewport(), button, {}, tree.visualRect(node(key)).center());
    }
};

}  // namespace hx::gui
