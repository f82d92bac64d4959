// SPDX-License-Identifier: MIT
#pragma once

#include "addin/connect.h"

namespace hx::addin {

/// Keeps the add-in alive while one of its members runs. The outermost call of the studio releases the windows that
/// were closed since: only then no command of theirs can still be on the stack.
class Connect::Call {
  public:
    enum class From { studio, window };

    Call(Connect& connect, From from) : connect_(connect), self_(connect.share()) {
        if (from == From::studio && connect_.callDepth_ == 0) connect_.retired_.clear();
        ++connect_.callDepth_;
    }
    ~Call() { --connect_.callDepth_; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

  private:
    Connect& connect_;
    automation::ObjectRef self_;
};

}  // namespace hx::addin
