#pragma once

#include <QApplication>
#include <functional>

#include "adapters/qt/input_rules.h"

namespace hx::studio {

/// An application that survives what its event handlers throw: it is reported, and the studio goes on.
class StudioApplication : public QApplication {
  public:
    /// Shows the number and description of an error, or what() of another exception.
    using Report = std::function<void(const QString& message)>;
    StudioApplication(int& argc, char** argv);
    void setReport(Report report) { report_ = std::move(report); }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void report(const QString& message);
    qt::InputRules inputRules_;
    Report report_;
    bool reporting_ = false;
};

}  // namespace hx::studio
