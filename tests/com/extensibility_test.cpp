// SPDX-License-Identifier: MIT
#include <array>
#include <filesystem>
#include <gmock/gmock.h>

#include "adapters/com/extensibility_object.h"
#include "adapters/com/text.h"
#include "adapters/headless/clipboard.h"
#include "adapters/headless/project_explorer.h"
#include "addin/explorer_object.h"
#include "addin/studio.h"
#include "apartment.h"
#include "automation/member_rows.h"

namespace hx::com {
namespace {

/// Notes what the studio tells it.
class AddIn : public host::CHX4Extensibility {
  public:
    void Initialize(const std::string& projectName, const std::string& second, host::ProjectExplorer* given,
                    const automation::ObjectRef& fourth) override {
        explorer = given;
        note("Initialize " + projectName + " " + second + (given != nullptr ? " explorer" : "") +
             (fourth ? " fourth" : ""));
        if (given != nullptr) given->addNode({.caption = "Rezepte", .key = "RCPE0"});
    }
    void StartupComplete() override { note("StartupComplete"); }
    void Terminate() override {
        note("Terminate");
        if (explorer != nullptr) explorer->removeNode("RCPE0");
        explorer = nullptr;
    }
    void Deactivate() override { note("Deactivate"); }
    void NodeClick(const host::NodeEvent& node) override { note("NodeClick", node); }
    void NodeDblClick(const host::NodeEvent& node) override { note("NodeDblClick", node); }
    void NodeExpand(const host::NodeEvent&) override { throw std::bad_alloc(); }
    void NodeMouseDown(const host::NodeEvent& node, const host::NodeMouse& m) override { note("Down", node, m); }
    void NodeMouseMove(const host::NodeEvent& node, const host::NodeMouse& m) override { note("Move", node, m); }
    void NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& m) override { note("Up", node, m); }
    void NodeKeyDown(const host::NodeEvent& node, std::int16_t key, std::int16_t shift) override {
        note("KeyDown", node, {key, shift});
    }
    void NodeKeyPress(const host::NodeEvent& node, std::int32_t c) override {
        note("KeyPress", node, {0, 0, double(c)});
    }
    void NodeKeyUp(const host::NodeEvent& node, std::int16_t key, std::int16_t shift) override {
        note("KeyUp", node, {key, shift});
    }
    automation::Variant GetMessage(const std::string& sender, const std::string& message,
                                   const automation::Variant& parameter) override {
        note("GetMessage " + sender + " " + message + " " + automation::toText(parameter));
        return message == "echo" ? parameter : automation::Variant();
    }
    [[nodiscard]] std::string text() const { return "free"; }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {automation::property<&AddIn::text>("Text1", "A text")};
        static constexpr automation::MemberTable base{"Base", {}};
        static const automation::MemberTable table{"AddIn", rows, &base};
        return table;
    }

    std::vector<std::string> told;
    host::ProjectExplorer* explorer = nullptr;

  private:
    void note(const std::string& what) { told.push_back(what); }
    void note(const std::string& what, const host::NodeEvent& node, const host::NodeMouse& mouse = {}) {
        const std::vector<double> numbers{double(mouse.button), double(mouse.shift), mouse.x, mouse.y};
        std::string text = what + " " + node.owner + " " + node.key + " " + node.caption;
        for (const double number : numbers) text += " " + automation::numberToText(number);
        told.push_back(text);
    }
};

std::wstring typeLibrary() {
    return std::filesystem::absolute(std::filesystem::path(HX_TYPE_LIBRARY)).make_preferred().wstring();
}

class ExtensibilityTest : public ApartmentTest {
  protected:
    void TearDown() override {
        object = {};
        byName.reset();
        types = {};
        ApartmentTest::TearDown();
    }

