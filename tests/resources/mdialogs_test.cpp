// SPDX-License-Identifier: MIT
#include "resources/mdialogs.h"

#include <array>
#include <gtest/gtest.h>
#include <stdexcept>

#include "adapters/headless/host.h"
#include "automation/member_rows.h"
#include "forms/combo_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "support/memory_provider.h"

namespace hx::resources {
namespace {

using automation::Variant;

ResourceTable textsFor(std::int32_t language) {
    headless::MemoryRegistry registry;
    registry.writeNumber(host::registry_keys::helvix, "LCID", language);
    ResourceTable texts;
    texts.InitResources(registry);
    return texts;
}

/// A window with a tab strip of two pages, a frame on the second one, and controls in all of them.
class TestWindow : public forms::Form {
  public:
    explicit TestWindow(forms::Screen& display)
        : Form("FTest", display),
          tab(add<forms::TabStrip>("tab", 2U)),
          lblFirst(add<forms::Label>("lblFirst")),
          txtFirst(add<forms::TextBox>("txtFirst")),
          fraSecond(add<forms::Frame>("fraSecond")),
          txtSecond(add<forms::TextBox>("txtSecond")),
          txtFree(add<forms::TextBox>("txtFree")),
          cmbList(add<forms::ComboBox>("cmbList", forms::ComboBox::Style::dropDownList)) {
        addRow({.field = tab.get()});
        addRow({.container = &tab->page(0), .label = lblFirst.get(), .field = txtFirst.get()});
        addRow({.container = &tab->page(1), .field = fraSecond.get()});
        addRow({.container = fraSecond.get(), .field = txtSecond.get()});
    }

    std::shared_ptr<forms::TabStrip> tab;
    std::shared_ptr<forms::Label> lblFirst;
    std::shared_ptr<forms::TextBox> txtFirst;
    std::shared_ptr<forms::Frame> fraSecond;
    std::shared_ptr<forms::TextBox> txtSecond, txtFree;
    std::shared_ptr<forms::ComboBox> cmbList;
};

class MDialogs : public ::testing::Test {
  protected:
    support::MemoryProvider database;
    headless::Host host{database};
    std::shared_ptr<TestWindow> window = std::make_shared<TestWindow>(host.screen);
    ResourceTable german = textsFor(1031), english = textsFor(1033);

