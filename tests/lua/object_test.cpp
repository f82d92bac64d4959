// SPDX-License-Identifier: MIT
#include <array>

#include "macro_fixture.h"

namespace hx::lua {
namespace {

using automation::Variant;
using testing::HasSubstr;
using testing::StartsWith;

struct MacroObjects : MacroTest {};

TEST_F(MacroObjects, ReadsAndAssignsPropertiesIgnoringCase) {
    EXPECT_EQ(run("tank.LEVEL = 2.5 print(tank.level, tank.Name)"), "2.5\tT1\n");
    EXPECT_EQ(tank->level(), 2.5);
}

TEST_F(MacroObjects, CallsMethodsWithADotOrAColon) {
    EXPECT_EQ(run("print(tank.Mix('a', 2), tank:mix('b', 3))"), "a*2\tb*3\n");
}

TEST_F(MacroObjects, ReadsIndexedMembersByCallAndByIndexAndAssignsThemByIndex) {
    EXPECT_EQ(run("tank.Label[2] = 'Syrup' print(tank.Label(1), tank.label[2])"), "Water\tSyrup\n");
}

TEST_F(MacroObjects, GivesItemsOfAListThatIsTheOnlyArgumentAsArguments) {
    EXPECT_EQ(run("print(tank.CountArguments({1, 2, 3}), tank.CountArguments({1}, 2), tank.CountArguments({}))"),
              "3\t2\t0\n");
}

TEST_F(MacroObjects, PassesEachKindOfValue) {
    EXPECT_EQ(run("tank.Content = nil print(tank.Content)"), "nil\n");
    EXPECT_TRUE(tank->content().isEmpty());
    run("tank.Content = true");
    EXPECT_EQ(tank->content(), Variant(true));
    EXPECT_EQ(run("tank.Content = 7 print(math.type(tank.Content))"), "integer\n");
    EXPECT_EQ(tank->content(), Variant(std::int32_t{7}));
    EXPECT_EQ(run("tank.Content = 7.0 print(math.type(tank.Content))"), "float\n");
    EXPECT_EQ(tank->content(), Variant(7.0));
    run("tank.Content = 3000000000");
    EXPECT_EQ(tank->content(), Variant(3e9));
    run("tank.Content = 'a\\0b'");
    EXPECT_EQ(tank->content(), Variant(std::string("a\0b", 3)));
    tank->setContent(Variant(std::int16_t{-5}));
    EXPECT_EQ(run("print(tank.Content + 1)"), "-4\n");
}

TEST_F(MacroObjects, TellsNullFromNil) {
    EXPECT_EQ(run("tank.Content = null print(tank.Content, tank.Content == null, tank.Content == nil)"),
              "null\ttrue\tfalse\n");
    EXPECT_TRUE(tank->content().isNull());
    EXPECT_EQ(run("print(tank.Neighbour, tank.Neighbour == null)"), "nil\tfalse\n");
}

TEST_F(MacroObjects, TakesAListAsAnObjectWithCountAndItem) {
    run("tank.Content = {'a', 2}");
    const automation::ObjectRef list = tank->content().asObject();
    EXPECT_EQ(list->get("Count"), Variant(std::int32_t{2}));
    const Variant second(std::int32_t{1});
    EXPECT_EQ(list->get("Item", automation::Args(&second, 1)), Variant(std::int32_t{2}));
}

TEST_F(MacroObjects, AreEqualWhenTheyAreTheSameObject) {
    EXPECT_EQ(run("tank.Neighbour = tank print(tank.Neighbour == tank, tostring(tank))"), "true\tTank\n");
    tank->setNeighbour(nullptr);
}

TEST_F(MacroObjects, KeepTheirObjectAliveUntilTheyAreCollected) {
    const int before = Tank::alive;
    tank->setNeighbour(std::make_shared<Tank>("T2"));
    run("kept = tank.Neighbour");
    tank->setNeighbour(nullptr);
    EXPECT_EQ(Tank::alive, before + 1);
    EXPECT_EQ(run("print(kept.Name)"), "T2\n");
    run("kept = nil collectgarbage()");
    EXPECT_EQ(Tank::alive, before);
}

TEST_F(MacroObjects, FailWithNumberAndDescription) {
    EXPECT_EQ(run("local ok, e = pcall(function() return tank.Pressure end) print(ok, e.number, e.description)"),
              "false\t-2147352570\tTank has no member \"Pressure\"\n");
    EXPECT_EQ(run("local ok, e = pcall(function() tank.Name = 'x' end) print(e.number)"), "-2147352573\n");
    EXPECT_EQ(run("local ok, e = pcall(function() tank.Level = 'x' end) print(e.number)"), "-2147352571\n");
    EXPECT_EQ(run("local ok, e = pcall(function() return tank.Label(9) end) print(e.number)"), "-2147352565\n");
    EXPECT_EQ(run("local ok, e = pcall(function() return tank.Mix('a') end) print(e.number)"), "-2147352562\n");
    EXPECT_EQ(run("local ok, e = pcall(tank.Burst) print(e.number, e.description)"),
              "-2147467259\tthe tank has burst\n");
}

TEST_F(MacroObjects, RefuseWhatIsNoValueOfTheirs) {
    EXPECT_THAT(failure("tank.Content = print"), HasSubstr("-2147352571: Type mismatch"));
    EXPECT_THAT(failure("tank.Content = {a = 1}"), HasSubstr("-2147352571: Type mismatch"));
    EXPECT_THAT(failure("tank.Content = tank.Label"), HasSubstr("a member needs its arguments"));
    EXPECT_THAT(failure("tank.Content = coroutine.create(print)"), HasSubstr("a thread cannot be passed"));
    EXPECT_THAT(failure("local t = {} t[1] = t tank.Content = t"), HasSubstr("nested too deeply"));
    EXPECT_THAT(failure("return tank[1]"), HasSubstr("text expected"));
}

TEST_F(MacroObjects, NamePlaceNumberAndDescriptionInTheirMessage) {
    EXPECT_EQ(failure("\nlocal x = tank.Pressure"), "test.lua:2: -2147352570: Tank has no member \"Pressure\"");
    EXPECT_THAT(traceback, StartsWith("stack traceback:\n"));
    EXPECT_THAT(traceback, HasSubstr("test.lua:2: in main chunk"));
}

TEST_F(MacroObjects, HideTheirMetatables) {
    EXPECT_EQ(run("print(getmetatable(tank), getmetatable(tank.Label), getmetatable(null))"), "object\tmember\tnull\n");
    EXPECT_THAT(failure("setmetatable(_G, {})"), HasSubstr("protected metatable"));
}

TEST_F(MacroObjects, WorkInACoroutine) {
    EXPECT_EQ(run("local co = coroutine.wrap(function() coroutine.yield(tank.Name) return tank.Pressure end) "
                  "print(co()) print(select(2, pcall(co)).number)"),
              "T1\n-2147352570\n");
}

TEST_F(MacroObjects, ReleasesListsInListsHoweverMany) {
    EXPECT_EQ(run("for i = 1, 300000 do tank.Content = {tank.Content, i} end print(tank.Content.Item(1))"), "300000\n");
    const std::weak_ptr<automation::Dispatch> inner =
        tank->content().asObject()->get("Item", std::array{Variant(0)}).asObject();
    run("tank.Content = nil collectgarbage()");
    EXPECT_TRUE(inner.expired());
}

TEST_F(MacroObjects, KeepsAListThatIsHeldWhenTheListAroundItGoes) {
    EXPECT_EQ(run("tank.Content = {1, 2} tank.Content = {tank.Content, 3} local inner = tank.Content.Item(0)\n"
                  "tank.Content = nil collectgarbage() print(inner.Count, inner.Item(1))"),
              "2\t2\n");
}

}  // namespace
}  // namespace hx::lua
