// SPDX-License-Identifier: MIT
#include "adapters/com/object.h"

#include <array>
#include <gmock/gmock.h>
#include <oleauto.h>

#include "adapters/com/text.h"
#include "apartment.h"
#include "plant.h"

namespace hx::com {
namespace {

constexpr LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
constexpr LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

/// What a call ends with; the texts are the test's to read.
struct Failure {
    HRESULT result = S_OK;
    SCODE number = 0;
    std::string description;
};

class ObjectTest : public ApartmentTest {
  protected:
    DISPID idOf(const wchar_t* name) {
        std::wstring text = name;
        LPOLESTR names = text.data();
        DISPID id = 0;
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &names, 1, english, &id), S_OK);
        return id;
    }
    HRESULT invoke(const wchar_t* name, WORD how, DISPPARAMS parameters, VARIANT* result = nullptr) {
        return object->Invoke(idOf(name), IID_NULL, english, how, &parameters, result, nullptr, nullptr);
    }
    Failure failure(const wchar_t* name, LCID locale, DISPPARAMS parameters) {
        EXCEPINFO exception{};
        Failure failure;
        failure.result =
            object->Invoke(idOf(name), IID_NULL, locale, DISPATCH_METHOD, &parameters, nullptr, &exception, nullptr);
        failure.number = exception.scode;
        failure.description = textOf(exception.bstrDescription);
        for (BSTR text : {exception.bstrSource, exception.bstrDescription}) SysFreeString(text);
        return failure;
    }
    static VARIANT number(LONG value) {
        VARIANT variant{};
        variant.vt = VT_I4;
        variant.lVal = value;
        return variant;
    }

    std::shared_ptr<Plant> plant = std::make_shared<Plant>();
    Pointer<IDispatch> object = border.give(plant);

  private:
    void TearDown() override {
        object = {};
        ApartmentTest::TearDown();
    }
};

TEST_F(ObjectTest, NumbersItsMembersByTheirPlacesInTheTables) {
    EXPECT_EQ(idOf(L"Name"), 1);
    EXPECT_EQ(idOf(L"Value"), 0x10001);
    EXPECT_EQ(idOf(L"COUNT"), 0x10002);
    std::wstring unknown = L"Nothing";
    LPOLESTR names = unknown.data();
    DISPID id = 0;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &names, 1, english, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(ObjectTest, ReadsAndAssignsProperties) {
    VARIANT text{};
    text.vt = VT_BSTR;
    text.bstrVal = makeBstr("Süd");
    DISPID put = DISPID_PROPERTYPUT;
    EXPECT_EQ(invoke(L"Name", DISPATCH_PROPERTYPUT, {&text, &put, 1, 1}), S_OK);
    VariantClear(&text);
    EXPECT_EQ(plant->name(), "Süd");
    Value read;
    EXPECT_EQ(invoke(L"Name", DISPATCH_PROPERTYGET, {}, &read), S_OK);
    EXPECT_EQ(textOf(read.bstrVal), "Süd");
}

TEST_F(ObjectTest, AssignsAnItemWithItsIndex) {
    std::array<VARIANT, 2> args{number(5), number(1)};  // the value first, the index last
    DISPID put = DISPID_PROPERTYPUT;
    EXPECT_EQ(invoke(L"Item", DISPATCH_PROPERTYPUT, {args.data(), &put, 2, 1}), S_OK);
    EXPECT_EQ(plant->item(1), automation::Variant(5));
    args[0] = number(6);
    EXPECT_EQ(invoke(L"Item", DISPATCH_PROPERTYPUT, {args.data(), nullptr, 2, 0}), S_OK);
    EXPECT_EQ(plant->item(1), automation::Variant(6)) << "the value is not named";
}

TEST_F(ObjectTest, TakesArgumentsFromTheLastToTheFirstAndNamedOnesByTheirNumbers) {
    std::array<VARIANT, 3> args{number(3), number(2), number(1)};
    Value result;
    EXPECT_EQ(invoke(L"Join", DISPATCH_METHOD, {args.data(), nullptr, 3, 0}, &result), S_OK);
    EXPECT_EQ(textOf(result.bstrVal), "1,2,3");
    Value named;
    std::array<DISPID, 2> names{2, 1};  // the third, the second; the first has no name
    EXPECT_EQ(invoke(L"Join", DISPATCH_METHOD, {args.data(), names.data(), 3, 2}, &named), S_OK);
    EXPECT_EQ(textOf(named.bstrVal), "1,2,3");
    names = {5, 1};
    EXPECT_EQ(invoke(L"Join", DISPATCH_METHOD, {args.data(), names.data(), 3, 2}), automation::errBadParamCount);
}

TEST_F(ObjectTest, TellsErrorsWithNumberAndDescriptionInTheCallersLanguage) {
    VARIANT code = number(-2147217873);
    const Failure inEnglish = failure(L"Fail", english, {&code, nullptr, 1, 0});
    EXPECT_EQ(inEnglish.result, DISP_E_EXCEPTION);
    EXPECT_EQ(inEnglish.number, -2147217873);
    EXPECT_EQ(inEnglish.description, "Refused");
    EXPECT_EQ(failure(L"Fail", german, {&code, nullptr, 1, 0}).description, "Verweigert: ä");
    EXPECT_EQ(invoke(L"Fail", DISPATCH_METHOD, {&code, nullptr, 1, 0}), -2147217873) << "nobody asks for more";
}

TEST_F(ObjectTest, LetsNoExceptionOut) {
    const Failure strange = failure(L"FailStrangely", english, {});
    EXPECT_EQ(strange.result, DISP_E_EXCEPTION);
    EXPECT_EQ(strange.number, automation::errFail);
    EXPECT_EQ(strange.description, "strange");
}

TEST_F(ObjectTest, RefusesWrongUse) {
    DISPPARAMS none{};
    VARIANT one = number(1);
    DISPID put = DISPID_PROPERTYPUT;
    EXPECT_EQ(object->Invoke(4711, IID_NULL, english, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->Invoke(0, IID_NULL, english, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->Invoke(1, IID_IUnknown, english, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(invoke(L"Count", DISPATCH_PROPERTYPUT, {&one, &put, 1, 1}), automation::errMemberNotFound);
    EXPECT_EQ(invoke(L"Join", DISPATCH_METHOD, {&one, nullptr, 1, 0}), automation::errBadParamCount);
    EXPECT_EQ(invoke(L"Name", DISPATCH_PROPERTYPUT, {}), automation::errBadParamCount);
}

TEST_F(ObjectTest, HasTheInterfacesOfAnObjectReachedByNameAndNoOther) {
    EXPECT_TRUE(Pointer<IUnknown>::of(object.get(), IID_IUnknown));
    EXPECT_TRUE(Pointer<IDispatch>::of(object.get(), IID_IDispatch));
    EXPECT_FALSE(Pointer<IUnknown>::of(object.get(), IID_IClassFactory));
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ObjectTest, LivesWhileSomebodyHoldsIt) {
    const std::weak_ptr<Plant> seen = plant;
    plant.reset();
    EXPECT_FALSE(seen.expired());
    Pointer<IDispatch> second = object;
    object = {};
    EXPECT_FALSE(seen.expired());
    EXPECT_EQ(border.lifetime().objects, 1);
    second = {};
    EXPECT_TRUE(seen.expired());
    EXPECT_EQ(border.lifetime().objects, 0);
}

}  // namespace
}  // namespace hx::com
