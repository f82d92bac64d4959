// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>

#include "adapters/qt/screen/input_rules.h"
#include "adapters/qt/screen/tool_tips.h"
#include "automation/error.h"

namespace hx::studio {

/// An application that survives what its event handlers throw: it is reported, and the studio goes on.
class StudioApplication : public QApplication {
  public:
    /// Tells the user.
    using Report = std::function<void(const automation::Error& error)>;
    StudioApplication(int& argc, char** argv);
    void setReport(Report report) { report_ = std::move(report); }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void report(const automation::Error& error);
    qt::InputRules inputRules_;
    qt::ToolTips toolTips_;
    Report report_;
    bool reporting_ = false;
};

}  // namespace hx::studio
