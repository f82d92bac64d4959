// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace hx::forms {

/// The names of the properties that a control reports as changed.
class ChangeRecorder {
  public:
    explicit ChangeRecorder(Control& control)
        : subscription_(control.changed.subscribe([this](std::string_view name) { names_.emplace_back(name); })) {}
    [[nodiscard]] std::vector<std::string> take() { return std::exchange(names_, {}); }

  private:
    std::vector<std::string> names_;
    Subscription subscription_;
};

/// How often an event was raised.
template <class... A>
class Counter {
  public:
    explicit Counter(Event<A...>& event) : subscription_(event.subscribe([this](A...) { ++count_; })) {}
    [[nodiscard]] int take() { return std::exchange(count_, 0); }

  private:
    int count_ = 0;
    Subscription subscription_;
};

using Names = std::vector<std::string>;

}  // namespace hx::forms
