// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

using automation::Args;
using automation::Variant;

struct Members : testing::Test {
    Members() { studio.addRecipe("Cola"); }
    Variant call(std::string_view name, std::vector<Variant> args = {}) { return studio.connect->get(name, args); }
    Studio studio;
};

std::int32_t failure(const auto& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error.number();
    }
    return 0;
}

std::string told(const auto& action, automation::Language language = automation::Language::english) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error.message(language);
    }
    return {};
}

TEST_F(Members, ThePropertiesAreReadByName) {
    studio.start();
    EXPECT_EQ(call("LanguageChanged"), Variant(true));
    EXPECT_EQ(automation::toInt32(call("LanguageChanged")), -1);
    EXPECT_EQ(call("ProjectPath"), Variant("D:\\Prj\\Plant.hxs"));
    EXPECT_EQ(call("ProjectName"), Variant("Plant"));
    EXPECT_EQ(call("HostValue"), Variant(studio.host.explorer.hostWindow()));
    EXPECT_EQ(studio.connect->className(), "Connect");
}

TEST_F(Members, TheThreeTextsAreReadAndWritten) {
    studio.create();
    for (const char* name : {"Text1", "Text2", "Text3"}) {
        EXPECT_EQ(call(name), Variant(""));
        studio.connect->set(name, Variant(std::string("value of ") + name));
    }
    EXPECT_EQ(call("Text1"), Variant("value of Text1"));
    EXPECT_EQ(call("text2"), Variant("value of Text2"));
    EXPECT_EQ(call("Text3"), Variant("value of Text3"));
}

TEST_F(Members, TheOtherPropertiesCannotBeWritten) {
    studio.start();
    for (const char* name : {"LanguageChanged", "ProjectPath", "ProjectName", "Explorer", "HostValue"}) {
        EXPECT_EQ(failure([&] { studio.connect->set(name, Variant("x")); }), automation::errMemberNotFound) << name;
    }
}

TEST_F(Members, EveryMemberOfTheInterfaceIsAMethodInTheOrderOfItsSlots) {
    studio.create();
    std::vector<std::string> methods;
    for (const automation::Member& row : studio.connect->members().rows) {
        if (row.kind == automation::MemberKind::method) methods.emplace_back(row.name);
    }
    EXPECT_EQ(methods,
              (Texts{"Initialize", "StartupComplete", "Terminate", "Deactivate", "NodeClick", "NodeDblClick",
                     "NodeExpand", "NodeMouseDown", "NodeMouseMove", "NodeMouseUp", "NodeKeyDown", "NodeKeyPress",
                     "NodeKeyUp", "GetMessage", "OpenEditor", "RefreshView", "SelectNode", "ShowSelectedNode"}))
        << "those of the interface first, then what macros call";
}

TEST_F(Members, WhatTheAddInDoesWithItsEditorIsCalledByName) {
    studio.start();
    call("SelectNode", {"RCPR1"});
    call("ShowSelectedNode");
    EXPECT_EQ(studio.connect->editorWindow(), nullptr) << "without an editor there is nothing to show";
    call("OpenEditor");
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    call("SelectNode", {"RCPR1"});
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    studio.host.explorer.select("RCPU1");
    call("ShowSelectedNode");
    EXPECT_EQ(studio.window().nodeKey(), "RCPU1");
    EXPECT_EQ(studio.host.record.broughtToFront.size(), 1u);
    const auto before = studio.connect->editorWindow();
    call("RefreshView");
    EXPECT_NE(studio.connect->editorWindow(), before);
    EXPECT_EQ(studio.window().nodeKey(), "RCPE0");
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(Members, EveryRowHasALineOfDocumentation) {
    studio.create();
    for (const automation::Member& row : studio.connect->members().rows) EXPECT_FALSE(row.doc.empty()) << row.name;
}

TEST_F(Members, TheEventsWorkByName) {
    studio.start();
    call("NodeClick", {"Plant", "RCPR1", ""});
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Cola");
    call("NodeKeyDown", {"Plant", "RCPR1", "", std::int16_t{67}, std::int16_t{2}});
    EXPECT_EQ(studio.host.record.beeps, 1);
    call("NodeMouseUp", {"Plant", "RCPR1", "", std::int16_t{2}, std::int16_t{0}, 10.0, 20.0});
    EXPECT_EQ(studio.host.record.popUps.size(), 1u);
    call("NodeDblClick", {"Plant", "RCPR1", ""});
    EXPECT_EQ(studio.host.record.broughtToFront.size(), 1u);
    EXPECT_TRUE(call("GetMessage", {"Studio", "Any", 5}).isEmpty());
    for (const char* name : {"StartupComplete", "Deactivate"}) EXPECT_TRUE(call(name).isEmpty());
    call("NodeKeyPress", {"Plant", "RCPR1", "", 99});
    call("NodeKeyUp", {"Plant", "RCPR1", "", std::int16_t{67}, std::int16_t{2}});
    EXPECT_EQ(studio.host.record.beeps, 1);
    call("Terminate");
    EXPECT_EQ(studio.nodes(), Texts{});
}

TEST_F(Members, AMethodWithTheWrongNumberOfArgumentsIsRefused) {
    studio.start();
    EXPECT_EQ(failure([&] { call("NodeClick", {"RCPR1"}); }), automation::errBadParamCount);
    EXPECT_EQ(failure([&] { call("Nothing"); }), automation::errUnknownName);
    EXPECT_EQ(failure([&] { call("NodeKeyDown", {"Plant", "RCPR1", "", 70000, 0}); }), automation::errOverflow);
}

TEST_F(Members, TheExplorerIsAnObjectThatActsOnTheExplorer) {
    studio.create();
    EXPECT_EQ(call("Explorer"), Variant(automation::ObjectRef()));
    studio.start();
    const automation::ObjectRef explorer = call("Explorer").asObject();
    ASSERT_NE(explorer, nullptr);
    EXPECT_EQ(explorer->get("HostWindow"), Variant(studio.host.explorer.hostWindow()));
    EXPECT_EQ(explorer->get("SelectedKey"), Variant(""));
    studio.host.explorer.select("RCPE0");
    EXPECT_EQ(explorer->get("SelectedKey"), Variant("RCPE0"));
    EXPECT_EQ(explorer->get("SelectedCaption"), Variant("Rezepte"));
    EXPECT_EQ(explorer->get("SelectedOwner"), Variant("Plant"));
    const std::vector<Variant> node = {"RCPE0", "Extra", "X1", "tag", "icoRcpRecipe", true, false, true, 7};
    explorer->get("AddNode", node);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "X1"}));
    const hosting::NodeTree& tree = studio.host.explorer.tree();
    EXPECT_EQ(tree.options(tree.find("X1")), (std::array<bool, 3>{true, false, true}));
    EXPECT_EQ(tree.number(tree.find("X1")), 7);
    EXPECT_EQ(explorer->get("ChildCount", std::vector<Variant>{"RCPE0", 1}), Variant(1));
    EXPECT_EQ(explorer->get("ChildKey", std::vector<Variant>{"RCPE0", 1, 0}), Variant("X1"));
    studio.host.explorer.addNode({.parent = "X1", .key = "X2"});
    EXPECT_EQ(explorer->get("ChildCount", std::vector<Variant>{"RCPE0", 1}), Variant(1)) << "one level";
    EXPECT_EQ(explorer->get("ChildCount", std::vector<Variant>{"RCPE0", 2}), Variant(2));
    for (const std::int32_t index : {-1, 1, 2}) {
        EXPECT_EQ(told([&] {
                      explorer->get("ChildKey", std::vector<Variant>{"RCPE0", 1, index});
                  }),
                  "-2147352565: ChildKey has no item \"" + std::to_string(index) + "\"");
    }
    studio.host.clipboard.clear();
    EXPECT_EQ(failure([&] { explorer->get("TakeClipboardImage", std::vector<Variant>{"x"}); }), automation::errFail);
    explorer->get("SetNodeProperty", std::vector<Variant>{"X1", 1, "Other"});
    EXPECT_EQ(studio.host.explorer.tree().caption(studio.host.explorer.tree().find("X1")), "Other");
    explorer->get("RemoveNode", std::vector<Variant>{"X1"});
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    explorer->get("Activate");
    EXPECT_EQ(studio.host.explorer.activations(), 1);
}

