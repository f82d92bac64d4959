// SPDX-License-Identifier: MIT
#include "adapters/com/foreign_object.h"

#include <gmock/gmock.h>
#include <oleauto.h>

#include "adapters/com/explorer.h"
#include "adapters/com/object.h"
#include "adapters/headless/clipboard.h"
#include "adapters/headless/project_explorer.h"
#include "addin/explorer_object.h"
#include "apartment.h"
#include "plant.h"
#include "support/error_of.h"

namespace hx::com {
namespace {

using automation::Variant;
using Values = std::vector<Variant>;

/// Another's object: it passes all on to one of ours, which nobody can tell from outside.
class Stranger : public IDispatch {
  public:
    Stranger(const automation::ObjectRef& object, Border& border) : behind_(border.give(object)) {}
    virtual ~Stranger() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool isOne = iid == IID_IUnknown || iid == IID_IDispatch;
        *object = isOne ? this : nullptr;
        if (isOne) AddRef();
        return isOne ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }  // the test owns it
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return behind_->GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) override {
        return behind_->GetTypeInfo(number, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        ++lookUps;
        return behind_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        if (refused != S_OK) return refused;
        if ((how & DISPATCH_PROPERTYPUTREF) != 0 && !takesReferences) return DISP_E_MEMBERNOTFOUND;
        lastWay = how;
        if (!late) return behind_->Invoke(id, iid, locale, how, parameters, result, exception, wrong);
        *exception = {};
        exception->wCode = 1004;
        exception->pfnDeferredFillIn = [](EXCEPINFO* filled) {
            filled->bstrDescription = SysAllocString(L"Told late");
            return S_OK;
        };
        return DISP_E_EXCEPTION;
    }

    int references = 0, lookUps = 0;
    WORD lastWay = 0;
    HRESULT refused = S_OK;
    bool takesReferences = false;
    bool late = false;

  private:
    Pointer<IDispatch> behind_;
};

class ForeignObjectTest : public ApartmentTest {
  protected:
    void TearDown() override {
        object.reset();
        EXPECT_EQ(stranger->references, 0);
        stranger.reset();
        ApartmentTest::TearDown();
    }

    std::shared_ptr<Plant> plant = std::make_shared<Plant>();
    std::unique_ptr<Stranger> stranger = std::make_unique<Stranger>(plant, border);
    automation::ObjectRef object = border.take(stranger.get());
};

TEST_F(ForeignObjectTest, ReadsAssignsAndCallsByName) {
    EXPECT_EQ(object->get("Count"), Variant(7));
    object->set("Name", "Süd");
    EXPECT_EQ(plant->name(), "Süd");
    EXPECT_EQ(object->get("Join", Values{"a", "b", "c"}), Variant("a,b,c"));
    object->set("Item", "third", Values{2});
    EXPECT_EQ(plant->item(2), Variant("third"));
    EXPECT_EQ(object->get("Item", Values{2}), Variant("third"));
}

TEST_F(ForeignObjectTest, AsksForTheNumberOfANameOnce) {
    for (int i = 0; i < 3; ++i) (void)object->get("Count");
    EXPECT_EQ(stranger->lookUps, 1);
}

TEST_F(ForeignObjectTest, GivesAnObjectAsAReferenceOrAsAValueAsTheOtherSideTakesIt) {
    object->set("Value", automation::ObjectRef(plant));
    EXPECT_EQ(stranger->lastWay, DISPATCH_PROPERTYPUT);
    stranger->takesReferences = true;
    object->set("Value", automation::ObjectRef(plant));
    EXPECT_EQ(stranger->lastWay, DISPATCH_PROPERTYPUTREF);
    EXPECT_EQ(plant->value().asObject(), plant);
    plant->setValue({});
}

TEST_F(ForeignObjectTest, TellsTheErrorsOfTheObject) {
    const auto refused = support::errorOf([&] { object->get("Fail", Values{-2147217900}); });
    EXPECT_EQ(refused.number(), -2147217900);
    EXPECT_EQ(refused.description(), "Refused");
    EXPECT_EQ(support::errorOf([&] { object->get("Nothing"); }).number(), automation::errUnknownName);
    stranger->late = true;
    const auto late = support::errorOf([&] { object->get("Count"); });
    EXPECT_EQ(static_cast<std::uint32_t>(late.number()), 0x800A03ECU);
    EXPECT_EQ(late.description(), "Told late");
}

TEST_F(ForeignObjectTest, TellsInTheSystemsWordsWhatTheObjectDoesNotTell) {
    stranger->refused = E_ACCESSDENIED;
    const auto refused = support::errorOf([&] { object->get("Count"); });
    EXPECT_EQ(refused.number(), E_ACCESSDENIED);
    EXPECT_NE(refused.description(), "");
    stranger->refused = static_cast<HRESULT>(0x80047FFF);
    EXPECT_EQ(support::errorOf([&] { object->get("Count"); }).description(), "The error 0x80047FFF");
}

TEST_F(ForeignObjectTest, ComesBackAsTheObjectThatItWas) {
    const auto given = border.give(object);
    EXPECT_EQ(given.get(), stranger.get());
}

TEST_F(ForeignObjectTest, IsAProjectExplorerWhoseMembersAreCalledByName) {
    constexpr forms::WindowHandle window = 4711;
    const headless::Clipboard clipboard;
    headless::ProjectExplorer host(window, clipboard);
    const auto named = std::make_shared<addin::ExplorerObject>(host);
    Stranger other(named, border);
    {
        Explorer explorer(&other, border);
        explorer.addNode({.caption = "Rezepte", .key = "RCPE0", .tag = "0", .options = {true, true, true}});
        explorer.addNode({.parent = "RCPE0", .caption = "Süßes", .key = "RCPR1"});
        explorer.addNode({.parent = "RCPE0", .caption = "Saures", .key = "RCPR2"});
        EXPECT_THAT(explorer.childKeys("RCPE0", 1), testing::ElementsAre("RCPR1", "RCPR2"));
        explorer.removeNode("RCPR1");
        EXPECT_THAT(host.childKeys("RCPE0", 1), testing::ElementsAre("RCPR2"));
        explorer.setNodeProperty("RCPR2", host::node_property::caption, "Bitteres");
        EXPECT_EQ(explorer.hostWindow(), window);
        EXPECT_EQ(explorer.selectedNode().key, host.selectedNode().key);
        explorer.activate();
        EXPECT_EQ(support::errorOf([&] { explorer.removeNode("RCPR7"); }).number(), automation::errBadIndex);
    }
    EXPECT_EQ(other.references, 0);
}

TEST_F(ForeignObjectTest, AnExplorerNeedNotTakeTheKeyboard) {
    Explorer explorer(stranger.get(), border);
    explorer.activate();
    EXPECT_EQ(support::errorOf([&] { explorer.removeNode("RCPR1"); }).number(), automation::errUnknownName);
}

}  // namespace
}  // namespace hx::com
