// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/frame_view.h"

#include "adapters/qt/text.h"

namespace hx::qt {

FrameView::FrameView(forms::Frame& frame, SurroundingForm& form, QWidget& area)
    : ControlView(frame, form), box_(&area) {
    watch(box_);
}

void FrameView::show(std::string_view property) {
    if (property == "Caption") box_.setTitle(toQt(modelOf<forms::Frame>(*this)->caption()));
    else ControlView::show(property);
}

}  // namespace hx::qt
