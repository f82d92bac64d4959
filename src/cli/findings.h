// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "cli/command_line.h"
#include "project/check.h"

namespace hx::cli {

struct CheckOptions {
    std::string path;
    bool json = false;
    bool thorough = false;  ///< compares the indexes of large files, too, with their tables
};

/// Looks for what is wrong in a project and prints a line for each finding (or all as JSON). Gives `succeeded` when
/// there is none, else `found`. Throws automation::Error.
[[nodiscard]] int check(const CheckOptions& options, const Output& output);

/// Prints findings one by one, as lines or as one JSON object.
class FindingWriter {
  public:
    FindingWriter(bool json, const Output& output);
    void add(const project::Finding& finding);
    /// What stands behind the findings; call it once.
    void finish();
    [[nodiscard]] bool isEmpty() const { return errors_ + warnings_ == 0; }

  private:
    void addLine(const project::Finding& finding);
    void addObject(const project::Finding& finding);

    bool json_;
    const Output& output_;
    std::int64_t errors_ = 0;
    std::int64_t warnings_ = 0;
};

}  // namespace hx::cli
