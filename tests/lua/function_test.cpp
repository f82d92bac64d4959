// SPDX-License-Identifier: MIT
#include "macro_fixture.h"

namespace hx::lua {
namespace {

using automation::Error;
using automation::Variant;
using testing::HasSubstr;

/// A function of the engine's that calls one of the macro's, as the editor does that shows a message box.
struct MacroFunctions : MacroTest {
    MacroFunctions() {
        engine.define("host", "Call", [](Values given) { return given[0].function()(given.subspan(1)); });
        engine.define("host", "Swallow", [this](Values given) {
            try {
                given[0].function()({});
            } catch (const Error& error) {
                swallowed = error.description();
            }
            wasFailing = engine.failing();
            return Value("carried on");
        });
        engine.define("host", "Echo", [](Values given) { return given[0]; });
        engine.define("host", "Keep", [this](Values given) {
            kept = given[0].function();
            return Value();
        });
    }
    std::string swallowed;
    bool wasFailing = false;
    std::optional<Function> kept;
};

TEST_F(MacroFunctions, TakeArgumentsAndReturnAValue) {
    EXPECT_EQ(run("print(host.Call(function(a, b) return a .. b end, 'x', 'y'), host:Call(function() end))"),
              "xy\tnil\n");
}

TEST_F(MacroFunctions, GetTablesBackAsTheyAre) {
    EXPECT_EQ(run("local t = host.Echo({1, {a = 'b'}, 'c'}) print(#t, t[1], t[2].a, t[3])"), "3\t1\tb\tc\n");
    EXPECT_EQ(run("local t = host.Echo({x = {1, 2}, y = true}) print(#t.x, t.y)"), "2\ttrue\n");
}

TEST_F(MacroFunctions, EndTheMacroWhenTheyFailAlsoWhenTheErrorIsForgottenOnTheWay) {
    EXPECT_EQ(failure("host.Swallow(function() error('no such button') end)"), "test.lua:1: no such button");
    EXPECT_TRUE(wasFailing);
    EXPECT_FALSE(engine.failing());
    EXPECT_EQ(swallowed, "The macro has failed");
}

TEST_F(MacroFunctions, KeepTheTracebackOfTheirOwn) {
    EXPECT_NE(failure("local function press()\n  error('x')\nend\nhost.Swallow(press)"), "");
    EXPECT_THAT(traceback, HasSubstr("test.lua:2:"));
    EXPECT_THAT(traceback, HasSubstr("test.lua:4:"));
}

TEST_F(MacroFunctions, HandTheirErrorToAnOuterPcallUnchanged) {
    EXPECT_EQ(run("local ok, e = pcall(host.Swallow, function() return tank.Pressure end) print(ok, e.number)"),
              "false\t-2147352570\n");
    EXPECT_EQ(run("local mine = {} local ok, e = pcall(host.Call, function() error(mine) end) print(e == mine)"),
              "true\n");
    EXPECT_EQ(run("print(host.Swallow(function() end))"), "carried on\n");
}

TEST_F(MacroFunctions, CanBeToldThatTheirAnswerIsWrong) {
    engine.define("host", "Ask", [this](Values) {
        engine.fail(Error(7, "no such button"));
        return Value("carried on");
    });
    EXPECT_EQ(failure("host.Ask()"), "test.lua:1: 7: no such button");
    EXPECT_THAT(traceback, HasSubstr("test.lua:1:"));
    EXPECT_EQ(run("print(select(2, pcall(host.Ask)).number)"), "7\n");
}

TEST_F(MacroFunctions, CanBeNested) {
    EXPECT_EQ(run("print(host.Call(function() return host.Call(function() return 'deep' end) end))"), "deep\n");
    EXPECT_EQ(failure("host.Call(function() host.Swallow(function() error('deep', 0) end) end)"), "deep");
}

TEST_F(MacroFunctions, CannotYieldThroughTheEditor) {
    EXPECT_THAT(failure("coroutine.wrap(function() host.Call(coroutine.yield) end)()"), HasSubstr("attempt to yield"));
}

TEST_F(MacroFunctions, AreCalledFromACoroutine) {
    EXPECT_EQ(run("print(coroutine.wrap(function() return host.Call(function() return 'in' end) end)())"), "in\n");
}

TEST_F(MacroFunctions, StayUsableAfterTheMacroHasEnded) {
    run("host.Keep(function(x) return x * 2 end)");
    const std::vector<Value> arguments{Value(std::int32_t{21})};
    EXPECT_EQ((*kept)(arguments).toVariant(), Variant(std::int32_t{42}));
}

TEST(MacroFunction, ThatOutlivesItsEngineFails) {
    std::optional<Function> kept;
    {
        Engine engine({.print = [](std::string_view) {}, .files = {}, .trusted = false});
        engine.define("host", "Keep", [&](Values given) {
            kept = given[0].function();
            return Value();
        });
        engine.run("host.Keep(function() end)", "test.lua");
    }
    EXPECT_THROW((*kept)({}), Error);
}

// The functions that this one returns would have to be kept.
TEST(MacroFunction, WithoutMemoryForWhatItReturnsFailsAsAnyOther) {
    std::string caught;
    Engine engine({.print = [](std::string_view) {}, .files = {}, .memoryLimit = std::size_t{4} << 20U});
    engine.define("host", "Catch", [&](Values given) {
        try {
            (void)given[0].function()({});
        } catch (const Error& error) {
            caught = error.description();
        }
        return Value();
    });
    try {
        engine.run("host.Catch(function() local t = {} for i = 1, 1 << 17 do t[i] = print end return t end)",
                   "test.lua");
        ADD_FAILURE() << "there was memory enough";
    } catch (const MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr("not enough memory"));
    }
    EXPECT_EQ(caught, "The macro has failed");
}

TEST_F(MacroFunctions, AreExpectedWhereTheyAreNeeded) {
    EXPECT_THAT(failure("host.Call('x')"), HasSubstr("-2147352571: Type mismatch: a function expected"));
}

}  // namespace
}  // namespace hx::lua
