// SPDX-License-Identifier: MIT
#include "adapters/headless/form_window.h"

#include <algorithm>

#include "forms/bar.h"

namespace hx::headless {

FormWindow::FormWindow(forms::Form& form, double maximisedWidth, double maximisedHeight)
    : form_(form), maximisedWidth_(maximisedWidth), maximisedHeight_(maximisedHeight) {
    reportArea();
    changed_ = form.changed.subscribe([this](std::string_view property) {
        const bool size = property == "Width" || property == "Height" || property == "Bounds";
        if (size || property == "WindowState") reportArea();
    });
}

void FormWindow::reportArea() {
    if (form_.windowState() == forms::WindowState::minimised) return;
    const bool maximised = form_.windowState() == forms::WindowState::maximised;
    const double width = maximised ? maximisedWidth_ : form_.width();
    const double height = maximised ? maximisedHeight_ : form_.height();
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    form_.clientAreaChanged(width, height);
    const auto controls = form_.controls();
    for (const auto& control : controls) {
        auto* bar = dynamic_cast<forms::Bar*>(control.get());
        if (bar == nullptr || bar->bands().empty()) continue;
        bar->mainBand().heightReported(menuBarHeight);
        bar->clientAreaReported(width, std::max(0.0, height - menuBarHeight));
    }
}

}  // namespace hx::headless
