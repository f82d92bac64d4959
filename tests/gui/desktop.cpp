// SPDX-License-Identifier: MIT
#include "gui/desktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "adapters/qt/text.h"
#include "studio/studio_application.h"

namespace hx::gui {

namespace {

constexpr int patience = 60'000;  // milliseconds: the machine may be busy

/// Gives the tests a QApplication, on no display when the environment names none.
class Application : public testing::Environment {
  public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        // Another one than C, which every system has.
        if (!qEnvironmentVariableIsSet("LC_ALL")) qputenv("LC_NUMERIC", "C.UTF-8");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // the tests are the user of the toolkit's own
        application_ = std::make_unique<studio::StudioApplication>(count_, arguments_.data());
        application_->setReport(
            [](const automation::Error& error) { ADD_FAILURE() << error.message(automation::Language::english); });
        QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    }
    void TearDown() override { application_.reset(); }

  private:
    int count_ = 1;
    std::string name_ = "gui_tests";
    std::vector<char*> arguments_{name_.data(), nullptr};
    std::unique_ptr<studio::StudioApplication> application_;
};

const auto* const application = testing::AddGlobalTestEnvironment(std::make_unique<Application>().release());

}  // namespace

bool waitUntil(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, patience); }

void handleEvents() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool isActive(const QWidget& window) { return QApplication::activeWindow() == window.window(); }

bool activate(QWidget& window) {
    window.activateWindow();
    return waitUntil([&window] { return isActive(window); });
}

Once::Once(std::function<bool()> condition, std::function<void()> action)
    : condition_(std::move(condition)), action_(std::move(action)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(5);
}

Once::~Once() { EXPECT_TRUE(done_) << "what was waited for did not come"; }

void Once::look() {
    if (!condition_()) return;
    timer_.stop();
    done_ = true;
    action_();
}

QMenu* NextMenu::menu() {
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    return popup != nullptr && popup->isVisible() ? popup : nullptr;
}

void type(QWidget& widget, const QString& text) {
    for (const QChar c : text) {
        QTest::sendKeyEvent(QTest::Click, &widget, static_cast<Qt::Key>(c.toUpper().unicode()), QString(c), {});
    }
}

BoxAnswers::BoxAnswers(std::vector<std::string> answers) : answers_(std::move(answers)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(10);
}

BoxAnswers::~BoxAnswers() = default;

void BoxAnswers::look() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    const std::string wanted = shown_.size() < answers_.size() ? answers_[shown_.size()] : std::string();
    shown_.push_back({qt::fromQt(box->windowTitle()), qt::fromQt(box->text()), wanted});
    for (QAbstractButton* button : box->buttons()) {
        if (!wanted.empty() && qt::fromQt(button->text().remove('&')) == wanted) return button->click();
    }
    if (!wanted.empty()) ADD_FAILURE() << "the box \"" << qt::fromQt(box->text()) << "\" has no button " << wanted;
    QTest::keyClick(box, Qt::Key_Escape);
}

}  // namespace hx::gui

#ifdef __SANITIZE_ADDRESS__
// The library that finds fonts keeps what it has found, also when the program ends.
extern "C" const char* __lsan_default_suppressions();                       // NOLINT(bugprone-reserved-identifier)
const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }  // NOLINT(bugprone-reserved-identifier)
#endif
