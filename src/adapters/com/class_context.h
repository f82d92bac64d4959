// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <windows.h>

namespace hx::com {

/// While it lives, the classes that a library describes in its resource `descriptionOfClasses` are found by their
/// program identifiers in this thread, as if it were registered.
class ClassContext {
  public:
    static constexpr int descriptionOfClasses = 10;

    /// Throws automation::Error when the file describes none.
    explicit ClassContext(const std::wstring& library);
    ~ClassContext();
    ClassContext(const ClassContext&) = delete;
    ClassContext& operator=(const ClassContext&) = delete;

  private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
};

}  // namespace hx::com
