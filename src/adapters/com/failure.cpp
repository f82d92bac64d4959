// SPDX-License-Identifier: MIT
#include "adapters/com/failure.h"

#include <memory>
#include <oleauto.h>

#include "adapters/com/pointer.h"
#include "adapters/com/text.h"
#include "automation/text.h"

namespace hx::com {

namespace {

constexpr automation::Sentence numbered{"The error %1", "Der Fehler %1"};

std::string hexadecimal(HRESULT number) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "0x";
    for (int shift = 28; shift >= 0; shift -= 4) text += digits[static_cast<std::uint32_t>(number) >> shift & 15];
    return text;
}

// What the system says of a number; a sentence with the number itself where it says nothing.
automation::Error systemError(HRESULT number) {
    constexpr DWORD how = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    wchar_t text[512];
    const DWORD length = FormatMessageW(how, nullptr, static_cast<DWORD>(number), 0, text, std::size(text), nullptr);
    const std::string said = toUtf8({text, length});
    const std::string_view sentence = automation::trim(said);
    if (sentence.empty()) return {number, numbered, {hexadecimal(number)}};
    return {number, std::string(sentence)};
}

/// What a call says of its failure, freed afterwards.
struct Said {
    explicit Said(EXCEPINFO& given) : exception(given) {
        if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
    }
    ~Said() { clear(exception); }
    Said(const Said&) = delete;
    Said& operator=(const Said&) = delete;

    // A number of the old kind is one of the interface's own.
    [[nodiscard]] HRESULT number() const {
        if (exception.scode != 0) return exception.scode;
        return exception.wCode != 0 ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, exception.wCode) : E_FAIL;
    }

    EXCEPINFO& exception;
};

// Of a call that is not made by name.
std::string descriptionOfThread() {
    Pointer<IErrorInfo> info;
    if (GetErrorInfo(0, reinterpret_cast<IErrorInfo**>(info.out())) != S_OK) return {};
    BSTR text = nullptr;
    if (FAILED(info->GetDescription(&text))) return {};
    const std::unique_ptr<wchar_t, decltype(&SysFreeString)> owned(text, &SysFreeString);
    return textOf(text);
}

automation::Error errorOf(HRESULT number, const std::string& description) {
    return description.empty() ? systemError(number) : automation::Error(number, description);
}

}  // namespace

HRESULT tellCaughtError(EXCEPINFO* exception, LCID locale) noexcept {
    try {
        const automation::Error error = automation::caughtError();
        if (exception == nullptr) return error.number();
        const bool isGerman = PRIMARYLANGID(LANGIDFROMLCID(ConvertDefaultLocale(locale))) == LANG_GERMAN;
        *exception = {};
        exception->scode = error.number();
        exception->bstrSource = makeBstr("HXRecipeEditor");
        exception->bstrDescription =
            makeBstr(error.description(isGerman ? automation::Language::german : automation::Language::english));
        return DISP_E_EXCEPTION;
    } catch (...) {  // no memory for the text
        return E_OUTOFMEMORY;
    }
}

void clear(EXCEPINFO& exception) noexcept {
    for (BSTR text : {exception.bstrSource, exception.bstrDescription, exception.bstrHelpFile}) SysFreeString(text);
    exception = {};
}

void fail(HRESULT result, EXCEPINFO* exception) {
    if (result != DISP_E_EXCEPTION || exception == nullptr) throw errorOf(result, descriptionOfThread());
    const Said said(*exception);
    throw errorOf(said.number(), textOf(said.exception.bstrDescription));
}

}  // namespace hx::com
