// SPDX-License-Identifier: MIT
#include "host/module.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

/// The module as the studio loads it.
struct Module : testing::Test {
    Module() : library(dlopen(HX_MODULE_FILE, RTLD_NOW | RTLD_LOCAL)) {}
    // The module stays loaded: what it has created may outlive the test's objects in error messages of a failing one.
    [[nodiscard]] host::ModuleEntry entry() const {
        return reinterpret_cast<host::ModuleEntry>(dlsym(library, host::moduleEntryName));
    }
    automation::ObjectRef create(std::string_view programId) {
        automation::ObjectRef object;
        entry()(programId, studio.host.services(), object);
        return object;
    }
    void* library;
    Studio studio;
};

TEST_F(Module, IsTheBuiltLibraryOfThisPlatform) {
    ASSERT_NE(library, nullptr) << dlerror();
    const std::string file = HX_MODULE_FILE;
    EXPECT_EQ(file.substr(file.rfind('/') + 1), studio.host.services().libraryName);
    ASSERT_NE(entry(), nullptr) << dlerror();
}

TEST_F(Module, CreatesTheAddInByItsProgramIdentifierIgnoringCase) {
    for (const char* programId : {"HXRecipeEditor.Connect", "hxrecipeeditor.CONNECT"}) {
        const automation::ObjectRef object = create(programId);
        ASSERT_NE(object, nullptr) << programId;
        EXPECT_EQ(object->className(), "Connect");
    }
}

TEST_F(Module, KnowsNoOtherProgramIdentifier) {
    for (const char* programId : {"", "HXRecipeEditor", "HXProjectReport.Connect", "HXRecipeEditor.Connect "}) {
        EXPECT_EQ(create(programId), nullptr) << programId;
    }
}

TEST_F(Module, EmptiesTheObjectItIsGiven) {
    studio.create();
    automation::ObjectRef object = studio.connect;
    entry()("HXProjectReport.Connect", studio.host.services(), object);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Module, GivesAnAddInWithGermanTextsWhenTheRegistryCannotBeRead) {
    studio.host.registry.failWith(automation::Error(automation::errFail, "No registry."));
    const auto addIn = std::dynamic_pointer_cast<Connect>(create("HXRecipeEditor.Connect"));
    ASSERT_NE(addIn, nullptr);
    EXPECT_EQ(addIn->texts().GetResource(102), "Rezepte");
    EXPECT_EQ(studio.boxes(), (Texts{"Connect|-2147467259: No registry."}));
}

TEST_F(Module, TheAddInIsDrivenByTheExtensibilityInterface) {
    studio.addRecipe("Cola");
    const automation::ObjectRef object = create("HXRecipeEditor.Connect");
    const auto addIn = std::dynamic_pointer_cast<host::CHX4Extensibility>(object);
    ASSERT_NE(addIn, nullptr);
    addIn->Initialize("Plant", "", &studio.host.explorer, nullptr);
    addIn->NodeClick(Studio::node("RCPR1"));
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
    EXPECT_EQ(studio.boxes(), Texts{});
    addIn->Terminate();
    EXPECT_EQ(studio.nodes(), Texts{});
}

TEST_F(Module, AnErrorInsideTheAddInIsShownAndNotPassedOn) {
    const auto addIn = std::dynamic_pointer_cast<host::CHX4Extensibility>(create("HXRecipeEditor.Connect"));
    ASSERT_NE(addIn, nullptr);
    addIn->Initialize("E:\\Gone.hxs", "", &studio.host.explorer, nullptr);
    EXPECT_NO_THROW(addIn->NodeClick(Studio::node("RCPE0")));
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: Could not find file 'E:\\Gone.hxs'."}));
}

}  // namespace
}  // namespace hx::addin
