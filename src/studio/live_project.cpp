// SPDX-License-Identifier: MIT
#include "studio/live_project.h"

#include <QFileInfo>

namespace hx::studio {

namespace {

constexpr int settledAfter = 300;  // milliseconds without a further change

}  // namespace

LiveProject::LiveProject(StudioHost& host) : host_(host) {
    soon_.setSingleShot(true);
    soon_.setInterval(settledAfter);
    connect(&soon_, &QTimer::timeout, this, [this] { tell(); });
}

void LiveProject::open(const QString& file) {
    file_ = file;
    soon_.start();
}

void LiveProject::close() {
    if (!isOpen()) return;
    for (const auto& reading : readings_) {
        if (reading) reading->stop();
    }
    readings_.clear();
    file_.clear();
    soon_.stop();
    changed.raise();
}

LiveProject::Stamp LiveProject::stamp() const {
    const QFileInfo file(file_);
    return {file.lastModified(), file.size()};
}

void LiveProject::tell() {
    if (!isOpen() || holds_ > 0) return;
    stamp_ = stamp();
    changed.raise();
}

void LiveProject::look() {
    if (isOpen() && !soon_.isActive() && stamp() != stamp_) tell();
}

void LiveProject::letWrite() {
    for (const auto& reading : readings_) {
        if (reading) reading->stop();
    }
    if (isOpen()) soon_.start();
}

void LiveProject::read(ProjectReading& reading, ProjectReading::Task task, ProjectReading::Failed failed) {
    std::erase_if(readings_, [&](const auto& known) { return !known || known == &reading; });
    readings_.emplace_back(&reading);
    reading.start(file_, host_.openOptions(), std::move(task), std::move(failed));
}

}  // namespace hx::studio
