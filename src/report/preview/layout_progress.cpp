// SPDX-License-Identifier: MIT
#include "report/preview/layout_progress.h"

#include <QElapsedTimer>
#include <QHBoxLayout>

namespace hx::report {

namespace {

constexpr int sliceTime = 15;  // milliseconds: typing and scrolling stay smooth
constexpr int barWidth = 160;

}  // namespace

LayoutProgress::LayoutProgress(Pages& pages, const QString& name, const QString& stop, QWidget* parent)
    : QWidget(parent), pages_(pages), bar_(this), stop_(stop, this) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&bar_);
    row->addWidget(&stop_);
    bar_.setObjectName(QStringLiteral("reportLayout"));
    bar_.setAccessibleName(name);
    bar_.setFormat(name + QStringLiteral(" %p %"));
    bar_.setMinimumWidth(barWidth);
    bar_.setMaximum(static_cast<int>(pages.parts()));
    stop_.setObjectName(QStringLiteral("reportLayoutStop"));
    stop_.setAutoDefault(false);
    connect(&stop_, &QPushButton::clicked, this, [this] { this->stop(); });
    connect(&timer_, &QTimer::timeout, this, [this] { layOutSome(); });
    hide();
}

void LayoutProgress::goOn() {
    if (pages_.complete() || isGoingOn()) return;
    timer_.start(0);
    show();
}

void LayoutProgress::stop() {
    timer_.stop();
    hide();
}

void LayoutProgress::layOutSome() {
    QElapsedTimer time;
    time.start();
    while (!pages_.complete() && !time.hasExpired(sliceTime)) pages_.layOutPart();
    bar_.setValue(static_cast<int>(pages_.partsLaidOut()));
    if (pages_.complete()) stop();
    if (advanced) advanced();
}

}  // namespace hx::report
