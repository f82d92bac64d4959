// SPDX-License-Identifier: MIT
#include "automation/error.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

namespace hx::automation {
namespace {

constexpr Sentence lost{"%1 is lost.", "%1 ist verloren."};

template <class Thrown>
Error caught(const Thrown& thrown) {
    try {
        throw thrown;
    } catch (...) {
        return caughtError();
    }
}

TEST(Errors, AreToldInBothLanguages) {
    const Error error(7, lost, {"A"});
    EXPECT_EQ(error.message(Language::english), "7: A is lost.");
    EXPECT_EQ(error.message(Language::german), "7: A ist verloren.");
    EXPECT_STREQ(error.what(), "A is lost.");
    EXPECT_EQ(error.withNumber(8).message(Language::german), "8: A ist verloren.");
}

TEST(Errors, ThatAreDescribedInOneLanguageAreToldInIt) {
    EXPECT_EQ(Error(7, "Kaputt").message(Language::english), "7: Kaputt");
    EXPECT_EQ(Error(7, "Kaputt").message(Language::german), "7: Kaputt");
}

TEST(Errors, TellOfWantOfMemoryInTheUsersWords) {
    for (const Error& error : {caught(std::bad_alloc()), caught(std::bad_array_new_length()),
                               caught(std::length_error("basic_string::append"))}) {
        EXPECT_EQ(error.message(Language::english), "-2147024882: There is not enough memory.");
        EXPECT_EQ(error.message(Language::german), "-2147024882: Der Speicher reicht nicht aus.");
    }
}

TEST(Errors, TellOfEveryOtherException) {
    EXPECT_EQ(caught(Error(7, lost, {"A"})).message(Language::german), "7: A ist verloren.");
    EXPECT_EQ(caught(std::runtime_error("burst")).message(Language::german), "-2147467259: burst");
    EXPECT_EQ(caught(42).message(Language::english), "-2147467259: Unknown error");
    EXPECT_EQ(caught(42).message(Language::german), "-2147467259: Unbekannter Fehler");
}

}  // namespace
}  // namespace hx::automation
