// SPDX-License-Identifier: MIT
#include "mutation.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

/// What the code that ran since the last test has asked for; statics may ask before main.
std::set<int>& reached() {
    static std::set<int> numbers;
    return numbers;
}

/// Writes which test reaches which changes, a line a test, to the file that HX_MUTATION_RECORD names.
class Recorder : public testing::EmptyTestEventListener {
  public:
    explicit Recorder(const char* file) : out_(file) {}

  private:
    void OnTestStart(const testing::TestInfo&) override { note("*"); }
    void OnTestEnd(const testing::TestInfo& test) override {
        note(std::string(test.test_suite_name()) + "." + test.name());
    }
    void note(const std::string& test) {
        out_ << test;
        for (const int number : reached()) out_ << ' ' << number;
        out_ << std::endl;
        reached().clear();
    }

    std::ofstream out_;
};

bool startRecording() {
    const char* const file = std::getenv("HX_MUTATION_RECORD");
    if (file != nullptr) testing::UnitTest::GetInstance()->listeners().Append(new Recorder(file));
    return file != nullptr;
}

}  // namespace

bool hxMutant(int n) noexcept {
    static const char* const text = std::getenv("HX_MUTANT");
    static const int chosen = text != nullptr ? std::atoi(text) : -1;
    static const bool recording = startRecording();
    if (recording) reached().insert(n);
    return n == chosen;
}
