// SPDX-License-Identifier: MIT
#include "adapters/com/border.h"

#include <gmock/gmock.h>
#include <oleauto.h>

#include "adapters/com/array.h"
#include "adapters/com/text.h"
#include "apartment.h"
#include "automation/convert.h"
#include "plant.h"
#include "support/error_of.h"

namespace hx::com {
namespace {

using automation::Variant;

class BorderTest : public ApartmentTest {
  protected:
    Variant thereAndBack(const Variant& value) {
        Value given;
        border.give(value, given);
        return border.take(given);
    }
    Variant taken(VARTYPE kind, auto VARIANT::*member, auto number) {
        Value value;
        value.vt = kind;
        value.*member = number;
        return border.take(value);
    }
};

TEST_F(BorderTest, GivesBackEveryKindOfValueAsItWas) {
    const std::string zeros("a\0b", 3);
    for (const Variant& value :
         {Variant(), Variant(automation::Null{}), Variant(true), Variant(false), Variant(std::int16_t{-32768}),
          Variant(std::int32_t{2147483647}), Variant(-1.5), Variant(""), Variant("Rezept äöü € 😀"), Variant(zeros),
          Variant(automation::ObjectRef())}) {
        EXPECT_EQ(thereAndBack(value), value) << automation::toText(value);
    }
}

TEST_F(BorderTest, GivesTheKindsThatCOMHasForThem) {
    const auto kindOf = [this](const Variant& value) {
        Value given;
        border.give(value, given);
        return given.vt;
    };
    EXPECT_EQ(kindOf({}), VT_EMPTY);
    EXPECT_EQ(kindOf(automation::Null{}), VT_NULL);
    EXPECT_EQ(kindOf(true), VT_BOOL);
    EXPECT_EQ(kindOf(std::int16_t{1}), VT_I2);
    EXPECT_EQ(kindOf(1), VT_I4);
    EXPECT_EQ(kindOf(1.0), VT_R8);
    EXPECT_EQ(kindOf("a"), VT_BSTR);
    EXPECT_EQ(kindOf(automation::ObjectRef()), VT_DISPATCH);
    Value given;
    border.give(true, given);
    EXPECT_EQ(given.boolVal, -1);
}

TEST_F(BorderTest, TakesNumbersAsTheNarrowestKindThatHoldsThem) {
    EXPECT_EQ(taken(VT_I1, &VARIANT::cVal, CHAR{-5}), Variant(std::int16_t{-5}));
    EXPECT_EQ(taken(VT_UI1, &VARIANT::bVal, BYTE{200}), Variant(std::int16_t{200}));
    EXPECT_EQ(taken(VT_UI2, &VARIANT::uiVal, USHORT{65535}), Variant(65535));
    EXPECT_EQ(taken(VT_INT, &VARIANT::intVal, -7), Variant(-7));
    EXPECT_EQ(taken(VT_UI4, &VARIANT::ulVal, ULONG{7}), Variant(7));
    EXPECT_EQ(taken(VT_UI4, &VARIANT::ulVal, ULONG{4294967295}), Variant(4294967295.0));
    EXPECT_EQ(taken(VT_UINT, &VARIANT::uintVal, UINT{8}), Variant(8));
    EXPECT_EQ(taken(VT_I8, &VARIANT::llVal, LONGLONG{-9}), Variant(-9));
    EXPECT_EQ(taken(VT_I8, &VARIANT::llVal, LONGLONG{1} << 40), Variant(1099511627776.0));
    EXPECT_EQ(taken(VT_UI8, &VARIANT::ullVal, ULONGLONG{1} << 40), Variant(1099511627776.0));
    EXPECT_EQ(taken(VT_R4, &VARIANT::fltVal, 0.5F), Variant(0.5));
}

TEST_F(BorderTest, TakesCurrenciesDatesAndDecimalsAsDoubles) {
    CY money{};
    money.int64 = -123456789;
    EXPECT_EQ(taken(VT_CY, &VARIANT::cyVal, money), Variant(-12345.6789));
    EXPECT_EQ(taken(VT_DATE, &VARIANT::date, 45678.25), Variant(45678.25));
    Value decimal;
    ASSERT_EQ(VarDecFromR8(1234.5, &decimal.decVal), S_OK);
    decimal.vt = VT_DECIMAL;
    EXPECT_EQ(border.take(decimal), Variant(1234.5));
}

TEST_F(BorderTest, TakesWhatLiesBehindAReference) {
    LONG number = 5;
    EXPECT_EQ(taken(VT_BYREF | VT_I4, &VARIANT::plVal, &number), Variant(5));
    VARIANT_BOOL truth = VARIANT_TRUE;
    EXPECT_EQ(taken(VT_BYREF | VT_BOOL, &VARIANT::pboolVal, &truth), Variant(true));
    BSTR text = makeBstr("Süd");
    EXPECT_EQ(taken(VT_BYREF | VT_BSTR, &VARIANT::pbstrVal, &text), Variant("Süd"));
    SysFreeString(text);
    VARIANT inner{};
    inner.vt = VT_BYREF | VT_I4;
    inner.plVal = &number;
    EXPECT_EQ(taken(VT_BYREF | VT_VARIANT, &VARIANT::pvarVal, &inner), Variant(5));
    Value nowhere;
    nowhere.vt = VT_BYREF | VT_I4;
    EXPECT_EQ(support::errorOf([&] { (void)border.take(nowhere); }).number(), automation::errTypeMismatch);
}

TEST_F(BorderTest, TakesAnArgumentThatIsLeftOutAsEmptyAndOtherErrorsAsErrors) {
    EXPECT_EQ(taken(VT_ERROR, &VARIANT::scode, DISP_E_PARAMNOTFOUND), Variant());
    EXPECT_EQ(support::errorOf([&] { (void)taken(VT_ERROR, &VARIANT::scode, E_ACCESSDENIED); }).number(),
              E_ACCESSDENIED);
}

TEST_F(BorderTest, RefusesWhatItDoesNotKnow) {
    Value record;
    record.vt = VT_CLSID;
    EXPECT_EQ(support::errorOf([&] { (void)border.take(record); }).number(), automation::errTypeMismatch);
    record.vt = VT_EMPTY;
}

TEST_F(BorderTest, TakesArraysOfAnyKindFromTheirFirstNumber) {
    SAFEARRAYBOUND bounds{2, 10};
    SAFEARRAY* const texts = SafeArrayCreate(VT_BSTR, 1, &bounds);
    for (LONG i = 10; i < 12; ++i) {
        BSTR text = makeBstr("t" + std::to_string(i));
        ASSERT_EQ(SafeArrayPutElement(texts, &i, text), S_OK);
        SysFreeString(text);
    }
    Value value;
    value.vt = VT_ARRAY | VT_BSTR;
    value.parray = texts;
    const Variant list = border.take(value);
    EXPECT_EQ(list.asObject()->get("Count"), Variant(2));
    EXPECT_EQ(list.asObject()->get("Item", std::vector<Variant>{1}), Variant("t11"));
    EXPECT_EQ(support::errorOf([&] { list.asObject()->get("Item", std::vector<Variant>{2}); }).number(),
              automation::errBadIndex);
}

TEST_F(BorderTest, GivesBackArraysWithWhatIsInThem) {
    const auto array = std::make_shared<Array>(
        std::vector<Variant>{"a", 2, automation::ObjectRef(std::make_shared<Array>(std::vector<Variant>{true}))});
    const Variant back = thereAndBack(automation::ObjectRef(array));
    const auto* const items = dynamic_cast<const Array*>(back.asObject().get());
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(items->item(0), Variant("a"));
    EXPECT_EQ(items->item(1), Variant(2));
    EXPECT_EQ(items->item(2).asObject()->get("Item", std::vector<Variant>{0}), Variant(true));
}

TEST_F(BorderTest, RefusesArraysOfSeveralDimensions) {
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    Value value;
    value.vt = VT_ARRAY | VT_I4;
    value.parray = SafeArrayCreate(VT_I4, 2, bounds);
    EXPECT_EQ(support::errorOf([&] { (void)border.take(value); }).number(), automation::errTypeMismatch);
}

TEST_F(BorderTest, AnObjectThatComesBackIsTheOneThatItWas) {
    const auto plant = std::make_shared<Plant>();
    EXPECT_EQ(thereAndBack(automation::ObjectRef(plant)).asObject(), plant);
    const auto given = border.give(plant);
    EXPECT_EQ(border.lifetime().objects, 1);
}

TEST_F(BorderTest, GivesAnObjectAsTheSameOneWhileSomebodyHoldsIt) {
    const auto plant = std::make_shared<Plant>();
    const auto one = border.give(plant), other = border.give(plant);
    EXPECT_EQ(one.get(), other.get());
    EXPECT_EQ(border.lifetime().objects, 1);
}

TEST_F(BorderTest, GivesInPlaceOfOneOfOursWhatItStandsFor) {
    const auto ours = std::make_shared<Plant>(), theirs = std::make_shared<Plant>();
    const auto given = border.give(theirs);
    border.equate(ours, given);
    EXPECT_EQ(border.give(ours).get(), given.get());
    border.forget(ours);
    EXPECT_NE(border.give(ours).get(), given.get());
}

}  // namespace
}  // namespace hx::com
