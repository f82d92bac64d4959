// SPDX-License-Identifier: MIT
#include "adapters/headless/host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"
#include "support/error_of.h"
#include "support/memory_provider.h"

namespace hx::headless {
namespace {

using automation::Variant;
using support::errorOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HostTest : public ::testing::Test {
  protected:
    static forms::Picture picture() { return {"<svg/>"}; }

    support::MemoryProvider database;
    Host host{database, {.project = "Plant"}};
    const host::Services& services = host.services();
};

TEST_F(HostTest, LendsItsPartsAndTheDatabase) {
    EXPECT_EQ(&services.screen, &host.screen);
    EXPECT_EQ(&services.database, &database);
    EXPECT_EQ(&services.registry, &host.registry);
    EXPECT_EQ(services.paths.separator(), '/');
    EXPECT_EQ(services.numberFormat.decimalPoint, ".");
}

TEST_F(HostTest, LendsAnotherRegistryAndIniFileInPlaceOfItsOwn) {
    MemoryRegistry registry;
    MemoryIniFile iniFile;
    Host other(database, {.registry = &registry, .iniFile = &iniFile});
    EXPECT_EQ(&other.services().registry, &registry);
    EXPECT_EQ(&other.services().iniFile, &iniFile);
}

TEST_F(HostTest, RunsTheAddInAsItsLibraryByTheModulesFileName) {
    const auto runs = [this](const std::string& file) {
        return Host(database, {.moduleFile = file}).services().runsAsLibrary();
    };
    EXPECT_TRUE(services.runsAsLibrary());
    EXPECT_TRUE(runs("/usr/lib/helvix/HXRecipeEditor.so"));
    EXPECT_TRUE(runs("C:\\Helvix\\hxrecipeeditor.SO"));
    EXPECT_FALSE(runs("/usr/bin/hxrecipe"));
    EXPECT_FALSE(runs("HXRecipeEditor.so/other"));
    EXPECT_FALSE(runs(""));
}

TEST_F(HostTest, TakesNodeImagesFromTheClipboard) {
    EXPECT_EQ(errorOf([&] { host.explorer.takeClipboardImage("a"); }).number(), automation::errFail);
    host.clipboard.setPicture(picture());
    host.explorer.takeClipboardImage("icoRcpRecipe");
    host.clipboard.clear();
    EXPECT_TRUE(host.clipboard.picture().empty());
    EXPECT_EQ(errorOf([&] { host.explorer.takeClipboardImage("b"); }).number(), automation::errFail);
    ASSERT_EQ(host.explorer.images().images().size(), 1U);
    EXPECT_EQ(host.explorer.images().images()[0].first, "icoRcpRecipe");
    EXPECT_EQ(*host.explorer.images().find("icoRcpRecipe"), picture());
}

TEST_F(HostTest, KeepsTheExplorersNodes) {
    host.explorer.addNode({.caption = "Rezepte", .key = "RCPE0"});
    host.explorer.addNode({.parent = "RCPE0", .caption = "Tee", .key = "RCPR1"});
    EXPECT_THAT(host.explorer.childKeys("RCPE0", 1), ElementsAre("RCPR1"));
    host.explorer.setNodeProperty("RCPR1", host::node_property::caption, Variant("Kaffee"));
    EXPECT_EQ(host.explorer.eventOf("RCPR1").caption, "Kaffee");
    EXPECT_FALSE(host.explorer.isExpanded("RCPE0"));
    host.explorer.setNodeProperty("RCPE0", host::node_property::expanded, Variant(true));
    EXPECT_TRUE(host.explorer.isExpanded("RCPE0"));
    host.explorer.removeNode("RCPE0");
    EXPECT_EQ(host.explorer.tree().size(), 0U);
}

TEST_F(HostTest, RefusesUnknownNodesAndProperties) {
    host.explorer.addNode({.caption = "Rezepte", .key = "RCPE0"});
    const auto bad = automation::errBadIndex;
    EXPECT_EQ(errorOf([&] { host.explorer.addNode({.caption = "x", .key = "RCPE0"}); }).number(), bad);
    EXPECT_EQ(errorOf([&] { host.explorer.addNode({.parent = "RCPR9", .key = "RCPU9"}); }).number(), bad);
    EXPECT_EQ(errorOf([&] { host.explorer.removeNode("RCPR9"); }).number(), bad);
    EXPECT_EQ(errorOf([&] { host.explorer.setNodeProperty("RCPR9", 10, Variant(false)); }).number(), bad);
    EXPECT_EQ(errorOf([&] { host.explorer.setNodeProperty("RCPE0", 11, Variant(false)); }).number(), bad);
    EXPECT_EQ(errorOf([&] { host.explorer.select("RCPR9"); }).number(), bad);
    EXPECT_THAT(host.explorer.childKeys("RCPR9", 1), IsEmpty());
}

TEST_F(HostTest, GivesTheSelectedNodeAsAnEventDoes) {
    EXPECT_EQ(host.explorer.selectedNode().key, "");
    host.explorer.addNode({.caption = "Rezepte", .key = "RCPE0"});
    host.explorer.addNode({.parent = "RCPE0", .caption = "Tee", .key = "RCPR1"});
    host.explorer.select("RCPR1");
    const host::NodeEvent node = host.explorer.selectedNode();
    EXPECT_EQ(node.owner, "Plant");
    EXPECT_EQ(node.key, "RCPR1");
    EXPECT_EQ(node.caption, "Tee");
    host.explorer.removeNode("RCPE0");
    EXPECT_EQ(host.explorer.selectedNode().key, "") << "a node that is gone is not selected";
    host.explorer.activate();
    EXPECT_EQ(host.explorer.activations(), 1);
}

TEST_F(HostTest, CancelsChoicesWithoutAScript) {
    EXPECT_EQ(services.items.choose(3, "Motor.Speed"), "");
    EXPECT_EQ(services.folders.choose(3, "/old"), "/old");
}

TEST_F(HostTest, LetsTheScriptChooseVariablesAndFolders) {
    host.script.onItem = [](const std::string& current) { return current + ".Set"; };
    host.script.onFolder = [](const std::string& current) { return current + "/new"; };
    EXPECT_EQ(services.items.choose(3, "Motor"), "Motor.Set");
    EXPECT_EQ(services.folders.choose(4, "/old"), "/old/new");
    ASSERT_EQ(host.record.items.size(), 1U);
    EXPECT_EQ(host.record.items[0].owner, 3);
    EXPECT_EQ(host.record.items[0].current, "Motor");
    EXPECT_EQ(host.record.items[0].chosen, "Motor.Set");
    ASSERT_EQ(host.record.folders.size(), 1U);
    EXPECT_EQ(host.record.folders[0].chosen, "/old/new");
}

TEST_F(HostTest, SaysThatAnUnknownComponentIsNotRegistered) {
    const automation::Error error = errorOf([&] { (void)services.components.create("HXProjectReport.Connect"); });
    EXPECT_EQ(error.number(), automation::hresult(0x80040154));
    EXPECT_EQ(error.description(), "Class not registered: HXProjectReport.Connect");
    EXPECT_THAT(host.record.components, ElementsAre("HXProjectReport.Connect"));
}

TEST_F(HostTest, RecordsTheCallsOfAStandIn) {
    host.components.standIn("HXProjectReport.Connect", [](std::string_view member, automation::Args) {
        return Variant(std::string(member) + " done");
    });
    const automation::ObjectRef report = services.components.create("hxprojectreport.connect");
    const Variant arguments[] = {Variant("plant.hxs"), Variant(7)};
    EXPECT_EQ(report->get("Show", arguments), Variant("Show done"));
    ASSERT_EQ(host.record.componentCalls.size(), 1U);
    EXPECT_EQ(host.record.componentCalls[0].component, "HXProjectReport.Connect");
    EXPECT_EQ(host.record.componentCalls[0].member, "Show");
    EXPECT_THAT(host.record.componentCalls[0].arguments, ElementsAre(Variant("plant.hxs"), Variant(7)));
    host.components.remove("HXProjectReport.Connect");
    EXPECT_NE(errorOf([&] { (void)services.components.create("HXProjectReport.Connect"); }).number(), 0);
}

TEST_F(HostTest, CreatesWhatAFactoryMakes) {
    const auto tool = std::make_shared<forms::Tool>("t", forms::ToolKind::command);
    host.components.provide("Some.Tool", [tool] { return tool; });
    EXPECT_EQ(services.components.create("SOME.tool"), tool);
}

TEST_F(HostTest, KeepsRegistryValuesByKeyAndNameIgnoringCase) {
    host.registry.writeString(host::registry_keys::tarnwell, "Common", "C:\\Shared");
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    EXPECT_EQ(services.registry.readString("software\\TARNWELL\\", "common"), "C:\\Shared");
    EXPECT_EQ(services.registry.readNumber(host::registry_keys::helvix, "lcid", 0), 1033);
    EXPECT_EQ(services.registry.readString(host::registry_keys::helvix, "LCID", "none"), "none");
    EXPECT_EQ(services.registry.readNumber(host::registry_keys::tarnwell, "Common", -1), -1);
    EXPECT_EQ(services.registry.readString("other", "Common", "none"), "none");
    EXPECT_EQ(host.registry.reads(), 5);
}

TEST_F(HostTest, FailsWhereATestWantsTheRegistryOrAFileToFail) {
    const automation::Error locked(automation::errFail, "locked");
    host.registry.failWith(locked);
    EXPECT_EQ(errorOf([&] { (void)services.registry.readString("k", "v"); }).description(), "locked");
    EXPECT_EQ(errorOf([&] { services.registry.writeNumber("k", "v", 1); }).description(), "locked");
    host.registry.failWith({});
    EXPECT_EQ(services.registry.readString("k", "v", "none"), "none");

    host.iniFile.failWritesWith(locked);
    EXPECT_EQ(errorOf([&] { services.iniFile.write("s", "k", "v", "a.ini"); }).description(), "locked");
    EXPECT_FALSE(host.iniFile.exists("a.ini"));
}

TEST_F(HostTest, KeepsIniFilesInMemory) {
    EXPECT_EQ(services.iniFile.read("s", "k", "none", "a.ini"), "none");
    services.iniFile.write("s", "k", "v", "a.ini");
    EXPECT_EQ(services.iniFile.read("S", "K", "none", "a.ini"), "v");
    EXPECT_EQ(services.iniFile.read("s", "k", "none", "b.ini"), "none");
    EXPECT_EQ(host.iniFile.bytes("a.ini"), "[s]\r\nk=v\r\n");
    host.iniFile.setBytes("b.ini", "[s]\nk=w\n");
    EXPECT_EQ(services.iniFile.read("s", "k", "none", "b.ini"), "w");
}

}  // namespace
}  // namespace hx::headless
