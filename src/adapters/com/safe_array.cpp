// SPDX-License-Identifier: MIT
#include "adapters/com/safe_array.h"

#include <memory>
#include <oleauto.h>

#include "adapters/com/failure.h"

namespace hx::com {

namespace {

constexpr VARTYPE kindMask = VT_TYPEMASK;

using Owned = std::unique_ptr<SAFEARRAY, decltype(&SafeArrayDestroy)>;

/// The array's memory, which does not move meanwhile.
class Elements {
  public:
    explicit Elements(SAFEARRAY* array) : array_(array) { require(SafeArrayAccessData(array, &data_)); }
    ~Elements() { SafeArrayUnaccessData(array_); }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;
    /// The number-th of elements of this size.
    [[nodiscard]] void* at(std::size_t number) const {
        return static_cast<std::byte*>(data_) + number * SafeArrayGetElemsize(array_);
    }

  private:
    SAFEARRAY* array_;
    void* data_ = nullptr;
};

// As a reference to the element: whatever kind it is, the one way of reading values reads it.
automation::Variant elementAt(Border& border, void* place, VARTYPE kind) {
    VARIANT reference{};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | kind);
    reference.byref = place;
    return border.take(reference);
}

}  // namespace

std::shared_ptr<Array> takeArray(Border& border, const VARIANT& value) {
    SAFEARRAY* const array = (value.vt & VT_BYREF) != 0 ? *value.pparray : value.parray;
    if (array == nullptr) return std::make_shared<Array>(std::vector<automation::Variant>());
    if (SafeArrayGetDim(array) != 1)
        throw automation::Error(automation::errTypeMismatch, "An array of one dimension is expected");
    LONG first = 0, last = 0;
    require(SafeArrayGetLBound(array, 1, &first));
    require(SafeArrayGetUBound(array, 1, &last));
    const Elements elements(array);
    std::vector<automation::Variant> items;
    for (LONG i = first; i <= last; ++i) {
        items.push_back(elementAt(border, elements.at(static_cast<std::size_t>(i - first)), value.vt & kindMask));
    }
    return std::make_shared<Array>(std::move(items));
}

SAFEARRAY* giveArray(Border& border, const Array& array) {
    Owned made(SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(array.items().size())), &SafeArrayDestroy);
    if (!made) throw std::bad_alloc();
    {
        const Elements elements(made.get());
        for (std::size_t i = 0; i < array.items().size(); ++i) {
            border.give(array.items()[i], *static_cast<VARIANT*>(elements.at(i)));
        }
    }
    return made.release();
}

}  // namespace hx::com
