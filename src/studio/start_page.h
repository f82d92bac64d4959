// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QListWidget>
#include <QScrollArea>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"

namespace hx::studio {

class StudioCommands;

/// What the studio shows while no project is open: how to begin, and the projects that were open lately.
class StartPage : public QScrollArea {
  public:
    /// All are lent. The actions are those that begin something; they bring their texts and icons with them.
    StartPage(StudioCommands& commands, const QList<QAction*>& actions, const qt::Wording& wording);

    void retranslate();
    /// Lists the recent projects as they are now.
    void refresh();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void build(const QList<QAction*>& actions);
    void open(const QListWidgetItem& item);
    void setTitleFonts();

    StudioCommands& commands_;
    const qt::Wording& wording_;
    QWidget* content_;
    qt::PlainLabel *title_, *startTitle_, *recentTitle_, *none_;
    QListWidget* recent_;
    QWidget* first_ = nullptr;  ///< of the buttons
    QAction remove_;
};

}  // namespace hx::studio
