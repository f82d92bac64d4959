// SPDX-License-Identifier: MIT
#include <sstream>

#include "exchange/content_file.h"
#include "exchange/content_writer.h"
#include "exchange/differences.h"
#include "fuzz/targets.h"
#include "lists/csv_variables.h"
#include "lists/plcopen_variables.h"

/// What the imports read.
namespace hx::fuzz {

namespace {

class Variables : public lists::VariableReceiver {
  public:
    void take(const lists::ListedVariable& variable) override { require(variable.line > 0, "a variable has a line"); }
    void note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) override {
        require(!say(automation::Language::english, sentence, names).empty(), "a note says something");
    }
    void reach(std::int64_t done, std::int64_t total) override {
        require(done <= total, "no more is read than there is");
    }
};

}  // namespace

// What was written is read back as it was.
void json(std::string_view bytes) {
    exchange::Content content;
    if (!accepted([&] { content = exchange::parseContent(fileOf(bytes)); })) return;
    std::string once;
    if (!accepted([&] { once = exchange::exportOf(content); })) return;
    const exchange::Content again = exchange::parseContent(fileOf(once));
    require(exchange::exportOf(again) == once, "an export is read as it was written");
    require(exchange::compare(content, again, {}).empty(), "an export leaves nothing out");
}

void csv(std::string_view bytes) {
    Variables variables;
    (void)accepted([&] { lists::readCsvVariables(fileOf(bytes), {}, variables); });
}

void plcopen(std::string_view bytes) {
    Variables variables;
    (void)accepted([&] { lists::readPlcopenVariables(fileOf(bytes), {255, 20, 255}, variables); });
}

}  // namespace hx::fuzz
