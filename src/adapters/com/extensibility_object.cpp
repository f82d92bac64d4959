// SPDX-License-Identifier: MIT
#include "adapters/com/extensibility_object.h"

#include <oleauto.h>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"

namespace hx::com {

namespace {

host::NodeEvent eventOf(BSTR owner, BSTR key, BSTR text) { return {textOf(owner), textOf(key), textOf(text)}; }

// The studio's own object, or one of ours that comes back.
std::shared_ptr<host::ProjectExplorer> explorerOf(IDispatch* object, Border& border) {
    return object == nullptr ? nullptr : std::make_shared<Explorer>(object, border);
}

}  // namespace

Pointer<ITypeInfo> typesOf(const IID& iid, const std::wstring& file) {
    Pointer<ITypeLib> library;
    require(LoadTypeLibEx(file.c_str(), REGKIND_NONE, reinterpret_cast<ITypeLib**>(library.out())));
    Pointer<ITypeInfo> types;
    require(library->GetTypeInfoOfGuid(iid, reinterpret_cast<ITypeInfo**>(types.out())));
    return types;
}

ExtensibilityObject::ExtensibilityObject(std::shared_ptr<host::CHX4Extensibility> addIn, Pointer<ITypeInfo> types,
                                         Border& border)
    : addIn_(std::move(addIn)),
      types_(std::move(types)),
      border_(border),
      byName_(Pointer<Object>::adopt(new Object(addIn_, border))) {
    border_.enter(this, addIn_);
}

HRESULT ExtensibilityObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT ExtensibilityObject::GetTypeInfo(UINT number, LCID, ITypeInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = number == 0 ? Pointer<ITypeInfo>(types_).release() : nullptr;
    return number == 0 ? S_OK : DISP_E_BADINDEX;
}

// The interface's members have arguments with names.
HRESULT ExtensibilityObject::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) {
    const HRESULT result = DispGetIDsOfNames(types_.get(), names, count, ids);
    if (result != DISP_E_UNKNOWNNAME || isInInterface(ids[0])) return result;
    return byName_->GetIDsOfNames(iid, names, count, locale, ids);
}

bool ExtensibilityObject::isInInterface(DISPID id) const noexcept {
    constexpr DISPID last = 14;
    return id >= 1 && id <= last;
}

HRESULT ExtensibilityObject::Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                    VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!isInInterface(id)) {
        return byName_->Invoke(id, iid, locale, how, parameters, result, exception, wrongArgument);
    }
    // A script calls what it could also read.
    const auto called = static_cast<WORD>(how & ~DISPATCH_PROPERTYGET);
    return DispInvoke(static_cast<::CHX4Extensibility*>(this), types_.get(), id, called, parameters, result, exception,
                      wrongArgument);
}

template <class Action>
HRESULT ExtensibilityObject::tell(const Action& action) noexcept {
    const Pointer<ExtensibilityObject> alive(this);
    // The add-in has told the user of its errors; what else there is, want of memory, is not the studio's either.
    (void)guarded([&] {
        action();
        return S_OK;
    });
    return S_OK;
}

HRESULT ExtensibilityObject::Initialize(BSTR projectName, BSTR second, IDispatch* explorer, IDispatch* fourth) {
    return tell([&] {
        const auto before = std::exchange(explorer_, explorerOf(explorer, border_));  // in use until the next is known
        addIn_->Initialize(textOf(projectName), textOf(second), explorer_.get(), border_.take(fourth));
    });
}

HRESULT ExtensibilityObject::StartupComplete() {
    return tell([&] { addIn_->StartupComplete(); });
}

HRESULT ExtensibilityObject::Terminate() {
    return tell([&] {
        addIn_->Terminate();
        explorer_.reset();
    });
}

HRESULT ExtensibilityObject::Deactivate() {
    return tell([&] { addIn_->Deactivate(); });
}

HRESULT ExtensibilityObject::NodeClick(BSTR owner, BSTR key, BSTR text) {
    return tell([&] { addIn_->NodeClick(eventOf(owner, key, text)); });
}

HRESULT ExtensibilityObject::NodeDblClick(BSTR owner, BSTR key, BSTR text) {
    return tell([&] { addIn_->NodeDblClick(eventOf(owner, key, text)); });
}

HRESULT ExtensibilityObject::NodeExpand(BSTR owner, BSTR key, BSTR text) {
    return tell([&] { addIn_->NodeExpand(eventOf(owner, key, text)); });
}

HRESULT ExtensibilityObject::NodeMouseDown(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                           double y) {
    return tell([&] { addIn_->NodeMouseDown(eventOf(owner, key, text), {button, shift, x, y}); });
}

HRESULT ExtensibilityObject::NodeMouseMove(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                           double y) {
    return tell([&] { addIn_->NodeMouseMove(eventOf(owner, key, text), {button, shift, x, y}); });
}

HRESULT ExtensibilityObject::NodeMouseUp(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                         double y) {
    return tell([&] { addIn_->NodeMouseUp(eventOf(owner, key, text), {button, shift, x, y}); });
}

HRESULT ExtensibilityObject::NodeKeyDown(BSTR owner, BSTR key, BSTR text, short keyCode, short shift) {
    return tell([&] { addIn_->NodeKeyDown(eventOf(owner, key, text), keyCode, shift); });
}

HRESULT ExtensibilityObject::NodeKeyPress(BSTR owner, BSTR key, BSTR text, LONG character) {
    return tell([&] { addIn_->NodeKeyPress(eventOf(owner, key, text), character); });
}

HRESULT ExtensibilityObject::NodeKeyUp(BSTR owner, BSTR key, BSTR text, short keyCode, short shift) {
    return tell([&] { addIn_->NodeKeyUp(eventOf(owner, key, text), keyCode, shift); });
}

HRESULT ExtensibilityObject::GetMessage(BSTR sender, BSTR message, VARIANT parameter, VARIANT* result) {
    if (result == nullptr) return E_POINTER;
    *result = {};
    return tell(
        [&] { border_.give(addIn_->GetMessage(textOf(sender), textOf(message), border_.take(parameter)), *result); });
}

}  // namespace hx::com
