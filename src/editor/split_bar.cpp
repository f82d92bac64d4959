// SPDX-License-Identifier: MIT
#include "editor/split_bar.h"

#include <algorithm>

#include "editor/frmtabgrid.h"

namespace hx::editor {

namespace {

constexpr double edge = 30;       // twips between a split and the bar
constexpr double leftOver = 60;   // twips of the grid that stay right of the first split
constexpr double thickness = 60;  // twips

}  // namespace

SplitBar::SplitBar(frmtabgrid& window) : window_(window) {
    forms::PictureBox& bar = *window.pctrcpTabSplit;
    bar.setWidth(thickness);
    bar.setTabStop(false);
    subscriptions_.push_back(bar.mouseDownEvent.subscribe([this](const forms::MouseEvent& mouse) { press(mouse); }));
    subscriptions_.push_back(bar.mouseMoveEvent.subscribe([this](const forms::MouseEvent& mouse) { move(mouse); }));
    subscriptions_.push_back(bar.mouseUpEvent.subscribe([this](const forms::MouseEvent& mouse) { release(mouse); }));
}

double SplitBar::withinGrid(double splitWidth) const {
    return std::max(std::min(splitWidth, window_.tdbRM->width() - leftOver), 0.0);
}

void SplitBar::place() {
    const forms::Grid& grid = *window_.tdbRM;
    forms::PictureBox& bar = *window_.pctrcpTabSplit;
    bar.move(grid.left() + withinGrid(grid.split(0).size()) + edge, grid.top(), bar.width(), grid.height());
}

void SplitBar::press(const forms::MouseEvent& mouse) {
    if (mouse.button == forms::button::left) splitting_ = true;
}

void SplitBar::move(const forms::MouseEvent& mouse) {
    if (!splitting_ || mouse.button != forms::button::left) return;
    forms::PictureBox& bar = *window_.pctrcpTabSplit;
    bar.setLeft(bar.left() + mouse.x);
}

void SplitBar::release(const forms::MouseEvent& mouse) {
    if (!splitting_ || mouse.button != forms::button::left) return;
    splitting_ = false;
    const forms::Grid& grid = *window_.tdbRM;
    forms::PictureBox& bar = *window_.pctrcpTabSplit;
    const double width = withinGrid(bar.left() - grid.left() - edge);
    bar.setLeft(grid.left() + width + edge);
    grid.split(0).setSize(width);
}

}  // namespace hx::editor
