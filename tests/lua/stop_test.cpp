// SPDX-License-Identifier: MIT
#include <chrono>

#include "macro_fixture.h"

namespace hx::lua {
namespace {

using testing::HasSubstr;

/// Macros that are asked to stop after some time, or once `stop` is set.
struct Stop : testing::Test {
    /// The error that the macro ends with.
    MacroError stopped(const std::string& text) {
        begun = std::chrono::steady_clock::now();
        try {
            engine.run(text, "test.lua");
        } catch (const MacroError& error) {
            EXPECT_TRUE(error.stopped()) << error.what();
            return error;
        }
        ADD_FAILURE() << "it ended by itself";
        return {"", ""};
    }
    bool requested() {
        ++asked;
        return stop || (patient && std::chrono::steady_clock::now() - begun > std::chrono::milliseconds(50));
    }

    std::chrono::steady_clock::time_point begun = std::chrono::steady_clock::now();
    bool stop = false, patient = true;
    int asked = 0, ran = 0;
    std::size_t printed = 0;
    Engine engine{{.print = [this](std::string_view text) { printed += text.size(); },
                   .files = {},
                   .stopRequested = [this] { return requested(); },
                   .memoryLimit = std::size_t{64} << 20U}};
};

TEST_F(Stop, EndsAnEndlessLoop) {
    const MacroError error = stopped("local n = 0\nwhile true do\nn = n + 1 end");
    EXPECT_STREQ(error.what(), "The macro was stopped");
    EXPECT_THAT(error.traceback(),
                testing::AnyOf(testing::StartsWith("stack traceback:\n\ttest.lua:2: in main chunk"),
                               testing::StartsWith("stack traceback:\n\ttest.lua:3: in main chunk")));
}

TEST_F(Stop, AskedForBeforeTheMacroBeginsEndsItAtItsFirstSteps) {
    stop = true;
    engine.defineGlobal("early", [] { return automation::Variant(); });
    engine.define("early", "Run", [this](Values) { return Value(++ran); });
    stopped("early.Run()");
    EXPECT_EQ(ran, 0);
}

TEST_F(Stop, CannotBeCaught) {
    for (const char* text : {
             "while true do pcall(function() while true do end end) end",
             "while true do pcall(pcall, function() while true do end end) end",
             "while true do xpcall(function() while true do end end, function() while true do end end) end",
             "local function f() while true do pcall(f) end end f()",
             "local function f() local ok = pcall(f) while true do end end f()",
             "while true do local ok <close> = setmetatable({}, {__close = function() while true do end end}) end",
             "error(setmetatable({}, {__tostring = function() while true do end end}))",
             "pcall(error, setmetatable({}, {__tostring = function() while true do end end})) while true do end",
         }) {
        stopped(text);
    }
}

TEST_F(Stop, ReachesEveryCoroutine) {
    for (const char* text : {
             "while true do coroutine.resume(coroutine.create(function() while true do end end)) end",
             "local function f() while true do coroutine.resume(coroutine.create(f)) end end f()",
             "local function f() while true do pcall(coroutine.wrap(f)) end end f()",
             "local c = coroutine.wrap(function() while true do coroutine.yield() end end) while true do c() end",
             "local c = coroutine.create(function()\n"
             "local x <close> = setmetatable({}, {__close = function() while true do end end}) coroutine.yield() end)\n"
             "coroutine.resume(c) coroutine.close(c)",
             "coroutine.wrap(function()\n"
             "local x <close> = setmetatable({}, {__close = function() while true do end end}) while true do end "
             "end)()",
         }) {
        stopped(text);
    }
}

TEST_F(Stop, EndsTheMacroInsideACallOfCpp) {
    bool failing = false;
    engine.define("host", "Repeat", [&](Values given) {
        for (;;) {
            try {
                (void)given[0].function()({});
            } catch (const automation::Error&) {
                failing = engine.failing();
                return Value();
            }
        }
    });
    stopped("while true do pcall(host.Repeat, function() while true do end end) end");
    EXPECT_THAT(stopped("host.Repeat(function()\nwhile true do end end)").traceback(), HasSubstr("test.lua:2"));
    EXPECT_TRUE(failing);
    EXPECT_FALSE(engine.failing());
}

TEST_F(Stop, IsAskedBeforeEachCallOfCpp) {
    patient = false;
    engine.define("host", "Stop", [this](Values) {
        stop = true;
        return Value();
    });
    engine.define("host", "Next", [this](Values) {
        ++ran;
        return Value();
    });
    stopped("host.Stop() host.Next()");
    EXPECT_EQ(ran, 0);
}

TEST_F(Stop, LetsTheNextRunBegin) {
    stopped("x = 1 while true do end");
    begun = std::chrono::steady_clock::now();
    engine.define("host", "Next", [this](Values) {
        ++ran;
        return Value();
    });
    EXPECT_NO_THROW(engine.run("host.Next()", "test.lua"));
    EXPECT_EQ(ran, 1);
    EXPECT_FALSE(engine.failing());
}

TEST_F(Stop, ComesNotWhenNobodyAsksForIt) {
    patient = false;
    EXPECT_NO_THROW(engine.run("local n = 0 for i = 1, 100000 do n = n + i end assert(n == 5000050000)", "test.lua"));
    EXPECT_GT(asked, 50);
}

TEST_F(Stop, IsNotHinderedByFinalizers) {
    try {
        engine.run("setmetatable({}, {__gc = function() while true do end end})", "test.lua");
        ADD_FAILURE() << "a finalizer was taken";
    } catch (const MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr("__gc"));
    }
    EXPECT_NO_THROW(engine.run("assert(setmetatable({}, {__index = {a = 5}}).a == 5)", "test.lua"));
}

TEST_F(Stop, LeavesCoroutinesAsTheyAre) {
    EXPECT_NO_THROW(engine.run(R"(
        local c = coroutine.wrap(function(a, b)
            local d = coroutine.yield(a + b)
            error("enough " .. d, 0)
        end)
        assert(c(1, 2) == 3)
        assert(select(2, pcall(c, "x")) == "enough x")
        local t = coroutine.create(function(...) return select("#", ...), ... end)
        local ok, n, a, b = coroutine.resume(t, 7, nil)
        assert(ok and n == 2 and a == 7 and b == nil and coroutine.status(t) == "dead")
        assert(not coroutine.resume(t) and coroutine.close(t))
        local closed
        local w = coroutine.wrap(function()
            local x <close> = setmetatable({}, {__close = function(_, e) closed = e end})
            error({"mine"})
        end)
        assert(select(2, pcall(w))[1] == "mine" and closed[1] == "mine")
        local dead = coroutine.wrap(function() end)
        dead()
        local ok, message = pcall(function() dead() end)
        assert(not ok and message:find("^test.lua:20: cannot resume dead coroutine$"), message)
        local own
        own = coroutine.wrap(function() return pcall(own) end)
        assert(select(2, own()):find("cannot resume non%-suspended coroutine"))
        assert(select("#", coroutine.wrap(function() return 1, nil, nil end)()) == 3)
        assert(not pcall(coroutine.wrap, 1)))",
                               "test.lua"));
}

