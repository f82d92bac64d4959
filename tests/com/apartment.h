// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <objbase.h>

#include "adapters/com/border.h"
#include "adapters/com/text.h"

namespace hx::com {

/// A thread in which COM objects live, as that of a window, and nothing held over the border at the end.
class ApartmentTest : public testing::Test {
  protected:
    ApartmentTest() { EXPECT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
    ~ApartmentTest() override {
        CoFreeUnusedLibrariesEx(0, 0);
        CoUninitialize();
    }
    void TearDown() override {
        EXPECT_EQ(border.lifetime().objects, 0);
        EXPECT_EQ(border.lifetime().foreignObjects, 0);
    }

    Border border;
};

/// A VARIANT that is cleared with its scope.
struct Value : VARIANT {
    Value() : VARIANT{} {}
    ~Value() { VariantClear(this); }
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;
};

}  // namespace hx::com