TEST_F(Members, TheExplorerObjectFailsOnceTheAddInHasEnded) {
    studio.start();
    const automation::ObjectRef explorer = call("Explorer").asObject();
    studio.connect->Terminate();
    EXPECT_EQ(told([&] { explorer->get("HostWindow"); }), "-2147467259: The project explorer has been released.");
    EXPECT_EQ(told([&] { explorer->get("HostWindow"); }, automation::Language::german),
              "-2147467259: Der Projektexplorer ist freigegeben.");
    EXPECT_EQ(call("Explorer"), Variant(automation::ObjectRef()));
}

TEST_F(Members, InitializeTakesAnExplorerByName) {
    Studio other;
    other.start();
    studio.create();
    call("Initialize", {"Plant", "", other.connect->Explorer(), automation::ObjectRef()});
    EXPECT_EQ(studio.connect->explorer(), &other.host.explorer);
    EXPECT_EQ(told([&] {
                  call("Initialize", {"Plant", "", automation::ObjectRef(other.connect), {}});
              }),
              "-2147352571: Type mismatch: a project explorer expected");
    studio.connect.reset();
    (void)studio.boxes();
}

TEST_F(Members, InitializeTakesAnExplorerThatIsAnObjectItself) {
    struct NamedExplorer : automation::Dispatch, headless::ProjectExplorer {
        explicit NamedExplorer(const host::Clipboard& clipboard) : headless::ProjectExplorer(0, clipboard) {}
        [[nodiscard]] const automation::MemberTable& members() const override {
            static constexpr automation::MemberTable table{"NamedExplorer", {}};
            return table;
        }
    };
    const auto explorer = std::make_shared<NamedExplorer>(studio.host.clipboard);
    studio.create();
    call("Initialize", {"Plant", "", automation::ObjectRef(explorer), {}});
    EXPECT_EQ(studio.connect->explorer(), explorer.get());
    EXPECT_EQ(studio.boxes(), Texts{});
    studio.connect.reset();
}

TEST_F(Members, InitializeTakesAnythingForTheObjectThatItIgnores) {
    for (const Variant& fourth :
         {Variant(), Variant(automation::Null{}), Variant(automation::ObjectRef()), Variant(1)}) {
        Studio other;
        other.start();
        studio.create();
        call("Initialize", {"Plant", "", other.connect->Explorer(), fourth});
        EXPECT_EQ(studio.connect->explorer(), &other.host.explorer);
        studio.connect.reset();
        (void)studio.boxes();
    }
}

TEST_F(Members, InitializeSaysWhenThereIsNoExplorer) {
    for (const Variant& none : {Variant(), Variant(automation::Null{}), Variant(automation::ObjectRef())}) {
        studio.create();
        call("Initialize", {"Plant", "", none, Variant()});
        EXPECT_EQ(studio.boxes(), (Texts{"Connect: Initialize|-2147467259: The studio gave no project explorer."}));
    }
}

}  // namespace
}  // namespace hx::addin
