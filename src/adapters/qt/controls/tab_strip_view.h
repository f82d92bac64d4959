// SPDX-License-Identifier: MIT
#pragma once

#include <QTabWidget>
#include <memory>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "forms/tab_strip.h"

namespace hx::qt {

class TabStripView : public ControlView {
  public:
    TabStripView(forms::TabStrip& strip, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return tabs_; }
    [[nodiscard]] QWidget* areaOf(const forms::Control& container) override;
    /// To the page so many behind, round the ends.
    void turn(int pages);

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"TabCaption", "Tab"}; }

  private:
    void chosen(int tab);
    void showCaptions();
    QTabWidget tabs_;
    std::vector<std::unique_ptr<QWidget>> pages_;
};

}  // namespace hx::qt
