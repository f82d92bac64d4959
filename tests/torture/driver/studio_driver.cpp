// SPDX-License-Identifier: MIT

/// Loaded into the studio's process: does in its windows what a user would, step by step, and leaves.
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <cstdio>

namespace {

constexpr int interval = 5;  // milliseconds between two looks at the windows

template <class Widget>
Widget* topLevel(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1StringView(name) && widget->isVisible())
            return qobject_cast<Widget*>(widget);
    }
    return nullptr;
}

void say(const char* what, const QString& text) {
    std::printf("%s %s\n", what, qPrintable(QString(text).replace('\n', ' ')));
    std::fflush(stdout);
}

/// The steps, from HX_DRIVER_STEPS with semicolons between them:
///
///   macro=NAME  runs the macro of this name from the user's folder, to its end
///   do=NAME     triggers the main window's action of this name
///
/// What a message box says is printed, and its default button pressed; a question is answered with yes. A status line
/// that names a settings file is printed like a message, and so is what a macro has failed with; what a macro prints
/// itself counts as that. A report that is shown is saved as HTML into the file HX_DRIVER_HTML.
class Driver : public QObject {
  public:
    Driver() : steps_(qEnvironmentVariable("HX_DRIVER_STEPS").split(';', Qt::SkipEmptyParts)) {
        timer_.callOnTimeout([this] { look(); });
        timer_.start(interval);
        qApp->installEventFilter(this);
    }

  protected:
    // The status line may say something before the first look.
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* line = event->type() == QEvent::Polish ? qobject_cast<QStatusBar*>(object) : nullptr;
        if (line != nullptr)
            connect(line, &QStatusBar::messageChanged, this, [this](const QString& text) { read(text); });
        return false;
    }

  private:
    // What is no success names the file that it is about.
    void read(const QString& text) {
        if (!text.contains(QStringLiteral("studio.ini"))) return;
        say("message:", text);
        told_ = true;
    }

    void look() {
        if (auto* box = topLevel<QMessageBox>("messageBox")) return answer(*box);
        if (auto* dialog = topLevel<QFileDialog>("reportFileDialog")) return choose(*dialog);
        if (auto* report = topLevel<QWidget>("reportPreview")) return save(*report);
        auto* window = topLevel<QMainWindow>("mainWindow");
        if (window == nullptr || busy_ || runs(*window)) return;
        if (!opened(*window)) return;
        acknowledge(*window);
        if (steps_.isEmpty() || told_) return leave(*window);
        begin(steps_.takeFirst(), *window);
    }

    void answer(QMessageBox& box) {
        if (auto* yes = box.button(QMessageBox::Yes)) return yes->click();
        say("message:", box.text());
        told_ = true;
        if (auto* button = box.defaultButton()) button->click();
        else box.reject();
    }

    void choose(QFileDialog& dialog) {
        if (chosen_) return dialog.reject();
        chosen_ = true;
        dialog.selectFile(qEnvironmentVariable("HX_DRIVER_HTML"));
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    }

    // The choice of the file waits in an event loop of its own, and this timer meanwhile for its function to return.
    void save(QWidget& report) {
        if (chosen_) return (void)report.close();
        if (saving_) return;
        saving_ = true;
        QMetaObject::invokeMethod(report.findChild<QAction*>(QStringLiteral("reportHtml")), "trigger",
                                  Qt::QueuedConnection);
    }

    [[nodiscard]] bool opened(const QMainWindow& window) const {
        const auto* label = window.findChild<QLabel*>(QStringLiteral("projectFile"));
        return told_ || (label != nullptr && !label->text().isEmpty());
    }

    // It begins in an event of its own; the dock then shows how it goes.
    [[nodiscard]] bool runs(const QMainWindow& window) const {
        const auto* stop = window.findChild<QAction*>(QStringLiteral("actionStopMacro"));
        return stop == nullptr || stop->isEnabled() || (awaited_ != nullptr && awaited_->isHidden());
    }

    void acknowledge(const QMainWindow& window) {
        if (!doing_) return;
        doing_ = false;
        const QString text = window.findChild<QPlainTextEdit*>(QStringLiteral("macroText"))->toPlainText().trimmed();
        const bool failed = awaited_ != nullptr && (text.contains('\n') || !text.endsWith(QStringLiteral("──")));
        awaited_ = nullptr;
        told_ = told_ || failed;
        if (failed) say("message:", text);
        if (!told_) say("step", QString::number(++done_));
    }

    // An event of its own, for the same reason.
    void begin(const QString& step, QMainWindow& window) {
        busy_ = doing_ = true;
        QTimer::singleShot(0, &window, [this, step, &window] {
            take(step.section('=', 0, 0), step.section('=', 1), window);
            busy_ = false;
        });
    }

    void take(const QString& verb, const QString& object, QMainWindow& window) {
        QAction* action = nullptr;
        if (verb == QStringLiteral("macro")) action = macro(object, window);
        if (verb == QStringLiteral("do")) action = window.findChild<QAction*>(object);
        if (action == nullptr) return say("message: cannot do", verb + '=' + object);
        if (verb == QStringLiteral("macro")) await(window);
        action->trigger();
    }

    void await(const QMainWindow& window) {
        awaited_ = window.findChild<QLabel*>(QStringLiteral("macroStatus"));
        awaited_->hide();
        window.findChild<QPlainTextEdit*>(QStringLiteral("macroText"))->clear();
    }

    static QAction* macro(const QString& name, const QMainWindow& window) {
        auto* menu = window.findChild<QMenu*>(QStringLiteral("menuMacros"));
        if (menu == nullptr) return nullptr;
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->text() == name) return action;
        }
        return nullptr;
    }

    static void leave(QMainWindow& window) {
        QTimer::singleShot(0, &window, [&window] { window.close(); });
    }

    QTimer timer_;
    QStringList steps_;
    QLabel* awaited_ = nullptr;  // appears when the macro has begun
    int done_ = 0;
    bool busy_ = false, doing_ = false, told_ = false, saving_ = false, chosen_ = false;
};

void startDriver() { (void)new Driver; }

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(startDriver)
