#include <algorithm>

#include "automation/convert.h"
#include "editor/frmtabgrid.h"
#include "editor/split_bar.h"
#include "editor/tools.h"

namespace hx::editor {

void frmtabgrid::abr_Resize() {
    const double toolBar = tbrfunc->height();
    const double menu = abr->band(automation::Variant(band::main)).height();
    const double clientWidth = abr->clientAreaWidth(), clientHeight = abr->clientAreaHeight();
    tbrfunc->move(tbrfunc->left(), menu, clientWidth, toolBar);
    sb->move(sb->left(), menu + clientHeight - sb->height(), clientWidth, sb->height());
    const double hidden = sb->visible() ? 0 : sb->height();
    const double gridHeight = std::max(clientHeight - toolBar + hidden, 0.0);
    if (windowState() == forms::WindowState::minimised) return;
    tdbRM->move(0, menu + toolBar, scaleWidth(), gridHeight);
    splitBar_->place();
}

}  // namespace hx::editor