    const headless::Clipboard clipboard;
    headless::ProjectExplorer explorer{4711, clipboard};
    std::shared_ptr<AddIn> addIn = std::make_shared<AddIn>();
    Pointer<ITypeInfo> types = typesOf(__uuidof(::CHX4Extensibility), typeLibrary());
    Pointer<::CHX4Extensibility> object =
        Pointer<::CHX4Extensibility>::adopt(new ExtensibilityObject(addIn, types, border));
    /// As a client without type information has it.
    std::shared_ptr<ForeignObject> byName = std::make_shared<ForeignObject>(object.get(), border);
    automation::ObjectRef named = std::make_shared<addin::ExplorerObject>(explorer);
};

TEST_F(ExtensibilityTest, TellsTheAddInEverySlotOfTheInterface) {
    const Text owner("Werk"), key("RCPR7"), text("Süßes");
    const auto given = border.give(named);
    EXPECT_EQ(object->Initialize(owner, text, given.get(), nullptr), S_OK);
    EXPECT_EQ(object->StartupComplete(), S_OK);
    EXPECT_EQ(object->NodeClick(owner, key, text), S_OK);
    EXPECT_EQ(object->NodeDblClick(owner, key, text), S_OK);
    EXPECT_EQ(object->NodeMouseDown(owner, key, text, 1, 2, 3.5, 4.5), S_OK);
    EXPECT_EQ(object->NodeMouseMove(owner, key, text, 1, 2, 3, 4), S_OK);
    EXPECT_EQ(object->NodeMouseUp(owner, key, text, 2, 0, 1, 0), S_OK);
    EXPECT_EQ(object->NodeKeyDown(owner, key, text, 46, 1), S_OK);
    EXPECT_EQ(object->NodeKeyPress(owner, key, text, 65), S_OK);
    EXPECT_EQ(object->NodeKeyUp(owner, key, text, 46, 1), S_OK);
    EXPECT_EQ(object->Deactivate(), S_OK);
    EXPECT_EQ(object->Terminate(), S_OK);
    EXPECT_THAT(
        addIn->told,
        testing::ElementsAre("Initialize Werk Süßes explorer", "StartupComplete", "NodeClick Werk RCPR7 Süßes 0 0 0 0",
                             "NodeDblClick Werk RCPR7 Süßes 0 0 0 0", "Down Werk RCPR7 Süßes 1 2 3.5 4.5",
                             "Move Werk RCPR7 Süßes 1 2 3 4", "Up Werk RCPR7 Süßes 2 0 1 0",
                             "KeyDown Werk RCPR7 Süßes 46 1 0 0", "KeyPress Werk RCPR7 Süßes 0 0 65 0",
                             "KeyUp Werk RCPR7 Süßes 46 1 0 0", "Deactivate", "Terminate"));
}

TEST_F(ExtensibilityTest, TellsItTheSameByName) {
    byName->get("Initialize", std::array<automation::Variant, 4>{"Werk", "", named, automation::ObjectRef()});
    EXPECT_THAT(explorer.childKeys("", 1), testing::ElementsAre("RCPE0"));
    byName->get("NodeMouseUp", std::array<automation::Variant, 7>{"Werk", "RCPE0", "", std::int16_t{2}, 0, 1.5, 2});
    byName->get("Terminate");
    EXPECT_THAT(explorer.childKeys("", 1), testing::ElementsAre());
    EXPECT_THAT(addIn->told,
                testing::ElementsAre("Initialize Werk  explorer", "Up Werk RCPE0  2 0 1.5 2", "Terminate"));
}

TEST_F(ExtensibilityTest, TakesNullForWhatIsLeftOut) {
    const automation::Variant null = automation::Null{};
    byName->get("Initialize", std::array<automation::Variant, 4>{"Werk", null, named, null});
    byName->get("Initialize", std::array<automation::Variant, 4>{"Werk", "", null, null});
    EXPECT_THAT(addIn->told, testing::ElementsAre("Initialize Werk  explorer", "Initialize Werk "));
}

TEST_F(ExtensibilityTest, GivesTheAnswerToAMessage) {
    EXPECT_EQ(byName->get("GetMessage", std::array<automation::Variant, 3>{"a", "echo", 5}), automation::Variant(5));
    EXPECT_EQ(byName->get("GetMessage", std::array<automation::Variant, 3>{"a", "b", 5}), automation::Variant());
}

