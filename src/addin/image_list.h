// SPDX-License-Identifier: MIT
#pragma once

#include "forms/picture.h"

namespace hx::addin {

/// The pictures of the add-in's nodes under the keys that recipe::KeyImage gives.
class FImageList : public forms::ImageList {
  public:
    FImageList();
};

}  // namespace hx::addin
