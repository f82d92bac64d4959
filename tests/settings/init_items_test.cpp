// SPDX-License-Identifier: MIT
#include "settings/init_items.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "support/error_of.h"

namespace hx::settings {
namespace {

using automation::ObjectRef;
using automation::Variant;

std::string names(const CInitItems& items) {
    std::string all;
    for (const auto& item : items) all += item->Name + " ";
    return all;
}

TEST(InitItems, AddsAnEntryWithNameValueIndexAndNoEntriesBelow) {
    CInitItems items;
    const CInitItem& item = items.Add("Me", Variant(8.25), 3);
    EXPECT_EQ(item.Name, "Me");
    EXPECT_EQ(item.val, Variant(8.25));
    EXPECT_EQ(item.Index, 3);
    EXPECT_EQ(item.itms->Count(), 0);
}

TEST(InitItems, GivesTheExistingEntryANewValueAndKeepsTheRest) {
    CInitItems items;
    CInitItem& first = items.Add("Me", Variant(1.0), 1);
    first.itms->Add("Font", Variant(""), 0);
    CInitItem& second = items.Add("mE", Variant(2.0), 9);
    EXPECT_EQ(&first, &second);
    EXPECT_EQ(items.Count(), 1);
    EXPECT_EQ(first.Name, "Me");
    EXPECT_EQ(first.val, Variant(2.0));
    EXPECT_EQ(first.Index, 1);
    EXPECT_EQ(first.itms->Count(), 1);
}

TEST(InitItems, FindsByNameIgnoringCaseAndByPositionFromOne) {
    CInitItems items;
    items.Add("Me", Variant(""), 0);
    items.Add("tdbRM", Variant(""), 0);
    EXPECT_EQ(items.Item(Variant("TDBRM"))->Name, "tdbRM");
    EXPECT_EQ(items.Item(Variant(1))->Name, "Me");
    EXPECT_EQ(items.Item(Variant(2.0))->Name, "tdbRM");
    EXPECT_EQ(items.Item(Variant(0)), nullptr);
    EXPECT_EQ(items.Item(Variant(3)), nullptr);
    EXPECT_EQ(items.Item(Variant("sb")), nullptr);
    EXPECT_EQ(items.Item(Variant()), nullptr);
    EXPECT_EQ(items.Item(Variant(automation::Null{})), nullptr);
}

TEST(InitItems, KeepsTheOrderOfAdding) {
    CInitItems items;
    for (const char* name : {"b", "c", "a", "B"}) items.Add(name, Variant(""), 0);
    EXPECT_EQ(names(items), "b c a ");
}

TEST(InitItems, DeletesByNameAndPositionWithAllBelow) {
    CInitItems items;
    for (const char* name : {"a", "b", "c"}) items.Add(name, Variant(""), 0);
    const std::shared_ptr<CInitItems> below = items.Item(std::string_view("b"))->itms;
    below->Add("x", Variant(""), 0);
    items.Delete(Variant("B"));
    EXPECT_EQ(below->Count(), 0);
    EXPECT_EQ(names(items), "a c ");
    items.Delete(Variant(1));
    EXPECT_EQ(names(items), "c ");
}

TEST(InitItems, FailsToDeleteAMissingEntry) {
    CInitItems items;
    items.Add("a", Variant(""), 0);
    EXPECT_EQ(support::errorNumber([&] { items.Delete(Variant("b")); }), automation::errBadIndex);
    EXPECT_EQ(support::errorNumber([&] { items.Delete(Variant(2)); }), automation::errBadIndex);
    EXPECT_EQ(items.Count(), 1);
}

TEST(InitItems, ClearsAllLevels) {
    CInitItems items;
    const auto below = items.Add("a", Variant(""), 0).itms;
    const auto lowest = below->Add("b", Variant(""), 0).itms;
    lowest->Add("c", Variant(""), 0);
    items.Clear();
    EXPECT_EQ(items.Count(), 0);
    EXPECT_EQ(below->Count(), 0);
    EXPECT_EQ(lowest->Count(), 0);
}

TEST(InitItems, WorksByName) {
    const auto items = std::make_shared<CInitItems>();
    const Variant arguments[] = {Variant("Me"), Variant(1.5), Variant(std::int16_t{3})};
    const ObjectRef item = items->get("add", arguments).asObject();
    EXPECT_EQ(item->get("Name"), Variant("Me"));
    EXPECT_EQ(item->get("VAL"), Variant(1.5));
    EXPECT_EQ(item->get("Index"), Variant(std::int16_t{3}));
    item->set("val", Variant("x"));
    item->set("Index", Variant(4));
    EXPECT_EQ(items->Item(std::string_view("me"))->val, Variant("x"));
    EXPECT_EQ(item->get("Index"), Variant(std::int16_t{4}));
    EXPECT_EQ(item->get("itms").asObject()->get("Count"), Variant(0));
    EXPECT_EQ(support::errorNumber([&] { item->set("Name", Variant("You")); }), automation::errMemberNotFound);

    const Variant key("ME");
    const Variant unknown("sb");
    EXPECT_EQ(items->get("Item", automation::Args(&key, 1)).asObject(), item);
    EXPECT_EQ(items->get("Item", automation::Args(&unknown, 1)).asObject(), nullptr);
    items->get("Delete", automation::Args(&key, 1));
    EXPECT_EQ(items->get("Count"), Variant(0));
}

TEST(InitItems, EnumeratesByNameInOrder) {
    const auto items = std::make_shared<CInitItems>();
    items->Add("a", Variant(""), 0);
    items->Add("b", Variant(""), 0);
    const ObjectRef each = items->get("NewEnum").asObject();
    EXPECT_EQ(each->get("Next").asObject()->get("Name"), Variant("a"));
    EXPECT_EQ(each->get("Next").asObject()->get("Name"), Variant("b"));
    EXPECT_EQ(each->get("Next").asObject(), nullptr);
    each->get("Reset");
    EXPECT_EQ(each->get("Next").asObject()->get("Name"), Variant("a"));
}

// A chain of entries that would not fit on the stack, one within the other.
std::shared_ptr<CInitItem> chain(std::size_t length) {
    auto top = std::make_shared<CInitItem>("0", Variant(""), 0);
    for (CInitItem* last = top.get(); length-- > 0;) last = &last->itms->Add("a", Variant(""), 0);
    return top;
}
constexpr std::size_t tooDeep = 300'000;

TEST(InitItems, AreReleasedHoweverDeepTheyLie) {
    std::weak_ptr<CInitItem> below;
    {
        const auto top = chain(tooDeep);
        below = std::static_pointer_cast<CInitItem>(top->itms->Item(std::string_view("a"))->share());
    }
    EXPECT_TRUE(below.expired());
}

TEST(InitItems, AreClearedAndDeletedHoweverDeepTheyLie) {
    const auto cleared = chain(tooDeep);
    cleared->itms->Clear();
    EXPECT_EQ(cleared->itms->Count(), 0);
    const auto top = chain(tooDeep);
    top->itms->Delete(Variant("a"));
    EXPECT_EQ(top->itms->Count(), 0);
}

TEST(InitItems, ThatOthersHoldStayWholeWhenThoseAboveGo) {
    auto top = chain(3);
    const auto held = std::static_pointer_cast<CInitItem>(top->itms->Item(std::string_view("a"))->share());
    const auto list = std::static_pointer_cast<CInitItems>(held->itms->Item(std::string_view("a"))->itms->share());
    top.reset();
    EXPECT_EQ(held->itms->Count(), 1);
    EXPECT_EQ(list->Count(), 1);
}

TEST(InitItems, OfAListThatOthersHoldStayWholeWhenItsEntryGoes) {
    auto top = chain(2);
    const auto list = std::static_pointer_cast<CInitItems>(top->itms->Item(std::string_view("a"))->itms->share());
    top.reset();
    EXPECT_EQ(list->Count(), 1);
}

TEST(InitItems, AreClearedAlsoBelowEntriesThatOthersHold) {
    const auto top = chain(3);
    const auto held = std::static_pointer_cast<CInitItem>(
        top->itms->Item(std::string_view("a"))->itms->Item(std::string_view("a"))->share());
    top->itms->Clear();
    EXPECT_EQ(held->itms->Count(), 0);
}

TEST(InitItems, VisitsTheLeavesInOrderAndHoweverDeepTheyLie) {
    CInitItem top("top", Variant(""), 0);
    CInitItem& font = top.itms->Add("Font", Variant(""), 0);
    font.itms->Add("Name", Variant("Arial"), 0);
    font.itms->Add("Size", Variant(8.0), 0);
    top.itms->Add("Width", Variant(1.0), 0);
    std::string paths;
    visitLeaves("me", top, [&](const std::string& path, CInitItem&) { paths += path + " "; });
    EXPECT_EQ(paths, "me.Font.Name me.Font.Size me.Width ");
    std::size_t length = 0;
    visitLeaves("me", *chain(tooDeep), [&](const std::string& path, CInitItem&) { length += path.size(); });
    EXPECT_EQ(length, 2 + 2 * tooDeep);
}

TEST(InitItems, HoldNoObjects) {
    const ObjectRef object = std::make_shared<CInitItems>();
    CInitItems items;
    EXPECT_EQ(support::errorNumber([&] { items.Add("a", Variant(object), 0); }), automation::errTypeMismatch);
    EXPECT_EQ(items.Count(), 0);
    CInitItem& item = items.Add("a", Variant(1), 0);
    try {
        item.set("val", Variant(object));
        FAIL() << "an object was stored";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errTypeMismatch);
        EXPECT_EQ(error.description(), "Type mismatch: a settings entry holds no object");
    }
    EXPECT_EQ(item.val, Variant(1));
}

}  // namespace
}  // namespace hx::settings
