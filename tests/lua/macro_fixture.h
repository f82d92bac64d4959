// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "adapters/lua/engine.h"
#include "automation/error.h"
#include "automation/member_rows.h"

namespace hx::lua {

/// An object with a member of each kind.
class Tank : public automation::Dispatch {
  public:
    explicit Tank(std::string name) : name_(std::move(name)) { ++alive; }
    ~Tank() override { --alive; }

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] automation::Variant content() const { return content_; }
    void setContent(const automation::Variant& value) { content_ = value; }
    [[nodiscard]] double level() const { return level_; }
    void setLevel(double level) { level_ = level; }
    [[nodiscard]] std::string label(std::int32_t side) const {
        const auto found = labels_.find(side);
        if (found == labels_.end()) automation::throwBadIndex("Label", automation::Variant(side));
        return found->second;
    }
    void setLabel(std::int32_t side, const std::string& text) { labels_[side] = text; }
    std::string mix(const std::string& what, std::int32_t times) { return what + "*" + std::to_string(times); }
    [[nodiscard]] automation::ObjectRef neighbour() const { return neighbour_; }
    void setNeighbour(const automation::ObjectRef& tank) { neighbour_ = tank; }
    void burst() { throw std::runtime_error("the tank has burst"); }
    static automation::Variant count(Tank&, automation::Args args) { return static_cast<std::int32_t>(args.size()); }

    [[nodiscard]] const automation::MemberTable& members() const override {
        using namespace automation;
        static constexpr Member rows[] = {
            property<&Tank::name>("Name", "Read-only"),
            property<&Tank::content, &Tank::setContent>("Content", "Any value"),
            property<&Tank::level, &Tank::setLevel>("Level", "A number"),
            property<&Tank::neighbour, &Tank::setNeighbour>("Neighbour", "An object or none"),
            indexed<&Tank::label, &Tank::setLabel>("Label", "A text a side"),
            method<&Tank::mix>("Mix", "Two arguments"),
            method<&Tank::burst>("Burst", "Fails with an exception of the standard library"),
            methodWithArgs<Tank, &Tank::count>("CountArguments", "How many arguments it gets"),
        };
        static constexpr MemberTable table{"Tank", rows};
        return table;
    }

    static inline int alive = 0;

  private:
    std::string name_;
    automation::Variant content_;
    double level_ = 0;
    automation::ObjectRef neighbour_;
    std::map<std::int32_t, std::string> labels_{{1, "Water"}};
};

/// Runs macros with the globals `tank` and `host`.
struct MacroTest : testing::Test {
    explicit MacroTest(bool trusted = false, const std::filesystem::path& folder = {})
        : engine({.print = [this](std::string_view text) { printed += text; },
                  .files = MacroFiles(folder),
                  .trusted = trusted}) {
        engine.defineGlobal("tank", [this] { return automation::Variant(automation::ObjectRef(tank)); });
    }

    /// What the macro prints.
    std::string run(const std::string& text) {
        printed.clear();
        engine.run(text, "test.lua");
        return printed;
    }
    /// The message of the macro's error; empty when it ends without one.
    std::string failure(const std::string& text) {
        try {
            engine.run(text, "test.lua");
        } catch (const MacroError& error) {
            traceback = error.traceback();
            return error.what();
        }
        return {};
    }

    std::string printed, traceback;
    std::shared_ptr<Tank> tank = std::make_shared<Tank>("T1");
    Engine engine;
};

}  // namespace hx::lua
