// SPDX-License-Identifier: MIT
#include "adapters/com/extensibility_object.h"

#include <oleauto.h>
#include <vector>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"
#include "hosting/lent_services.h"

namespace hx::com {

namespace {

host::NodeEvent eventOf(BSTR owner, BSTR key, BSTR text) { return {textOf(owner), textOf(key), textOf(text)}; }

std::shared_ptr<Explorer> explorerOf(IDispatch* object, Border& border) {
    return object == nullptr ? nullptr : std::make_shared<Explorer>(object, border);
}

/// The arguments of a call as the interface's types want them: scripts say null where there is no object and no text.
class TypedArguments {
  public:
    TypedArguments(DISPID id, const DISPPARAMS& given)
        : values_(given.rgvarg, given.rgvarg + given.cArgs), given_(given) {
        for (UINT i = 0; i < given.cArgs; ++i) {
            if (values_[i].vt != VT_NULL) continue;
            values_[i] = {};
            values_[i].vt = id == initialize && placeOf(i) >= firstObject ? VT_DISPATCH : VT_BSTR;
        }
        given_.rgvarg = values_.data();
    }
    [[nodiscard]] DISPPARAMS* parameters() noexcept { return &given_; }

  private:
    static constexpr DISPID initialize = 1, firstObject = 2;
    // Named ones come first, the others from the last to the first.
    [[nodiscard]] DISPID placeOf(UINT i) const {
        return i < given_.cNamedArgs ? given_.rgdispidNamedArgs[i] : static_cast<DISPID>(given_.cArgs - 1 - i);
    }

    std::vector<VARIANT> values_;  // the caller's, not to be cleared
    DISPPARAMS given_;
};

}  // namespace

Pointer<ITypeInfo> typesOf(const IID& iid, const std::wstring& file) {
    Pointer<ITypeLib> library;
    require(LoadTypeLibEx(file.c_str(), REGKIND_NONE, reinterpret_cast<ITypeLib**>(library.out())));
    Pointer<ITypeInfo> types;
    require(library->GetTypeInfoOfGuid(iid, reinterpret_cast<ITypeInfo**>(types.out())));
    return types;
}

ExtensibilityObject::ExtensibilityObject(std::shared_ptr<host::CHX4Extensibility> addIn, Pointer<ITypeInfo> types,
                                         Border& border, Meet meet)
    : meet_(std::move(meet)),
      addIn_(std::move(addIn)),
      types_(std::move(types)),
      border_(border),
      byName_(Pointer<Object>::adopt(new Object(addIn_, border))) {
    border_.enter(this, addIn_);
}

ExtensibilityObject::~ExtensibilityObject() {
    border_.leave(this);
    border_.forget(shownExplorer_);
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
    if (parameters == nullptr) return E_INVALIDARG;
    if (!isInInterface(id)) {
        return byName_->Invoke(id, iid, locale, how, parameters, result, exception, wrongArgument);
    }
    // A script calls what it could also read.
    const auto called = static_cast<WORD>(how & ~DISPATCH_PROPERTYGET);
    return guarded([&] {
        TypedArguments arguments(id, *parameters);
        return DispInvoke(static_cast<::CHX4Extensibility*>(this), types_.get(), id, called, arguments.parameters(),
                          result, exception, wrongArgument);
    });
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
        if (meet_) meet_(explorer_.get());
        addIn_->Initialize(textOf(projectName), textOf(second), explorer_.get(), border_.take(fourth));
        // Who asks for the explorer gets the studio's own object.
        border_.forget(std::exchange(shownExplorer_, hosting::objectIfThere(*addIn_, "Explorer")));
        if (shownExplorer_ && explorer_) border_.equate(shownExplorer_, explorer_->reference());
    });
}

HRESULT ExtensibilityObject::StartupComplete() {
    return tell([&] { addIn_->StartupComplete(); });
}

HRESULT ExtensibilityObject::Terminate() {
    return tell([&] {
        addIn_->Terminate();
        letGoOfExplorer();
    });
}

void ExtensibilityObject::letGoOfExplorer() {
    border_.forget(std::exchange(shownExplorer_, nullptr));
    if (meet_) meet_(nullptr);
    explorer_.reset();
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