TEST_F(Stop, FailsAMacroThatTakesTooMuchMemory) {
    for (const char* text : {"local t = {} while true do t[#t + 1] = ('x'):rep(1000000) .. #t end",
                             "local s = ('x'):rep(1 << 40)", "local s = ('x'):rep(1000000000)"}) {
        try {
            patient = false;
            engine.run(text, "test.lua");
            ADD_FAILURE() << text;
        } catch (const MacroError& error) {
            EXPECT_FALSE(error.stopped());
            EXPECT_THAT(error.what(), testing::AnyOf(HasSubstr("not enough memory"), HasSubstr("too large")));
        }
    }
    EXPECT_NO_THROW(engine.run("assert(#('x'):rep(1000000) == 1000000)", "test.lua"));
}

TEST(Memory, ThatEndsWhileTheEngineIsMadeIsAnErrorOfTheStandardLibrary) {
    bool ran = false;
    int refused = 0;
    for (std::size_t limit = 1; !ran; limit += 100) {
        try {
            Engine engine({.print = [](std::string_view) {}, .files = {}, .memoryLimit = limit});
            engine.define("host", "Run", [&](Values) { return Value(ran = true); });
            engine.run("host.Run()", "test.lua", {"argument"});
        } catch (const std::bad_alloc&) {
            ++refused;
        } catch (const MacroError& error) {
            EXPECT_THAT(error.what(), HasSubstr("not enough memory"));
        }
    }
    EXPECT_GT(refused, 10);
}

}  // namespace
}  // namespace hx::lua
