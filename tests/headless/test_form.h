// SPDX-License-Identifier: MIT
#pragma once

#include "forms/bar.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/text_box.h"

namespace hx::headless {

/// A dialog with a field, an OK and a cancel button and a bar.
class TestForm : public forms::Form {
  public:
    explicit TestForm(forms::Screen& display)
        : Form("FTest", display),
          txtName(add<forms::TextBox>("txtName")),
          cmdOk(add<forms::CommandButton>("cmdOk")),
          cmdCancel(add<forms::CommandButton>("cmdCancel")),
          abr(add<forms::Bar>("abr")) {
        setCaption("Test");
        cmdOk->setDefault(true);
        cmdCancel->setCancel(true);
        abr->addBand("mnuMain");
        abr->setMainBand("mnuMain");
        cmdOk->clickEvent.connect([this] {
            accepted = true;
            hide();
        });
        cmdCancel->clickEvent.connect([this] { hide(); });
        queryUnloadEvent.connect([this](bool& cancel, forms::UnloadMode mode) {
            lastMode = mode;
            cancel = refusesToClose;
        });
    }

    std::shared_ptr<forms::TextBox> txtName;
    std::shared_ptr<forms::CommandButton> cmdOk, cmdCancel;
    std::shared_ptr<forms::Bar> abr;
    bool accepted = false, refusesToClose = false;
    forms::UnloadMode lastMode = forms::UnloadMode::byCode;
};

}  // namespace hx::headless
