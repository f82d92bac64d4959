// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <functional>
#include <memory>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/help/help_search.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// Searches all topics while the words are typed. Down goes from the field to the list, Enter shows the first topic.
class HelpSearchPane : public QWidget {
  public:
    /// The wording is lent.
    HelpSearchPane(const Wording& wording, QWidget* parent);
    void retranslate();
    /// The book is lent.
    void setBook(const HelpBook& book);
    void focusField();

    /// Called with the path of a topic that the user chooses, and the words that it was found by.
    std::function<void(const QString& path, const QStringList& words)> chosen;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void search();
    void choose(const QListWidgetItem* item);

    const Wording& wording_;
    const HelpBook* book_ = nullptr;
    std::unique_ptr<HelpSearch> index_;
    QVBoxLayout column_{this};
    QLineEdit field_;
    QListWidget list_;
    PlainLabel state_;
};

}  // namespace hx::qt
