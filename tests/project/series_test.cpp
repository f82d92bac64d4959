// SPDX-License-Identifier: MIT
#include "project/series.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "project/pasted_variables.h"

namespace hx::project {
namespace {

using Texts = std::vector<std::string>;

std::string refusalOf(std::string_view name, const Texts& variables) {
    try {
        (void)expandSeries(name, variables);
    } catch (const automation::Error& error) {
        return error.description(automation::Language::english);
    }
    return "made";
}

TEST(Series, RunsThroughTheRangesOfNameAndVariablesTogether) {
    EXPECT_EQ(expandSeries("Tank {8..10} links", Texts{"Tank{1..3}.Soll", "Anlage.Ein"}),
              (std::vector<NewRecipe>{{"Tank 8 links", {"Tank1.Soll", "Anlage.Ein"}},
                                      {"Tank 9 links", {"Tank2.Soll", "Anlage.Ein"}},
                                      {"Tank 10 links", {"Tank3.Soll", "Anlage.Ein"}}}));
}

TEST(Series, KeepsLeadingZeros) {
    const auto recipes = expandSeries("T{08..11}", Texts());
    EXPECT_EQ(recipes.front().name, "T08");
    EXPECT_EQ(recipes.back().name, "T11");
}

TEST(Series, SaysWhatIsWrongWithARange) {
    EXPECT_EQ(refusalOf("Tank", {}), "“Tank” needs a range of numbers such as {1..12}.");
    EXPECT_EQ(refusalOf("Tank {3..1}", {}), "“Tank {3..1}” needs a range of numbers such as {1..12}.");
    EXPECT_EQ(refusalOf("Tank {a..b}", {}), "“Tank {a..b}” needs a range of numbers such as {1..12}.");
    EXPECT_EQ(refusalOf("Tank {1..3}", {"T{1..4}"}),
              "The range in “T{1..4}” must have 3 numbers, as many as the one in the name.");
    EXPECT_EQ(refusalOf("Tank {1..99999}", {}), "“Tank {1..99999}” stands for more than 10000 recipes.");
}

TEST(PastedVariables, AreTheFirstColumnOfLines) {
    EXPECT_EQ(pastedVariables("A.x\tSoll\r\n\n  B.y \na.X\nC;3\n", Texts{"b.Y"}),
              (std::vector<PastedVariable>{{"A.x", false}, {"B.y", true}, {"a.X", true}, {"C", false}}));
    EXPECT_EQ(pastedVariables("", Texts()), std::vector<PastedVariable>());
}

}  // namespace
}  // namespace hx::project
