// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace hx::studio {

/// While a macro runs, keeps the user's mouse and keys from the studio, which would change under the macro's hands. Let
/// through are one widget with what lies in it, menus and modal dialogs, which only the macro can have opened, and the
/// key that stops the macro.
class InputHold : public QObject {
  public:
    /// The widget is lent; `stop` is called when the user presses `stopKey`, wherever the keyboard is.
    InputHold(const QWidget& open, QKeyCombination stopKey, std::function<void()> stop);
    ~InputHold() override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    [[nodiscard]] bool isOpen(const QObject& receiver) const;
    [[nodiscard]] bool isStopKey(const QEvent& event) const;
    const QWidget& open_;
    QKeyCombination stopKey_;
    std::function<void()> stop_;
};

}  // namespace hx::studio
