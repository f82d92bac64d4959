#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli/command_line.h"
#include "cli/project_reader.h"

namespace hx::cli {

enum class Severity { error, warning };

/// Something wrong in a project. The sentences begin with a capital and end with a full stop.
struct Finding {
    Severity severity = Severity::error;
    std::string_view kind;                ///< one word for programs
    const RecipeEntry* recipe = nullptr;  ///< where; none when there is no such recipe
    std::optional<std::int64_t> member;   ///< where, when it is a member
    std::string problem;
    std::string_view advice;
};

/// Prints findings one by one, as lines or as one JSON object.
class FindingWriter {
  public:
    FindingWriter(bool json, const Output& output);
    void add(const Finding& finding);
    /// What stands behind the findings; call it once.
    void finish();
    [[nodiscard]] bool isEmpty() const { return errors_ + warnings_ == 0; }

  private:
    void addLine(const Finding& finding);
    void addObject(const Finding& finding);

    bool json_;
    const Output& output_;
    std::int64_t errors_ = 0;
    std::int64_t warnings_ = 0;
};

}  // namespace hx::cli