TEST_F(ExtensibilityTest, KnowsItsArgumentsByTheirNames) {
    std::array<std::wstring, 3> texts{L"NodeClick", L"text", L"key"};
    std::array<LPOLESTR, 3> names{texts[0].data(), texts[1].data(), texts[2].data()};
    std::array<DISPID, 3> ids{};
    ASSERT_EQ(object->GetIDsOfNames(IID_NULL, names.data(), 3, LOCALE_USER_DEFAULT, ids.data()), S_OK);
    const Text owner("Werk"), key("RCPR7"), text("Cola");
    std::array<VARIANT, 3> args{};
    for (std::size_t i = 0; i < 3; ++i) args[i].vt = VT_BSTR;
    args[0].bstrVal = text;
    args[1].bstrVal = key;
    args[2].bstrVal = owner;
    DISPPARAMS parameters{args.data(), &ids[1], 3, 2};
    EXPECT_EQ(
        object->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
        S_OK);
    EXPECT_THAT(addIn->told, testing::ElementsAre("NodeClick Werk RCPR7 Cola 0 0 0 0"));
}

TEST_F(ExtensibilityTest, PassesNoErrorToTheStudio) {
    const Text any("x");
    EXPECT_EQ(object->NodeExpand(any, any, any), S_OK);
}

TEST_F(ExtensibilityTest, LetsGoOfTheExplorerAtTheEnd) {
    // As an object of the studio's own, which is not one of ours.
    const Text name("Werk");
    const auto given = border.give(named);
    EXPECT_EQ(object->Initialize(name, name, given.get(), nullptr), S_OK);
    const long held = border.lifetime().foreignObjects;
    EXPECT_EQ(object->Terminate(), S_OK);
    EXPECT_EQ(border.lifetime().foreignObjects, held - 1);
}

TEST_F(ExtensibilityTest, GivesTheRestOfTheAddInByName) {
    EXPECT_EQ(byName->get("Text1"), automation::Variant("free"));
    EXPECT_TRUE(Pointer<IUnknown>::of(object.get(), __uuidof(::CHX4Extensibility)));
    EXPECT_EQ(border.take(object.get()), addIn);
}

class ConnectTest : public ApartmentTest {
  protected:
    ConnectTest() { studio.create(); }

    addin::Studio studio;
    Pointer<ITypeInfo> types = typesOf(__uuidof(::CHX4Extensibility), typeLibrary());
};

TEST_F(ConnectTest, HasTheMembersOfTheInterfaceAtTheirNumbers) {
    const auto object = border.give(studio.connect);
    for (DISPID id = 1; id <= 14; ++id) {
        BSTR name = nullptr;
        UINT count = 0;
        ASSERT_EQ(types->GetNames(id, &name, 1, &count), S_OK) << id;
        DISPID own = 0;
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &own), S_OK) << textOf(name);
        EXPECT_EQ(own, id) << textOf(name);
        SysFreeString(name);
    }
}

TEST_F(ConnectTest, ShowsItsNodesInTheStudiosExplorerAndTakesThemAway) {
    Border studios;  // on the studio's side, where the explorer is not one of ours
    {
        const auto explorer = studios.give(std::make_shared<addin::ExplorerObject>(studio.host.explorer));
        const auto object = Pointer<::CHX4Extensibility>::adopt(new ExtensibilityObject(studio.connect, types, border));
        const Text project("Plant"), root("RCPE0"), none("");
        EXPECT_EQ(object->Initialize(project, none, explorer.get(), nullptr), S_OK);
        EXPECT_THAT(studio.host.explorer.childKeys("", 1), testing::ElementsAre("RCPE0"));
        EXPECT_EQ(object->NodeExpand(project, root, none), S_OK);
        EXPECT_NE(studio.connect->editorWindow(), nullptr);
        EXPECT_EQ(object->Terminate(), S_OK);
        EXPECT_THAT(studio.host.explorer.childKeys("", 1), testing::ElementsAre());
    }
    EXPECT_EQ(studios.lifetime().objects, 0);
}

}  // namespace
}  // namespace hx::com
