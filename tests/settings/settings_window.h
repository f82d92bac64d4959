// SPDX-License-Identifier: MIT
#pragma once

#include "automation/member_rows.h"
#include "forms/check_box.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/option_button.h"
#include "forms/status_bar.h"

namespace hx::settings {

/// A window with the properties and controls that the editor's default text names.
class SettingsWindow : public forms::Form {
  public:
    explicit SettingsWindow(forms::Screen& display)
        : Form("frmtabgrid", display),
          tdbRM(add<forms::Grid>("tdbRM")),
          sb(add<forms::StatusBar>("sb", 3U)),
          chkA(add<forms::CheckBox>("chkA")) {
        tdbRM->addColumn("VarRecipe");
        tdbRM->addColumn("ChildID");
        for (std::int16_t i = 0; i < 2; ++i) {
            opt.push_back(add<forms::OptionButton>("optA"));
            opt.back()->setIndex(i);
        }
    }

    std::shared_ptr<forms::Grid> tdbRM;
    std::shared_ptr<forms::StatusBar> sb;
    std::shared_ptr<forms::CheckBox> chkA;
    std::vector<std::shared_ptr<forms::OptionButton>> opt;
    double posLeft = 15, posTop = 30;
    std::int16_t small = 0;
    std::int32_t large = 0;

    [[nodiscard]] double PosLeft() const { return posLeft; }
    void setPosLeft(double twips) { posLeft = twips; }
    [[nodiscard]] double PosTop() const { return posTop; }
    void setPosTop(double twips) { posTop = twips; }

    [[nodiscard]] std::int16_t Small() const { return small; }
    void setSmall(std::int16_t number) { small = number; }
    [[nodiscard]] std::int32_t Large() const { return large; }
    void setLarge(std::int32_t number) { large = number; }

    [[nodiscard]] const automation::MemberTable& members() const override {
        using namespace automation;
        static constexpr Member rows[] = {
            property<&SettingsWindow::PosLeft, &SettingsWindow::setPosLeft>("PosLeft", "Left edge"),
            property<&SettingsWindow::PosTop, &SettingsWindow::setPosTop>("PosTop", "Top edge"),
            property<&SettingsWindow::Small, &SettingsWindow::setSmall>("Small", "A number of 16 bits"),
            property<&SettingsWindow::Large, &SettingsWindow::setLarge>("Large", "A number of 32 bits"),
        };
        static const MemberTable table{"SettingsWindow", rows, &formMembers()};
        return table;
    }
};

}  // namespace hx::settings
