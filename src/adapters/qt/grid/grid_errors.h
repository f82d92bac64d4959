// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "automation/error.h"

namespace hx::qt {

/// Keeps the errors of a grid out of Qt, which loses its way when an exception leaves it in the middle of its work.
class GridErrors {
  public:
    /// Called where an error was caught: it must not show a window there, but later.
    using Report = std::function<void(const automation::Error&)>;
    explicit GridErrors(Report report) : report_(std::move(report)) {}

    /// Does what the user asked for. False when it failed; that is reported.
    template <class Action>
    bool run(Action&& action) noexcept {
        try {
            std::forward<Action>(action)();
            return true;
        } catch (...) {
            reportCaught();
            return false;
        }
    }

    /// Reads what is shown. False when it failed; that is reported once, and again only after a picture in which all
    /// went well. When something in a picture cannot be read, the rest of it is not even tried.
    template <class Action>
    bool read(Action&& action) noexcept {
        if (drawing_ && failed_) return false;
        try {
            std::forward<Action>(action)();
            return read_ = true;
        } catch (...) {
            failed_ = true;
            if (!std::exchange(told_, true)) reportCaught();
            return false;
        }
    }

    /// While it lives, one picture is drawn.
    class Picture {
      public:
        explicit Picture(GridErrors& errors) noexcept : errors_(errors) { errors_.begin(); }
        ~Picture() { errors_.end(); }
        Picture(const Picture&) = delete;
        Picture& operator=(const Picture&) = delete;

      private:
        GridErrors& errors_;
    };

  private:
    void begin() noexcept;
    void end() noexcept;
    void reportCaught() noexcept;

    Report report_;
    bool drawing_ = false;
    bool failed_ = false, read_ = false;  // in this picture
    bool told_ = false;
};

}  // namespace hx::qt
