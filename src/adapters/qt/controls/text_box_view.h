// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <memory>

#include "adapters/qt/controls/control_view.h"
#include "forms/text_box.h"

namespace hx::qt {

/// A line of text, or several when the model says so at the start.
class TextBoxView : public ControlView {
  public:
    TextBoxView(forms::TextBox& box, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override;

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override {
        return {"Text", "Locked", "BackColor"};
    }

  private:
    void makeLine(QWidget& area);
    void makeMemo(QWidget& area);
    [[nodiscard]] QString text() const;
    void typed();
    void caretMoved();
    void showText();
    void showCaret();
    void showColor();

    std::unique_ptr<QLineEdit> line_;
    std::unique_ptr<QPlainTextEdit> memo_;
    bool showing_ = false;
};

}  // namespace hx::qt
