// SPDX-License-Identifier: MIT
#pragma once

#include <unknwn.h>
#include <utility>

namespace hx::com {

/// Holds a reference to a COM object.
template <class T>
class Pointer {
  public:
    Pointer() noexcept = default;
    /// One more reference.
    explicit Pointer(T* object) noexcept : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    Pointer(const Pointer& other) noexcept : Pointer(other.object_) {}
    Pointer(Pointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Pointer& operator=(Pointer other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Pointer() {
        if (object_ != nullptr) object_->Release();
    }

    /// Takes over the reference that the caller holds.
    [[nodiscard]] static Pointer adopt(T* object) noexcept {
        Pointer pointer;
        pointer.object_ = object;
        return pointer;
    }
    /// The interface of this kind; empty when the object has none.
    template <class I>
    [[nodiscard]] static Pointer of(I* object, const IID& iid) noexcept {
        Pointer pointer;
        if (object != nullptr) object->QueryInterface(iid, pointer.out());
        return pointer;
    }

    [[nodiscard]] T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    /// Gives the reference away.
    [[nodiscard]] T* release() noexcept { return std::exchange(object_, nullptr); }
    /// For calls that return a reference; the pointer is empty.
    [[nodiscard]] void** out() noexcept { return reinterpret_cast<void**>(&object_); }

  private:
    T* object_ = nullptr;
};

}  // namespace hx::com