    // The caption that a label with this tag and the caption "as it was" gets.
    std::string captionFor(const std::string& tag) {
        window->lblFirst->setCaption("as it was");
        window->lblFirst->setTag(tag);
        LocaliseControl(*window->lblFirst, german);
        return window->lblFirst->caption();
    }
};

using LocaliseControlTest = MDialogs;

TEST_F(LocaliseControlTest, TakesTheCaptionFromTheTag) { EXPECT_EQ(captionFor("C701"), "&Editorfont"); }

TEST_F(LocaliseControlTest, TakesTheCaptionFromTheSecondToken) {
    EXPECT_EQ(captionFor("X,C702"), "Abfrage vor &Löschen");
}

TEST_F(LocaliseControlTest, TakesTheLastOfSeveralCaptions) {
    EXPECT_EQ(captionFor("C701,C702"), "Abfrage vor &Löschen");
    EXPECT_EQ(captionFor("C702,A1,C701,x"), "&Editorfont");
}

TEST_F(LocaliseControlTest, TakesASmallLetterToo) { EXPECT_EQ(captionFor("c701"), "&Editorfont"); }

TEST_F(LocaliseControlTest, ChangesNothingForReservedOtherAndEmptyTokens) {
    for (const char* tag : {"A701", "a701", "", ",", ",,", "X", "701", " C701", "XC701"}) {
        EXPECT_EQ(captionFor(tag), "as it was") << '"' << tag << '"';
    }
}

TEST_F(LocaliseControlTest, LooksBehindEmptyTokens) { EXPECT_EQ(captionFor(",,C701"), "&Editorfont"); }

TEST_F(LocaliseControlTest, ReadsTheLeadingNumberAndRoundsIt) {
    EXPECT_EQ(captionFor("C 701"), "&Editorfont");
    EXPECT_EQ(captionFor("C701x9"), "&Editorfont");
    EXPECT_EQ(captionFor("C700.6"), "&Editorfont");
    EXPECT_EQ(captionFor("C"), "Resource 0 not found");
    EXPECT_EQ(captionFor("C9999"), "Resource 9999 not found");
}

TEST_F(LocaliseControlTest, GoesOnBehindANumberThatIsTooLarge) {
    EXPECT_EQ(captionFor("C99999999999"), "as it was");
    EXPECT_EQ(captionFor("C99999999999,C701"), "&Editorfont");
}

TEST_F(LocaliseControlTest, SpeaksTheLanguageOfTheTable) {
    window->lblFirst->setTag("C701");
    LocaliseControl(*window->lblFirst, english);
    EXPECT_EQ(window->lblFirst->caption(), "&Editor Font");
}

TEST_F(LocaliseControlTest, IgnoresAnObjectWithoutACaption) {
    window->txtFirst->setTag("C701");
    window->txtFirst->setText("typed");
    LocaliseControl(*window->txtFirst, german);
    EXPECT_EQ(window->txtFirst->text(), "typed");
}

TEST_F(LocaliseControlTest, IgnoresAnObjectWithoutATag) {
    forms::Font font;
    const forms::Font::Values before = font.values();
    LocaliseControl(font, german);
    EXPECT_EQ(font.values(), before);
}

TEST_F(MDialogs, LocaliseTheWindowAndEachOfItsControls) {
    window->setTag("C700");
    window->lblFirst->setTag("C701");
    window->txtFirst->setTag("C702");  // has no caption
    window->fraSecond->setTag("C703");
    LocaliseDialog(*window, english);
    EXPECT_EQ(window->caption(), "Options");
    EXPECT_EQ(window->lblFirst->caption(), "&Editor Font");
    EXPECT_EQ(window->fraSecond->caption(), "Display &Status Line");
}

/// A font that notes which of its properties are read and assigned.
class NotedFont : public forms::Font {
  public:
    automation::Variant get(std::string_view name, automation::Args args) override {
        reads.emplace_back(name);
        return Font::get(name, args);
    }
    void set(std::string_view name, const automation::Variant& value, automation::Args index) override {
        if (name == refused) throw automation::Error(automation::errOverflow, "refused");
        writes.emplace_back(name);
        types.push_back(value.type());
        if (name == "Size") size = value;
        Font::set(name, value, index);
    }
    std::vector<std::string> reads, writes;
    std::vector<automation::VarType> types;
    Variant size;
    std::string refused;
};

TEST(CopyFont, CopiesABoldFontWithItsExactSizeAndItsWeight) {
    forms::Font source, target;
    source.setValues({.name = "Times", .size = 8.25, .weight = 700});
    CopyFont(source, target);
    EXPECT_EQ(target.size(), 8.25);
    EXPECT_TRUE(target.bold());
    EXPECT_EQ(target.values(), source.values());
}

TEST(CopyFont, CopiesEveryProperty) {
    forms::Font source, target;
    source.setValues({.name = "Courier",
                      .size = 10.1234,
                      .charset = 2,
                      .weight = 300,
                      .italic = true,
                      .strikethrough = true,
                      .underline = true});
    CopyFont(source, target);
    EXPECT_EQ(target.values(), source.values());
}

TEST(CopyFont, KeepsItsOrderWithTheWeightLast) {
    NotedFont source, target;
    CopyFont(source, target);
    const std::vector<std::string> order = {"Name",          "Size",      "Charset", "Italic",
                                            "Strikethrough", "Underline", "Weight"};
    EXPECT_EQ(source.reads, order);
    EXPECT_EQ(target.writes, order);
    EXPECT_EQ(target.types[2], automation::VarType::int16);
    EXPECT_EQ(target.types[6], automation::VarType::int16);
}

TEST(CopyFont, HandsTheSizeOverWithFourDecimals) {
    NotedFont source, target;
    source.setSize(10.1234);
    CopyFont(source, target);
    EXPECT_EQ(target.size, Variant(10.1234));
}

TEST(CopyFont, LeavesAFontAsItIsWhenCopiedOntoItself) {
    forms::Font font;
    font.setValues({.name = "Courier", .size = 9.75, .weight = 700, .italic = true});
    const forms::Font::Values before = font.values();
    CopyFont(font, font);
    EXPECT_EQ(font.values(), before);
}

TEST(CopyFont, PassesErrorsToItsCaller) {
    NotedFont source, target;
    source.setItalic(true);
    source.setUnderline(true);
    target.refused = "Strikethrough";
    EXPECT_THROW(CopyFont(source, target), automation::Error);
    EXPECT_TRUE(target.italic());
    EXPECT_FALSE(target.underline());
}

using FillList = MDialogs;

const std::vector<std::string> names = {"A", "B", "C"};
const std::vector<std::int32_t> ids = {7, 5, 7};

TEST_F(FillList, AddsTheTextsWithTheirNumbers) {
    window->cmbList->addItem("before");
    FillListWithData(*window->cmbList, Variant(std::int32_t{5}), names, ids);
    ASSERT_EQ(window->cmbList->listCount(), 3);
    EXPECT_EQ(window->cmbList->list(2), "C");
    EXPECT_EQ(window->cmbList->itemData(0), 7);
    EXPECT_EQ(window->cmbList->itemData(1), 5);
    EXPECT_EQ(window->cmbList->listIndex(), 1);
    EXPECT_EQ(window->cmbList->text(), "B");
}

TEST_F(FillList, SelectsTheFirstEntryThatCarriesTheValue) {
    FillListWithData(*window->cmbList, Variant(std::int16_t{7}), names, ids);
    EXPECT_EQ(window->cmbList->listIndex(), 0);
    FillListWithData(*window->cmbList, Variant(5.0), names, ids);
    EXPECT_EQ(window->cmbList->listIndex(), 1);
}

TEST_F(FillList, SelectsNothingForNull) {
    FillListWithData(*window->cmbList, Variant(std::int32_t{5}), names, ids);
    FillListWithData(*window->cmbList, automation::Null{}, names, ids);
    EXPECT_EQ(window->cmbList->listIndex(), -1);
    FillListWithData(*window->cmbList, Variant(std::int32_t{5}), names, ids);
    FillListWithData(*window->cmbList, automation::Null{}, {}, {});
    EXPECT_EQ(window->cmbList->listIndex(), -1);
}

TEST_F(FillList, SelectsNothingForAValueThatNoEntryCarries) {
    FillListWithData(*window->cmbList, Variant(std::int32_t{5}), names, ids);
    FillListWithData(*window->cmbList, Variant(std::int32_t{6}), {}, {});
    EXPECT_EQ(window->cmbList->listIndex(), -1);
}

TEST_F(FillList, LeavesTheEntriesWithoutTextsAndSelectsOnly) {
    FillListWithData(*window->cmbList, automation::Null{}, names, ids);
    FillListWithData(*window->cmbList, Variant(std::int32_t{5}), {}, {});
    EXPECT_EQ(window->cmbList->listCount(), 3);
    EXPECT_EQ(window->cmbList->listIndex(), 1);
}

TEST_F(FillList, EmptiesTheListForAnEmptyArray) {
    window->cmbList->addItem("before");
    FillListWithData(*window->cmbList, Variant(std::int32_t{0}), std::vector<std::string>(), {});
    EXPECT_EQ(window->cmbList->listCount(), 0);
    EXPECT_EQ(window->cmbList->listIndex(), -1);
}

TEST_F(FillList, FillsAListOfOneThousandEntriesWithNumbersOfThirtyTwoBits) {
    std::vector<std::string> texts;
    std::vector<std::int32_t> numbers;
    for (std::int32_t i = 0; i < 1000; ++i) {
        texts.push_back("Recipe " + std::to_string(i));
        numbers.push_back(2147482648 + i);
    }
    FillListWithData(*window->cmbList, Variant(std::int32_t{2147483647}), texts, numbers);
    EXPECT_EQ(window->cmbList->listIndex(), 999);
}

TEST_F(FillList, PassesErrorsToItsCaller) {
    const std::vector<std::int32_t> tooFew = {7, 5};
    try {
        FillListWithData(*window->cmbList, Variant(std::int32_t{7}), names, tooFew);
        FAIL() << "numbers are missing";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errBadIndex);
        EXPECT_NE(error.description().find("numbers"), std::string::npos) << error.description();
        EXPECT_NE(error.description().find('2'), std::string::npos) << error.description();
    }
    EXPECT_THROW(FillListWithData(*window->txtFirst, automation::Null{}, names, ids), automation::Error);
    EXPECT_THROW(FillListWithData(*window->cmbList, Variant("abc"), names, ids), automation::Error);
}

using FixTabStopsTest = MDialogs;

TEST_F(FixTabStopsTest, FollowTheVisiblePage) {
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFirst->tabStop());
    EXPECT_FALSE(window->txtSecond->tabStop());
    EXPECT_FALSE(window->fraSecond->tabStop());
    window->tab->setTab(1);
    FixTabStops(*window, "tab");
    EXPECT_FALSE(window->txtFirst->tabStop());
    EXPECT_TRUE(window->txtSecond->tabStop());
    EXPECT_TRUE(window->fraSecond->tabStop());
}

