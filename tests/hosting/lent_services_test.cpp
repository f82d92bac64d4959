// SPDX-License-Identifier: MIT
#include "hosting/lent_services.h"

#include <gmock/gmock.h>

#include "automation/member_rows.h"
#include "support/error_of.h"

namespace hx::hosting {
namespace {

using automation::Variant;

/// A service of a studio's, which notes how it is called and answers what it is to.
class Service : public automation::Dispatch {
  public:
    Variant get(std::string_view name, automation::Args args) override {
        std::string call(name);
        for (const Variant& argument : args) call += " " + automation::toText(argument);
        calls.push_back(call);
        return answer;
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"Service", {}};
        return table;
    }

    std::vector<std::string> calls;
    Variant answer;
};

class Services : public automation::Dispatch {
  public:
    [[nodiscard]] automation::ObjectRef registry() const { return service; }
    [[nodiscard]] std::string iniFile() const { return "none"; }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&Services::registry>("Registry", "A service"),
            automation::property<&Services::iniFile>("IniFile", "No object"),
        };
        static constexpr automation::MemberTable table{"Services", rows};
        return table;
    }

    std::shared_ptr<Service> service = std::make_shared<Service>();
};

/// The add-in's own: each answers who it is.
struct Own : host::Registry, host::IniFile, host::ItemSelection {
    std::string readString(std::string_view, std::string_view, std::string_view) const override { return "own"; }
    std::int32_t readNumber(std::string_view, std::string_view, std::int32_t) const override { return 4711; }
    void writeString(std::string_view, std::string_view, std::string_view) override { ++writes; }
    void writeNumber(std::string_view, std::string_view, std::int32_t) override { ++writes; }
    std::string read(std::string_view, std::string_view, std::string_view, const std::string&) const override {
        return "own";
    }
    void writeAll(std::string_view, std::span<const host::IniText>, const std::string&) override { ++writes; }
    std::string choose(host::WindowHandle, const std::string&) override { return "own"; }
    int writes = 0;
};

struct OwnFolders : host::PathSelection {
    std::string choose(host::WindowHandle, const std::string&) override { return "own"; }
};

class LentServicesTest : public testing::Test {
  protected:
    std::shared_ptr<Service> service = std::make_shared<Service>();
    LentServices lent;
    Own own;
    OwnFolders ownFolders;
    LentRegistry registry{lent, own};
    LentIniFile iniFile{lent, own};
    LentItemSelection items{lent, own};
    LentPathSelection folders{lent, ownFolders};
};

TEST_F(LentServicesTest, TheOwnOnesServeWhereNothingIsLent) {
    EXPECT_EQ(registry.readString("k", "v"), "own");
    EXPECT_EQ(registry.readNumber("k", "v", 0), 4711);
    registry.writeString("k", "v", "x");
    registry.writeNumber("k", "v", 1);
    iniFile.write("s", "k", "x", "f");
    EXPECT_EQ(own.writes, 3);
    EXPECT_EQ(iniFile.read("s", "k", "", "f"), "own");
    EXPECT_EQ(items.choose(1, "a"), "own");
    EXPECT_EQ(folders.choose(1, "a"), "own");
}

TEST_F(LentServicesTest, TheStudiosAreCalledByName) {
    lent = {service, service, service, service, {}, {}};
    service->answer = "1031";
    EXPECT_EQ(registry.readString("k", "v", "f"), "1031");
    EXPECT_EQ(registry.readNumber("k", "v", 7), 1031);
    registry.writeString("k", "v", "x");
    registry.writeNumber("k", "v", 1);
    EXPECT_EQ(iniFile.read("s", "k", "d", "f"), "1031");
    iniFile.writeAll("s", std::to_array<host::IniText>({{"a", "1"}, {"b", "2"}}), "f");
    EXPECT_EQ(items.choose(9, "Cola"), "1031");
    EXPECT_EQ(folders.choose(9, "D:\\"), "1031");
    EXPECT_THAT(service->calls, testing::ElementsAre("ReadString k v f", "ReadNumber k v 7", "WriteString k v x",
                                                     "WriteNumber k v 1", "Read s k d f", "Write s a 1 f",
                                                     "Write s b 2 f", "Choose 9 Cola", "Choose 9 D:\\"));
    EXPECT_EQ(own.writes, 0);
}

TEST_F(LentServicesTest, AChoiceThatIsCancelledChangesNothing) {
    lent = {service, service, service, service, {}, {}};
    for (const Variant& nothing : {Variant(), Variant(automation::Null{})}) {
        service->answer = nothing;
        EXPECT_EQ(items.choose(0, "Cola"), "");
        EXPECT_EQ(folders.choose(0, "D:\\"), "D:\\");
    }
}

TEST_F(LentServicesTest, TheOwnerIsAWindowThatTheStudioKnows) {
    lent = {service, service, service, service, {}, [](host::WindowHandle handle) { return handle + 1000; }};
    (void)items.choose(9, "Cola");
    (void)folders.choose(9, "D:");
    EXPECT_THAT(service->calls, testing::ElementsAre("Choose 1009 Cola", "Choose 1009 D:"));
}

TEST_F(LentServicesTest, EachMayBeMissing) {
    const auto services = std::make_shared<Services>();
    const LentServices found = LentServices::of(services);
    EXPECT_EQ(found.registry, services->service);
    EXPECT_EQ(found.iniFile, nullptr) << "what is no object is none";
    EXPECT_EQ(found.itemSelection, nullptr);
    EXPECT_EQ(LentServices::of(nullptr).registry, nullptr);
}

}  // namespace
}  // namespace hx::hosting
