// SPDX-License-Identifier: MIT
#include "addin/explorer_object.h"

#include <gmock/gmock.h>

#include "adapters/headless/clipboard.h"
#include "adapters/headless/project_explorer.h"

namespace hx::addin {
namespace {

using automation::Variant;

class Counting : public headless::ProjectExplorer {
  public:
    using ProjectExplorer::ProjectExplorer;
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view key, std::int32_t levels) const override {
        ++lists;
        return ProjectExplorer::childKeys(key, levels);
    }
    mutable int lists = 0;
};

class ExplorerObjectTest : public testing::Test {
  protected:
    ExplorerObjectTest() {
        for (const char* key : {"A", "B", "C"}) explorer.addNode({.key = key});
        explorer.addNode({.parent = "B", .key = "D"});
    }
    Variant childKey(const char* key, std::int32_t levels, std::int32_t number) {
        return object.get("ChildKey", std::vector<Variant>{key, levels, number});
    }

    headless::Clipboard clipboard;
    Counting explorer{1, clipboard};
    ExplorerObject object{explorer};
};

TEST_F(ExplorerObjectTest, ListsTheKeysOnceForWhoAsksForAll) {
    EXPECT_EQ(childKey("", 1, 0), Variant("A"));
    EXPECT_EQ(childKey("", 1, 1), Variant("B"));
    EXPECT_EQ(childKey("", 1, 2), Variant("C"));
    EXPECT_EQ(explorer.lists, 1);
    EXPECT_EQ(childKey("", 1, 0), Variant("A"));
    EXPECT_EQ(childKey("", 2, 1), Variant("B"));
    EXPECT_EQ(childKey("B", 1, 0), Variant("D"));
    EXPECT_EQ(explorer.lists, 4);
}

TEST_F(ExplorerObjectTest, ListsTheKeysAgainWhenTheNodesHaveChanged) {
    EXPECT_EQ(childKey("", 1, 0), Variant("A"));
    object.get("RemoveNode", std::vector<Variant>{"A"});
    EXPECT_EQ(childKey("", 1, 1), Variant("C"));
    object.get("AddNode", std::vector<Variant>{"", "", "E", "", "", false, false, false, 0});
    EXPECT_EQ(childKey("", 1, 2), Variant("E"));
}

}  // namespace
}  // namespace hx::addin
