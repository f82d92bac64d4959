// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>

#include "adapters/qt/controls/plain_label.h"
#include "studio/found_texts.h"
#include "studio/live_project.h"

namespace hx::studio {

/// Finds texts in the whole project and replaces them.
class FindDock : public QDockWidget {
  public:
    /// Stores new texts; `name` tells what was done. Throws automation::Error when nothing was stored.
    using Replace = std::function<void(const std::vector<project::Replacement>& replacements, const QString& name)>;

    /// All are lent.
    FindDock(QWidget& window, LiveProject& live, const qt::Wording& wording, FoundView::GoTo goTo, Replace replace);

    /// Shows itself with the keyboard in the text that is looked for.
    void start();
    void retranslate();

  private:
    void name();
    void arrange();
    void connectParts();
    [[nodiscard]] std::shared_ptr<project::TextPattern> pattern();
    void find();
    void read();
    void take(std::shared_ptr<FoundTexts> found, std::shared_ptr<project::TextPattern> pattern);
    void preview();
    void replace(const std::vector<std::size_t>& things);
    void showState();
    void fail(const QString& text);

    LiveProject& live_;
    const qt::Wording& wording_;
    Replace replace_;
    QWidget panel_;
    QLineEdit text_, with_;
    QPushButton find_, replaceSelected_, replaceAll_;
    QCheckBox replacing_, matchCase_, wholeWord_, regular_, recipes_, members_, variables_;
    qt::PlainLabel state_;
    FoundModel model_{3};
    FoundView list_;
    std::shared_ptr<FoundTexts> found_;
    std::shared_ptr<project::TextPattern> pattern_;  // that found it
    bool looking_ = false;                           // something has been looked for
    QString failure_;
    forms::Subscription changes_;
    ProjectReading reading_;
};

}  // namespace hx::studio
