// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/lua/engine.h"

namespace hx::lua {
namespace {

using testing::HasSubstr;

constexpr std::size_t megabyte = std::size_t{1} << 20U;

/// Macros that may take 32 MB, with functions that take memory for them.
class MacroMemory : public testing::Test {
  protected:
    MacroMemory() {
        define("Keep", [this](Values given) {
            for (const Value& value : given) kept_ += value.toVariant().asString();
        });
        define("Take", [this](Values given) {
            engine_.charge(static_cast<std::size_t>(given[0].toVariant().asInt32()) * megabyte);
        });
        define("Count", [this](Values given) { counted_ += given[0].list().size(); });
    }
    void define(const std::string& name, const std::function<void(Values)>& action) {
        engine_.define("host", name, [action](Values given) {
            action(given);
            return Value();
        });
    }
    /// What the macro fails with; empty when it does not.
    std::string failure(const std::string& text) {
        try {
            engine_.run(text, "test.lua");
        } catch (const MacroError& error) {
            return error.what();
        }
        return {};
    }

    Engine engine_{{.print = [](std::string_view) {}, .memoryLimit = 32 * megabyte}};
    std::string kept_;
    std::size_t counted_ = 0;
};

TEST_F(MacroMemory, CountsWhatTheProgramKeepsForTheMacro) {
    EXPECT_THAT(failure("local s = ('x'):rep(1 << 20) for i = 1, 1000 do host.Keep(s) end"),
                HasSubstr("not enough memory"));
    EXPECT_GT(kept_.size(), 8 * megabyte);
    EXPECT_LT(kept_.size(), 64 * megabyte);
}

TEST_F(MacroMemory, CountsWhatTheProgramKeepsInSmallPieces) {
    EXPECT_THAT(failure("local s = ('x'):rep(1000) for i = 1, 1000000 do host.Keep(s) end"),
                HasSubstr("not enough memory"));
    EXPECT_LT(kept_.size(), 64 * megabyte);
}

TEST_F(MacroMemory, GivesNoMoreToAMacroThatGoesOnWithoutIt) {
    EXPECT_EQ(failure("local s = ('x'):rep(10000) for i = 1, 20000 do pcall(host.Keep, s) end"), "");
    EXPECT_LT(kept_.size(), 64 * megabyte);
}

TEST_F(MacroMemory, CountsWhatIsHandedOverAsOftenAsItIs) {
    EXPECT_THAT(failure("local s, t = ('x'):rep(1 << 20), {} for i = 1, 100 do t[i] = s end host.Count(t)"),
                HasSubstr("not enough memory"));
    EXPECT_EQ(counted_, 0U);
}

TEST_F(MacroMemory, IsMissingInTheUsersWordsAndWithItsNumber) {
    EXPECT_EQ(failure("local ok, e = pcall(host.Take, 40)"
                      "assert(not ok and e.number == -2147024882 and e.description == 'There is not enough memory.')"),
              "");
}

TEST_F(MacroMemory, CountsWhatAFunctionTakesUntilItReturns) {
    EXPECT_EQ(failure("for i = 1, 100 do host.Take(20) end"), "");
    EXPECT_THAT(failure("host.Take(40)"), HasSubstr("not enough memory"));
    EXPECT_EQ(failure("local t = {} for i = 1, 1000 do t[i] = i end for i = 1, 100 do host.Count(t) end"), "");
    EXPECT_EQ(counted_, 100'000U);
}

TEST_F(MacroMemory, IsThatOfEachRunAlone) {
    kept_.reserve(65 * megabyte);  // so that what is kept below takes no new block for all of it
    kept_.assign(64 * megabyte, 'x');
    EXPECT_EQ(failure("for i = 1, 1000 do host.Keep('x') end"), "");
}

}  // namespace
}  // namespace hx::lua
