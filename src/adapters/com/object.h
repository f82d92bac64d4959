// SPDX-License-Identifier: MIT
#pragma once

#include <oaidl.h>
#include <string>
#include <vector>

#include "adapters/com/border.h"
#include "adapters/com/unknown.h"
#include "automation/dispatch.h"

namespace hx::com {

/// One of our objects as COM sees it. A member's number is its place in the tables of its class, so that it stays what
/// it is as long as rows are added at the end. Arguments may be named by their numbers, from 0.
class Object : public Unknown<IDispatch> {
  public:
    Object(automation::ObjectRef object, Border& border);
    ~Object() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

  private:
    [[nodiscard]] bool has(REFIID iid) const noexcept override { return iid == IID_IDispatch; }
    [[nodiscard]] DISPID idOf(std::string_view name);
    [[nodiscard]] DISPID ownIdOf(std::string_view name);
    /// Empty when there is none.
    [[nodiscard]] std::string_view nameOf(DISPID id) const;
    void run(std::string_view name, WORD how, const DISPPARAMS& parameters, VARIANT* result);

    automation::ObjectRef object_;
    Border& border_;
    Lifetime::Counted counted_;
    std::vector<std::string> ownNames_;  // that no table has, as a form's controls
};

}  // namespace hx::com
