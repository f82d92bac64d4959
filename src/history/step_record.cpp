// SPDX-License-Identifier: MIT
#include "history/step_record.h"

#include <cstring>

namespace hx::history {

namespace {

constexpr char stepKind = 'S', positionKind = 'P';

void put(std::string& to, std::uint64_t number) { to.append(reinterpret_cast<const char*>(&number), sizeof number); }

void put(std::string& to, const std::string& text) {
    put(to, text.size());
    to += text;
}

/// Takes a record apart; what is missing is zero or empty.
class Parts {
  public:
    explicit Parts(std::string_view record) : left_(record) {}
    [[nodiscard]] std::uint64_t number() {
        std::uint64_t number = 0;
        const std::string_view bytes = take(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }
    [[nodiscard]] std::string text() { return std::string(take(number())); }
    [[nodiscard]] std::string_view rest() const noexcept { return left_; }

  private:
    std::string_view take(std::uint64_t size) {
        const std::string_view taken =
            left_.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(size, left_.size())));
        left_.remove_prefix(taken.size());
        return taken;
    }
    std::string_view left_;
};

Step stepOf(Parts& parts) {
    Step step;
    step.time = static_cast<std::int64_t>(parts.number());
    step.name.kind = static_cast<StepName::Kind>(parts.number());
    step.name.recipes = static_cast<std::int64_t>(parts.number());
    step.name.rows = static_cast<std::int64_t>(parts.number());
    step.name.recipe = static_cast<std::int64_t>(parts.number());
    step.name.member = static_cast<std::int64_t>(parts.number());
    step.name.first = parts.text();
    step.name.second = parts.text();
    return step;
}

}  // namespace

std::string recordOf(const Step& step, const ChangeLog& changes) {
    std::string record(1, stepKind);
    record.reserve(changes.bytes().size() + 256);
    put(record, static_cast<std::uint64_t>(step.time));
    put(record, static_cast<std::uint64_t>(step.name.kind));
    put(record, static_cast<std::uint64_t>(step.name.recipes));
    put(record, static_cast<std::uint64_t>(step.name.rows));
    put(record, static_cast<std::uint64_t>(step.name.recipe));
    put(record, static_cast<std::uint64_t>(step.name.member));
    put(record, step.name.first);
    put(record, step.name.second);
    return record += changes.bytes();
}

std::string recordOf(std::size_t position) {
    std::string record(1, positionKind);
    put(record, position);
    return record;
}

std::optional<Step> stepIn(std::string_view record) {
    if (!record.starts_with(stepKind)) return std::nullopt;
    Parts parts(record.substr(1));
    return stepOf(parts);
}

std::optional<std::size_t> positionIn(std::string_view record) {
    if (!record.starts_with(positionKind)) return std::nullopt;
    return static_cast<std::size_t>(Parts(record.substr(1)).number());
}

ChangeLog changesIn(std::string_view record) {
    Parts parts(record.substr(1));
    (void)stepOf(parts);
    return ChangeLog(std::string(parts.rest()));
}

}  // namespace hx::history
