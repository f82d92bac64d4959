// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

#include "automation/variant.h"
#include "forms/event.h"

namespace hx::forms {

/// Turns stored values into display texts. A source is asked for each value when it is first shown; its answers are
/// kept until clear(). A value without a text shows nothing. What the source throws is thrown on, and it is asked
/// again.
class ValueItems {
  public:
    using Source = std::function<std::optional<std::string>(const automation::Variant&)>;
    void setSource(Source source);
    void clear();  ///< forgets the answers; the source is asked again
    [[nodiscard]] bool translates() const noexcept { return static_cast<bool>(source_); }
    [[nodiscard]] std::string display(const automation::Variant& value) const;

    Event<> changed;  ///< what values show may be new

  private:
    struct Hash {
        std::size_t operator()(const automation::Variant& value) const noexcept;
    };
    Source source_;
    mutable std::unordered_map<automation::Variant, std::string, Hash> known_;
};

}  // namespace hx::forms
