#include <sstream>

#include "cli/content.h"
#include "cli/csv_variables.h"
#include "cli/differences.h"
#include "cli/plcopen_variables.h"
#include "fuzz/targets.h"

/// What the imports read.
namespace hx::fuzz {

namespace {

class Variables : public cli::VariableReceiver {
  public:
    void take(const cli::ListedVariable& variable) override { require(variable.line > 0, "a variable has a line"); }
    void note(const std::string& text) override { require(!text.empty(), "a note says something"); }
    void reach(std::int64_t done, std::int64_t total) override {
        require(done <= total, "no more is read than there is");
    }
};

}  // namespace

// What was written is read back as it was.
void json(std::string_view bytes) {
    cli::Content content;
    if (!accepted([&] { content = cli::parseContent(fileOf(bytes)); })) return;
    std::string once;
    if (!accepted([&] { once = cli::exportOf(content); })) return;
    const cli::Content again = cli::parseContent(fileOf(once));
    require(cli::exportOf(again) == once, "an export is read as it was written");
    require(cli::compare(content, again, {}).empty(), "an export leaves nothing out");
}

void csv(std::string_view bytes) {
    Variables variables;
    (void)accepted([&] { cli::readCsvVariables(fileOf(bytes), {}, variables); });
}

void plcopen(std::string_view bytes) {
    Variables variables;
    (void)accepted([&] { cli::readPlcopenVariables(fileOf(bytes), {255, 20, 255}, variables); });
}

}  // namespace hx::fuzz
