// SPDX-License-Identifier: MIT
#include "hosting/components.h"

#include <memory>
#include <utility>

#include "automation/error.h"

namespace hx::hosting {

namespace {

/// Stands in for a component of which only the calls matter.
class StandIn : public automation::Dispatch {
  public:
    StandIn(std::string programId, Components::Answer answer, forms::Record& record)
        : programId_(std::move(programId)), answer_(std::move(answer)), record_(record) {}

    automation::Variant get(std::string_view name, automation::Args args) override {
        record_.componentCalls.push_back({programId_, std::string(name), {args.begin(), args.end()}});
        return answer_ ? answer_(name, args) : automation::Variant();
    }

    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"StandIn", {}};
        return table;
    }

  private:
    std::string programId_;
    Components::Answer answer_;
    forms::Record& record_;
};

}  // namespace

void Components::standIn(const std::string& programId, Answer answer) {
    provide(programId, [this, programId, answer = std::move(answer)] {
        return std::make_shared<StandIn>(programId, answer, record_);
    });
}

automation::ObjectRef Components::create(std::string_view programId) {
    record_.components.emplace_back(programId);
    const auto found = factories_.find(programId);
    if (found == factories_.end()) {
        throw automation::Error(errClassNotRegistered, "Class not registered: " + std::string(programId));
    }
    const Factory factory = found->second;
    return factory();
}

}  // namespace hx::hosting
