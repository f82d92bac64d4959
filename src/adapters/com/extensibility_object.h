// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "adapters/com/explorer.h"
#include "adapters/com/extensibility_interface.h"
#include "adapters/com/object.h"
#include "host/extensibility.h"

namespace hx::com {

/// An add-in as a studio in any language calls it: by the slots of the interface, or by name, with arguments that may
/// be named. What the interface does not have and the add-in has is reached by name alone. No error reaches the studio.
class ExtensibilityObject : public Unknown<::CHX4Extensibility> {
  public:
    /// Hears of the explorer before the add-in does, and of its end (null) after it.
    using Meet = std::function<void(Explorer* explorer)>;

    /// `types` is what the type library says of the interface.
    ExtensibilityObject(std::shared_ptr<host::CHX4Extensibility> addIn, Pointer<ITypeInfo> types, Border& border,
                        Meet meet = {});
    ~ExtensibilityObject() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

    HRESULT STDMETHODCALLTYPE Initialize(BSTR projectName, BSTR second, IDispatch* explorer,
                                         IDispatch* fourth) override;
    HRESULT STDMETHODCALLTYPE StartupComplete() override;
    HRESULT STDMETHODCALLTYPE Terminate() override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE NodeClick(BSTR owner, BSTR key, BSTR text) override;
    HRESULT STDMETHODCALLTYPE NodeDblClick(BSTR owner, BSTR key, BSTR text) override;
    HRESULT STDMETHODCALLTYPE NodeExpand(BSTR owner, BSTR key, BSTR text) override;
    HRESULT STDMETHODCALLTYPE NodeMouseDown(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                            double y) override;
    HRESULT STDMETHODCALLTYPE NodeMouseMove(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                            double y) override;
    HRESULT STDMETHODCALLTYPE NodeMouseUp(BSTR owner, BSTR key, BSTR text, short button, short shift, double x,
                                          double y) override;
    HRESULT STDMETHODCALLTYPE NodeKeyDown(BSTR owner, BSTR key, BSTR text, short keyCode, short shift) override;
    HRESULT STDMETHODCALLTYPE NodeKeyPress(BSTR owner, BSTR key, BSTR text, LONG character) override;
    HRESULT STDMETHODCALLTYPE NodeKeyUp(BSTR owner, BSTR key, BSTR text, short keyCode, short shift) override;
    HRESULT STDMETHODCALLTYPE GetMessage(BSTR sender, BSTR message, VARIANT parameter, VARIANT* result) override;

  private:
    [[nodiscard]] bool has(REFIID iid) const noexcept override {
        return iid == IID_IDispatch || iid == __uuidof(::CHX4Extensibility);
    }
    /// Runs it while the object cannot go; S_OK whatever happens.
    template <class Action>
    HRESULT tell(const Action& action) noexcept;
    [[nodiscard]] bool isInInterface(DISPID id) const noexcept;
    void letGoOfExplorer();

    std::shared_ptr<Explorer> explorer_;  // which the add-in uses until it is told to end, or ends
    Meet meet_;
    automation::ObjectRef shownExplorer_;  // what the add-in gives for it
    std::shared_ptr<host::CHX4Extensibility> addIn_;
    Pointer<ITypeInfo> types_;
    Border& border_;
    Pointer<Object> byName_;
};

/// What a type library, a file or a part of a library, says of an interface. Throws automation::Error.
[[nodiscard]] Pointer<ITypeInfo> typesOf(const IID& iid, const std::wstring& file);

}  // namespace hx::com
