// SPDX-License-Identifier: MIT
#include "ado/errors.h"

#include <gtest/gtest.h>

#include "ado/row_edit.h"
#include "support/error_of.h"

namespace hx::ado {
namespace {

using automation::Error;
using automation::Language;
using automation::Variant;
using support::errorOf;

TEST(AdoErrors, AreToldInGermanToo) {
    const Error closed = errorOf([] { throwObjectClosed(); });
    EXPECT_EQ(closed.number(), adErrObjectClosed);
    EXPECT_EQ(closed.description(), "Operation is not allowed when the object is closed.");
    EXPECT_EQ(closed.description(Language::german), "Der Vorgang ist bei einem geschlossenen Objekt nicht zugelassen.");
    for (void (*const fail)() : {throwObjectOpen, throwNoCurrentRecord, throwIllegalOperation, throwInvalidConnection,
                                 throwItemNotFound, throwDeletedRow}) {
        const Error error = errorOf(fail);
        EXPECT_NE(error.description(Language::german), error.description());
    }
    EXPECT_NE(errorOf([] { throwRowChanged("Name"); }).description(Language::german).find("\"Name\""),
              std::string::npos);
}

TEST(AdoErrors, TellInBothLanguagesWhyAValueDoesNotFit) {
    Column column{.name = "VarRecipe", .type = adVarWChar, .definedSize = 3};
    const Error tooLong = errorOf([&] { (void)convertFor(column, Variant("abcd")); });
    EXPECT_EQ(tooLong.description(),
              "The value does not fit the column \"VarRecipe\": the text is longer than 3 characters.");
    EXPECT_EQ(tooLong.description(Language::german),
              "Der Wert passt nicht in die Spalte \"VarRecipe\": der Text ist länger als 3 Zeichen.");
    column.type = adInteger;
    EXPECT_EQ(errorOf([&] { (void)convertFor(column, Variant("x")); }).description(Language::german),
              "Der Wert passt nicht in die Spalte \"VarRecipe\": Typen unverträglich: \"x\" ist keine Zahl.");
}

}  // namespace
}  // namespace hx::ado
