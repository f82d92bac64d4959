// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "adapters/qt/screen/qt_screen.h"
#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/wording.h"

namespace hx::gui {

/// Handles what waits in the event loop, until `condition` holds. False when it does not within a minute.
bool waitUntil(const std::function<bool()>& condition);
/// Handles what waits in the event loop, deletions too.
void handleEvents();
/// Whether the toolkit has given a window the keyboard. QWidget::isActiveWindow() says so on Windows before that, while
/// shortcuts are still those of another window.
[[nodiscard]] bool isActive(const QWidget& window);
/// Gives a window the keyboard. False when it does not get it within a minute.
bool activate(QWidget& window);

/// Acts once, as soon as `condition` holds while events are handled. A test in which it never does fails.
class Once {
  public:
    Once(std::function<bool()> condition, std::function<void()> action);
    ~Once();
    Once(const Once&) = delete;
    Once& operator=(const Once&) = delete;

  private:
    void look();
    std::function<bool()> condition_;
    std::function<void()> action_;
    QTimer timer_;
    bool done_ = false;
};

/// Acts on the modal window that comes next, once it is the active one; a test failure when none comes or it is of
/// another class.
template <class W>
class NextModal {
  public:
    explicit NextModal(std::function<void(W&)> action) : action_(std::move(action)) {}

  private:
    [[nodiscard]] bool came() const {
        const QWidget* window = QApplication::activeModalWidget();
        return window != nullptr && window != before_ && window->isVisible() && isActive(*window);
    }
    void act() const {
        QWidget* window = QApplication::activeModalWidget();
        if (auto* wanted = dynamic_cast<W*>(window)) return action_(*wanted);
        ADD_FAILURE() << "another window came than the expected one";
        window->close();
    }
    const QWidget* before_ = QApplication::activeModalWidget();
    std::function<void(W&)> action_;
    Once once_{[this] { return came(); }, [this] { act(); }};
};

/// Acts on the menu that pops up next.
class NextMenu {
  public:
    explicit NextMenu(std::function<void(QMenu&)> action) : action_(std::move(action)) {}

  private:
    [[nodiscard]] static QMenu* menu();
    std::function<void(QMenu&)> action_;
    Once once_{[] { return menu() != nullptr; }, [this] { action_(*menu()); }};
};

/// Types a text, of any letters.
void type(QWidget& widget, const QString& text);

/// The widget of this name below `parent` that is of this class; a test failure when there is none.
template <class W>
[[nodiscard]] W& find(const QWidget& parent, const char* name) {
    auto* widget = parent.findChild<W*>(QString::fromUtf8(name));
    if (widget == nullptr) throw std::runtime_error(std::string("nothing is called ") + name);
    return *widget;
}

/// A message box that was shown, with what was answered.
struct ShownBox {
    std::string title, text, answer;
    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

/// Answers the message boxes that come while it lives, by the text of a button (without "&"), one after the other; a
/// box beyond the answers is closed by Esc.
class BoxAnswers {
  public:
    explicit BoxAnswers(std::vector<std::string> answers = {});
    ~BoxAnswers();
    BoxAnswers(const BoxAnswers&) = delete;
    BoxAnswers& operator=(const BoxAnswers&) = delete;
    [[nodiscard]] const std::vector<ShownBox>& shown() const noexcept { return shown_; }

  private:
    void look();
    std::vector<std::string> answers_;
    std::vector<ShownBox> shown_;
    QTimer timer_;
};

/// A screen for forms, in German.
class Desktop : public testing::Test {
  protected:
    qt::Wording wording;
    qt::QtWindows windows;
    qt::QtScreen screen{windows, wording};
    /// The window of a loaded form.
    [[nodiscard]] QWidget& windowOf(const forms::Form& form) const { return *windows.widget(form.handle()); }
};

}  // namespace hx::gui
