// SPDX-License-Identifier: MIT
#include "adapters/com/class_context.h"

#include "adapters/com/failure.h"
#include "adapters/com/text.h"

namespace hx::com {

namespace {

constexpr automation::Sentence notDescribed{"The file %1 describes no add-in: %2",
                                            "Die Datei %1 beschreibt kein Add-in: %2"};

// The system's own words name no file.
[[noreturn]] void failFor(const std::wstring& library) {
    const HRESULT result = HRESULT_FROM_WIN32(GetLastError());
    try {
        fail(result);
    } catch (const automation::Error& error) {
        throw automation::Error(result, notDescribed, {toUtf8(library), error.description()});
    }
}

}  // namespace

ClassContext::ClassContext(const std::wstring& library) {
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.lpSource = library.c_str();
    description.lpResourceName = MAKEINTRESOURCEW(descriptionOfClasses);
    context_ = CreateActCtxW(&description);
    if (context_ == INVALID_HANDLE_VALUE) failFor(library);
    if (ActivateActCtx(context_, &cookie_) != FALSE) return;
    ReleaseActCtx(context_);
    failFor(library);
}

ClassContext::~ClassContext() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
}

}  // namespace hx::com
