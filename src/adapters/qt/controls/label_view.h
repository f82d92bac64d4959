// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/controls/plain_label.h"
#include "forms/label.h"

namespace hx::qt {

class LabelView : public ControlView {
  public:
    LabelView(forms::Label& label, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return label_; }
    /// The field that the label stands for: it gets the mnemonic and the label's text as accessible name.
    void setBuddy(QWidget& field);
    [[nodiscard]] bool hasBuddy() const { return label_.buddy() != nullptr; }
    /// One line, for a label that stands before its field.
    void keepOnOneLine() { label_.setWordWrap(false); }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    PlainLabel label_;
};

}  // namespace hx::qt
