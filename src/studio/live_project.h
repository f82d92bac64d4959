// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QTimer>
#include <vector>

#include "forms/event.h"
#include "studio/project_reading.h"
#include "studio/studio_host.h"

namespace hx::studio {

/// The open project for the lists of what is in it: they read it beside the window and are kept up to date.
class LiveProject : public QObject {
  public:
    /// The host is lent.
    explicit LiveProject(StudioHost& host);

    void open(const QString& file);
    void close();
    [[nodiscard]] bool isOpen() const noexcept { return !file_.isEmpty(); }
    [[nodiscard]] StudioHost& host() noexcept { return host_; }
    [[nodiscard]] const QString& file() const noexcept { return file_; }

    /// Raised when the project has been opened, changed or closed: what is shown of it is old. After a change only when
    /// no other has followed for a moment.
    forms::Event<> changed;

    /// This program has changed it.
    void noteChange() { soon_.start(); }
    /// Looks whether another program has.
    void look();
    /// This program writes now: readers would keep it waiting. They begin again when it has done so.
    void letWrite();
    /// While it lives, nobody is told of changes: something is written while the window goes on.
    class Hold {
      public:
        explicit Hold(LiveProject& live) : live_(live) { ++live_.holds_; }
        ~Hold() {
            if (--live_.holds_ == 0) live_.letWrite();
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        LiveProject& live_;
    };

    /// Reads it by a reading that belongs to the caller, with errors in the user's language.
    void read(ProjectReading& reading, ProjectReading::Task task, ProjectReading::Failed failed);

  private:
    struct Stamp {
        QDateTime time;
        qint64 size = 0;
        bool operator==(const Stamp&) const = default;
    };
    [[nodiscard]] Stamp stamp() const;
    void tell();

    StudioHost& host_;
    QString file_;
    Stamp stamp_;
    QTimer soon_;
    int holds_ = 0;
    std::vector<QPointer<ProjectReading>> readings_;
};

}  // namespace hx::studio
