// SPDX-License-Identifier: MIT
#include "automation/dispatch.h"

#include <gtest/gtest.h>

#include "automation/member_rows.h"

namespace hx::automation {
namespace {

class Lamp : public Dispatch {
  public:
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& caption) { caption_ = caption; }
    [[nodiscard]] std::int16_t watts() const { return watts_; }
    void setWatts(std::int16_t watts) { watts_ = watts; }
    [[nodiscard]] bool lit() const { return lit_; }
    void toggle() { lit_ = !lit_; }
    [[nodiscard]] std::int32_t sum(std::int32_t a, std::int32_t b) const { return a + b; }
    [[nodiscard]] ObjectRef item(const Variant& key) {
        if (toText(key) != "self") throwBadIndex("Lamps", key);
        return share();
    }
    [[nodiscard]] const MemberTable& members() const override {
        static constexpr Member rows[] = {
            property<&Lamp::caption, &Lamp::setCaption>("Caption", "Text"),
            property<&Lamp::watts, &Lamp::setWatts>("Watts", "Power"),
            property<&Lamp::lit>("Lit", "Whether it shines"),
            method<&Lamp::toggle>("Toggle", "Switches it"),
            method<&Lamp::sum>("Sum", "Adds"),
            indexed<&Lamp::item>("Lamps", "By key"),
        };
        static constexpr MemberTable table{"Lamp", rows};
        return table;
    }

  private:
    std::string caption_;
    std::int16_t watts_ = 0;
    bool lit_ = false;
};

std::int32_t numberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

TEST(Dispatch, ReadsAndAssignsPropertiesWhateverTheirCase) {
    Lamp lamp;
    lamp.set("CAPTION", "Tür");
    lamp.set("watts", 60);
    EXPECT_EQ(lamp.get("caption"), Variant("Tür"));
    EXPECT_EQ(lamp.get("Watts"), Variant(std::int16_t{60}));
}

TEST(Dispatch, RunsMethodsWithConvertedArguments) {
    Lamp lamp;
    lamp.get("Toggle");
    EXPECT_TRUE(lamp.lit());
    const Variant args[] = {"2", 2.5};
    EXPECT_EQ(lamp.get("Sum", args), Variant(4));
}

TEST(Dispatch, TellsItsFailuresApart) {
    Lamp lamp;
    const Variant nothing[] = {"other"};
    EXPECT_EQ(numberOf([&] { (void)lamp.get("Volume"); }), errUnknownName);
    EXPECT_EQ(numberOf([&] { lamp.set("Lit", true); }), errMemberNotFound);
    EXPECT_EQ(numberOf([&] { lamp.set("Toggle", true); }), errMemberNotFound);
    EXPECT_EQ(numberOf([&] { lamp.set("Watts", "bright"); }), errTypeMismatch);
    EXPECT_EQ(numberOf([&] { lamp.set("Watts", 32768); }), errOverflow);
    EXPECT_EQ(numberOf([&] { (void)lamp.get("Sum"); }), errBadParamCount);
    EXPECT_EQ(numberOf([&] { (void)lamp.get("Lamps", nothing); }), errBadIndex);
}

TEST(Dispatch, KeepsAnOwnedObjectAliveThroughItsReference) {
    auto lamp = std::make_shared<Lamp>();
    const Variant self[] = {"self"};
    const Variant reference = lamp->get("Lamps", self);
    EXPECT_EQ(reference.asObject().get(), lamp.get());
    EXPECT_EQ(lamp.use_count(), 2);
}

}  // namespace
}  // namespace hx::automation