TEST_F(FixTabStopsTest, StayWithControlsOutsideTheTabsAndTheTabsThemselves) {
    window->txtFree->setTabStop(false);
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFree->tabStop());
    EXPECT_TRUE(window->tab->tabStop());
}

TEST_F(FixTabStopsTest, AreTakenFromAControlThatLiesOutOfSightItself) {
    window->txtFree->move(-101, 0, 100, 50);
    FixTabStops(*window, "tab");
    EXPECT_FALSE(window->txtFree->tabStop());
    window->txtFree->move(-100, 0, 100, 50);  // its right edge touches the container
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFree->tabStop());
    window->txtFree->move(0, -51, 100, 50);
    FixTabStops(*window, "tab");
    EXPECT_FALSE(window->txtFree->tabStop());
    window->txtFree->move(0, -50, 100, 50);
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFree->tabStop());
}

TEST_F(FixTabStopsTest, LookNoFurtherThanTheStopContainer) {
    window->tab->move(-5000, 0, 100, 100);
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFirst->tabStop());
    EXPECT_FALSE(window->tab->tabStop());
    FixTabStops(*window, "other");
    EXPECT_FALSE(window->txtFirst->tabStop());
}

TEST_F(FixTabStopsTest, LookNoFurtherThanTheWindow) {
    window->move(-50000, -50000, 100, 100);
    FixTabStops(*window, "tab");
    EXPECT_TRUE(window->txtFree->tabStop());
}

