// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>
#include <memory>
#include <vector>

#include "forms/bar.h"

namespace hx::qt {

class BandMenu;

struct DeleteLater {
    void operator()(QObject* object) const { object->deleteLater(); }
};
using BandMenuPointer = std::unique_ptr<BandMenu, DeleteLater>;

/// A menu that is filled from a band each time it opens. A click on a disabled entry is reported too; the menu stays.
class BandMenu : public QMenu {
  public:
    using Chosen = std::function<void(forms::Tool&)>;
    BandMenu(forms::Bar& bar, Chosen chosen) : bar_(&bar), chosen_(std::move(chosen)) {}

    /// The menu of a menu tool: asks the bar, then shows the band's tools; nothing when the bar refuses.
    void open(forms::Tool& menuTool);
    void fill(const std::vector<forms::Tool*>& tools);
    void detach() noexcept { bar_ = nullptr; }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void add(forms::Tool& tool);
    forms::Bar* bar_;
    Chosen chosen_;
    std::vector<std::pair<const QAction*, std::shared_ptr<forms::Tool>>> tools_;
    std::vector<BandMenuPointer> subMenus_;
};

}  // namespace hx::qt
