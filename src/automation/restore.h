// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace hx::automation {

/// Gives a variable another value for the time that it lives; afterwards it has the former one.
template <class T>
class [[nodiscard]] Restore {
  public:
    template <class V>
    Restore(T& variable, V&& value) : variable_(variable), before_(std::exchange(variable, std::forward<V>(value))) {}
    ~Restore() { variable_ = std::move(before_); }
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;

  private:
    T& variable_;
    T before_;
};

}  // namespace hx::automation
