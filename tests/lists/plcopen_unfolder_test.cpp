// SPDX-License-Identifier: MIT
#include "lists/plcopen_unfolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"
#include "support/temporary_folder.h"

namespace hx::lists {
namespace {

using testing::ElementsAre;

class Received : public VariableReceiver {
  public:
    void take(const ListedVariable& variable) override {
        variables.push_back(variable.name + " " + variable.type.value_or("?"));
    }
    void note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) override {
        notes.push_back(say(automation::Language::english, sentence, names));
    }
    void reach(std::int64_t done, std::int64_t total) override {
        reached = std::to_string(done) + "/" + std::to_string(total);
    }

    std::vector<std::string> variables, notes;
    std::string reached;
};

class Unfolding : public testing::Test {
  protected:
    static std::string variable(const std::string& name, const std::string& type) {
        return "<variable name=\"" + name + "\"><type>" + type + "</type></variable>";
    }
    static std::string array(int lower, int upper, const std::string& type) {
        return "<array><dimension lower=\"" + std::to_string(lower) + "\" upper=\"" + std::to_string(upper) +
               "\"/><baseType>" + type + "</baseType></array>";
    }
    Received unfold(const std::string& globals, const UnfoldLimits& most = {}) {
        const std::string path = folder_.file("project.xml");
        std::ofstream(path) << "<project>\n<globalVars>" << globals << "</globalVars></project>";
        const XmlDocument document(path);
        const VariableLimits limits{255, 20, 255};
        Received received;
        PlcopenUnfolder(document, limits, received, most).run();
        return received;
    }

    support::TemporaryFolder folder_;
};

TEST_F(Unfolding, GivesTheElementsOfArraysAndTheMembersOfStructures) {
    const auto received = unfold(variable("A", array(-1, 0, "<REAL/>")) +
                                 variable("M", "<struct>" + variable("Speed", "<INT/>") + "</struct>"));
    EXPECT_THAT(received.variables, ElementsAre("A[-1] REAL", "A[0] REAL", "M.Speed INT"));
    EXPECT_THAT(received.notes, ElementsAre());
    EXPECT_EQ(received.reached, "1/1");
}

TEST_F(Unfolding, LeavesOutTheFirstArrayThatIsTooLarge) {
    const auto received =
        unfold(variable("A", array(1, 3, "<BYTE/>")) + variable("B", array(1, 4, "<BYTE/>")), {.arrayElements = 3});
    EXPECT_EQ(received.variables.size(), 3U);
    EXPECT_THAT(received.notes, ElementsAre("line 2: \"B\" is left out: the array has more than 3 elements"));
}

TEST_F(Unfolding, EndsWithTheFirstPartTooMany) {
    // An array and each of its elements.
    const std::string five = variable("A", array(1, 4, "<BYTE/>"));
    EXPECT_EQ(unfold(five, {.parts = 5}).variables.size(), 4U);
    try {
        (void)unfold(five, {.parts = 4});
        ADD_FAILURE() << "there are five";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(),
                  folder_.file("project.xml") + ", line 2: the variables up to here have more than 4 parts");
    }
}

TEST_F(Unfolding, CountsStructuresThatHoldNoVariable) {
    std::string type = "<struct/>";
    for (int i = 0; i < 6; ++i) type = "<struct>" + variable("a", type) + variable("b", type) + "</struct>";
    EXPECT_TRUE(unfold(variable("X", type), {.parts = 127}).variables.empty());
    EXPECT_THROW((void)unfold(variable("X", type), {.parts = 126}), automation::Error);
}

TEST_F(Unfolding, GoesTwoHundredTypesDeep) {
    std::string type = "<INT/>";
    for (int i = 1; i < 200; ++i) type = array(1, 1, type);
    EXPECT_EQ(unfold(variable("X", type)).variables.size(), 1U);
    EXPECT_THROW((void)unfold(variable("X", array(1, 1, type))), automation::Error);
}

TEST_F(Unfolding, IsMadeForTwoMillionPartsAndArraysOfTenThousandElements) {
    EXPECT_EQ(UnfoldLimits().parts, 2'000'000);
    EXPECT_EQ(UnfoldLimits().arrayElements, 10'000);
}

}  // namespace
}  // namespace hx::lists
