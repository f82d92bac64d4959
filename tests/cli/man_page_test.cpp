// SPDX-License-Identifier: MIT
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "every_command.h"

namespace hx::cli {

namespace {

using Words = std::vector<std::string>;

/// What a command takes.
struct Usage {
    std::set<std::string> options;
    Words operands;
    bool operator==(const Usage&) const = default;
};

/// By the command's name; the empty one stands for hxrecipe without a command.
using Usages = std::map<std::string, Usage>;

std::ostream& operator<<(std::ostream& stream, const Usage& usage) {
    for (const std::string& option : usage.options) stream << option << " ";
    for (const std::string& operand : usage.operands) stream << operand << " ";
    return stream;
}

Usage usageOf(const CLI::App& app) {
    Usage usage;
    for (const CLI::Option* option : app.get_options()) {
        if (!option->nonpositional()) usage.operands.push_back(option->get_name(true));
        for (const std::string& name : option->get_lnames()) usage.options.insert("--" + name);
    }
    return usage;
}

Usages usagesOfProgram() {
    Program program;
    Usages usages{{"", usageOf(*program.app)}};
    forEachCommand(*program.app, [&](const std::string& name, const CLI::App& command) {
        usages[name] = usageOf(command);
        // Said once, for all of them.
        EXPECT_EQ(usages[name].options.erase("--help"), 1U) << name;
    });
    return usages;
}

Words wordsOf(const std::string& line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

bool isMacro(const std::string& word) {
    static const std::set<std::string> macros = {"Ar", "Cm", "Fl", "Oc", "Oo", "Op"};
    return macros.contains(word);
}

/// Reads the macros of the page: `Fl -json` is an option, `Ar FILE` an operand unless it is the value of an option, and
/// a command begins with `.It Nm Cm`.
class PageReader {
  public:
    Usages read(std::istream& page) {
        for (std::string line; std::getline(page, line);) {
            if (!line.starts_with('.')) continue;
            const Words words = wordsOf(line.substr(1));
            if (words.empty()) continue;
            if (words[0] == "Sh") enter(words.back() == "SYNOPSIS" ? &usages_[""] : nullptr);
            if (words[0] == "Ss") enter(nullptr);
            if (line.starts_with(".It Nm Cm ")) readHeading(words);
            if (usage_ != nullptr) readOptions(words);
        }
        return std::move(usages_);
    }

  private:
    void enter(Usage* usage) { usage_ = usage; }

    void readHeading(const Words& words) {
        std::size_t at = 3;
        std::string name;
        for (; at < words.size() && !isMacro(words[at]); ++at) name += (name.empty() ? "" : " ") + words[at];
        EXPECT_FALSE(usages_.contains(name)) << name << " is there twice";
        enter(&usages_[name]);
        bool isValue = false;
        for (; at < words.size(); ++at) {
            if (words[at] == "Fl") {
                isValue = true;  // the first word behind `Fl -name Ar`
                ++at;
            } else if (!isMacro(words[at]) && words[at] != "...") {
                if (!isValue) usage_->operands.push_back(words[at]);
                isValue = false;
            } else if (words[at] == "Oc") {
                isValue = false;
            }
        }
    }

    void readOptions(const Words& words) {
        for (std::size_t i = 0; i + 1 < words.size(); ++i) {
            if (words[i] == "Fl") usage_->options.insert("-" + words[i + 1]);
        }
    }

    Usages usages_;
    Usage* usage_ = nullptr;
};

TEST(ManPage, NamesTheCommandsOptionsAndOperandsOfTheProgramAndNoOthers) {
    std::ifstream file(HX_MAN_PAGE);
    ASSERT_TRUE(file) << HX_MAN_PAGE;
    const Usages page = PageReader().read(file);
    const Usages program = usagesOfProgram();
    for (const auto& [name, usage] : program) {
        ASSERT_TRUE(page.contains(name)) << name << " is not on the page";
        EXPECT_EQ(page.at(name), usage) << "of " << name << ", on the page and in the program";
    }
    for (const auto& [name, usage] : page) EXPECT_TRUE(program.contains(name)) << name << " is on the page alone";
    EXPECT_GT(program.size(), 10U);
}

}  // namespace

}  // namespace hx::cli
