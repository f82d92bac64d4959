// SPDX-License-Identifier: MIT
#include "hosting/open_project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/files_folder.h"
#include "hosting/registry_file.h"

namespace hx::hosting {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Writes down how it is started and ended.
class HeardAddIn : public host::CHX4Extensibility {
  public:
    explicit HeardAddIn(const ProjectRegistry& registry) : registry_(registry) {}
    std::vector<std::string> heard;

    void Initialize(const std::string& name, const std::string&, host::ProjectExplorer* explorer,
                    const automation::ObjectRef&) override {
        heard.push_back("start " + name + (explorer == nullptr ? " nowhere" : ""));
        if (fails) throw automation::Error(automation::errFail, "Not today");
    }
    void StartupComplete() override { heard.emplace_back("complete"); }
    void Terminate() override { heard.push_back("end in " + registry_.folderOf("Plant")); }
    void Deactivate() override {}
    void NodeClick(const host::NodeEvent&) override {}
    void NodeDblClick(const host::NodeEvent&) override {}
    void NodeExpand(const host::NodeEvent&) override {}
    void NodeMouseDown(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseMove(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseUp(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeKeyDown(const host::NodeEvent&, std::int16_t, std::int16_t) override {}
    void NodeKeyPress(const host::NodeEvent&, std::int32_t) override {}
    void NodeKeyUp(const host::NodeEvent&, std::int16_t, std::int16_t) override {}
    automation::Variant GetMessage(const std::string&, const std::string&, const automation::Variant&) override {
        return {};
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"HeardAddIn", {}};
        return table;
    }
    bool fails = false;

  private:
    const ProjectRegistry& registry_;
};

/// An explorer that nobody fills.
class NoNodes : public host::ProjectExplorer {
  public:
    [[nodiscard]] forms::WindowHandle hostWindow() const override { return 0; }
    void takeClipboardImage(std::string_view) override {}
    void addNode(const host::NewNode&) override {}
    void removeNode(std::string_view) override {}
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view, std::int32_t) const override { return {}; }
    void setNodeProperty(std::string_view, std::int32_t, const automation::Variant&) override {}
    [[nodiscard]] host::NodeEvent selectedNode() const override { return {}; }
    void activate() override {}
};

class OpeningAProject : public ::testing::Test {
  protected:
    /// What an add-in hears of a project from its start to its end.
    std::vector<std::string> heardOf(const std::string& path) {
        {
            OpenProject project(path, registry);
            project.start(addIn, explorer);
            EXPECT_EQ(project.addIn(), addIn);
        }
        return std::exchange(addIn->heard, {});
    }

    FilesFolder folder;
    RegistryFile file{folder.file("r")};
    ProjectRegistry registry{file};
    NoNodes explorer;
    std::shared_ptr<HeardAddIn> addIn = std::make_shared<HeardAddIn>(registry);
};

TEST_F(OpeningAProject, TellsTheAddInItsNameAndFindsTheFolderInTheRegistry) {
    EXPECT_THAT(heardOf("/plants/Plant.hxs"), ElementsAre("start Plant", "complete", "end in /plants"));
    EXPECT_EQ(file.readString(std::string(host::registry_keys::projects) + "Plant", "Path"), "/plants");
}

TEST_F(OpeningAProject, TellsTheFileWhereTheNameWouldNotLeadToIt) {
    EXPECT_EQ(heardOf("/plants/Plant.HXS")[0], "start /plants/Plant.HXS");
    EXPECT_EQ(heardOf("/plants/Plant.hxs.hxs")[0], "start /plants/Plant.hxs.hxs");
    EXPECT_EQ(heardOf("/plants/Plant.HXS .hxs")[0], "start /plants/Plant.HXS .hxs");
}

TEST_F(OpeningAProject, EndsAnAddInThatCouldNotStart) {
    addIn->fails = true;
    {
        OpenProject project("/plants/Plant.hxs", registry);
        EXPECT_THROW(project.start(addIn, explorer), automation::Error);
    }
    EXPECT_THAT(addIn->heard, ElementsAre("start Plant", "end in /plants"));
}

TEST_F(OpeningAProject, EndsOnce) {
    OpenProject project("/plants/Plant.hxs", registry);
    project.start(addIn, explorer);
    project.end();
    EXPECT_EQ(project.addIn(), nullptr);
    EXPECT_EQ(project.file(), "/plants/Plant.hxs") << "known to whoever asks meanwhile";
    addIn->heard.clear();
    project.end();
    EXPECT_THAT(addIn->heard, IsEmpty());
}

}  // namespace
}  // namespace hx::hosting