/// A control whose place and tag cannot be read, for a reason that is no error of late binding.
class LostControl : public forms::TextBox {
  public:
    using TextBox::TextBox;
    automation::Variant get(std::string_view name, automation::Args args) override {
        if (name == "Left" || name == "Tag") throw std::runtime_error("lost");
        return TextBox::get(name, args);
    }
};

class WindowWithALostControl : public TestWindow {
  public:
    explicit WindowWithALostControl(forms::Screen& display) : TestWindow(display) {
        txtLost = add<LostControl>("txtLost");
        lblLast = add<forms::Label>("lblLast");
        txtLast = add<forms::TextBox>("txtLast");
        txtLast->setTabStop(false);
        lblLast->setTag("C701");
    }
    std::shared_ptr<forms::TextBox> txtLost, txtLast;
    std::shared_ptr<forms::Label> lblLast;
};

TEST_F(FixTabStopsTest, CarryOnBehindAControlThatFails) {
    const auto lost = std::make_shared<WindowWithALostControl>(host.screen);
    for (const bool before : {true, false}) {
        lost->txtLost->setTabStop(before);
        FixTabStops(*lost, "tab");
        EXPECT_EQ(lost->txtLost->tabStop(), before);
    }
    EXPECT_TRUE(lost->txtLast->tabStop());
    EXPECT_FALSE(lost->txtSecond->tabStop());
}

TEST_F(MDialogs, LocaliseTheControlsBehindOneThatFails) {
    const auto lost = std::make_shared<WindowWithALostControl>(host.screen);
    LocaliseDialog(*lost, german);
    EXPECT_EQ(lost->lblLast->caption(), "&Editorfont");
}

}  // namespace
}  // namespace hx::resources
