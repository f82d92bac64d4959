// SPDX-License-Identifier: MIT
#include "adapters/com/foreign_object.h"

#include <oleauto.h>
#include <vector>

#include "adapters/com/cleared.h"
#include "adapters/com/failure.h"
#include "adapters/com/text.h"

namespace hx::com {

namespace {

/// Arguments in COM's order, the last one first.
class Arguments {
  public:
    Arguments(Border& border, automation::Args args, const automation::Variant* assigned = nullptr) {
        values_.resize(args.size() + (assigned != nullptr ? 1 : 0));
        std::size_t at = values_.size();
        for (const automation::Variant& argument : args) border.give(argument, values_[--at]);
        if (assigned != nullptr) border.give(*assigned, values_[0]);
    }
    ~Arguments() {
        for (VARIANT& value : values_) VariantClear(&value);
    }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    [[nodiscard]] DISPPARAMS parameters(DISPID* named = nullptr) {
        return {values_.data(), named, static_cast<UINT>(values_.size()), named != nullptr ? 1U : 0U};
    }
    [[nodiscard]] VARTYPE firstKind() const { return values_[0].vt; }

  private:
    std::vector<VARIANT> values_;
};

HRESULT invoke(IDispatch& object, DISPID id, int how, DISPPARAMS parameters, VARIANT* result, EXCEPINFO& exception) {
    UINT wrong = 0;
    exception = {};
    return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(how), &parameters, result, &exception,
                         &wrong);
}

// "Function expected", as scripts say it of a property that is none; of a plain value those of Wine fail without a
// word.
bool refusesToBeCalled(HRESULT code, EXCEPINFO& exception) {
    constexpr auto functionExpected = static_cast<SCODE>(0x800A138A);
    if (code != DISP_E_EXCEPTION) return code == DISP_E_MEMBERNOTFOUND || code == functionExpected || code == E_FAIL;
    if (exception.scode != functionExpected) return false;
    clear(exception);
    return true;
}

}  // namespace

ForeignObject::ForeignObject(IDispatch* object, Border& border)
    : object_(object), border_(border), counted_(border.lifetime().foreignObjects) {}

const automation::MemberTable& ForeignObject::members() const {
    static constexpr automation::MemberTable none{"Object", {}};
    return none;
}

DISPID ForeignObject::idOf(std::string_view name) {
    const auto [known, isNew] = ids_.try_emplace(std::string(name), DISPID_UNKNOWN);
    if (!isNew) return known->second;
    std::wstring wide = toWide(name);
    LPOLESTR names = wide.data();
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &known->second);
    if (SUCCEEDED(result)) return known->second;
    ids_.erase(known);  // it may get such a member yet
    if (result != DISP_E_UNKNOWNNAME) fail(result);
    throw automation::Error(automation::errUnknownName, "The object has no member \"" + std::string(name) + "\"");
}

automation::Variant ForeignObject::get(std::string_view name, automation::Args args) {
    Arguments arguments(border_, args);
    const DISPID id = idOf(name);
    Cleared result;
    EXCEPINFO exception{};
    const auto ask = [&](int how) {
        return invoke(*object_.get(), id, how, arguments.parameters(), &result, exception);
    };
    HRESULT code = ask(DISPATCH_PROPERTYGET | DISPATCH_METHOD);
    // Some objects take what they could also call for a call alone.
    if (args.empty() && refusesToBeCalled(code, exception)) {
        const HRESULT read = ask(DISPATCH_PROPERTYGET);
        if (code != E_FAIL || SUCCEEDED(read)) code = read;
    }
    if (FAILED(code)) fail(code, &exception);
    return border_.take(static_cast<const VARIANT&>(result));
}

automation::Variant ForeignObject::read(std::string_view name) {
    Arguments none(border_, {});
    Cleared result;
    EXCEPINFO exception{};
    const HRESULT code =
        invoke(*object_.get(), idOf(name), DISPATCH_PROPERTYGET, none.parameters(), &result, exception);
    if (FAILED(code)) fail(code, &exception);
    return border_.take(static_cast<const VARIANT&>(result));
}

void ForeignObject::set(std::string_view name, const automation::Variant& value, automation::Args index) {
    Arguments arguments(border_, index, &value);
    DISPID named = DISPID_PROPERTYPUT;
    EXCEPINFO exception{};
    const auto assign = [&](int how) {
        return invoke(*object_.get(), idOf(name), how, arguments.parameters(&named), nullptr, exception);
    };
    // A property that holds an object is one to be set to a reference, or one that takes it as any other value.
    HRESULT code = arguments.firstKind() == VT_DISPATCH ? assign(DISPATCH_PROPERTYPUTREF) : DISP_E_MEMBERNOTFOUND;
    if (code == DISP_E_MEMBERNOTFOUND) code = assign(DISPATCH_PROPERTYPUT);
    if (FAILED(code)) fail(code, &exception);
}

}  // namespace hx::com
