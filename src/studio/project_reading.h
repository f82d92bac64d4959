// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

#include "adapters/sqlite/provider.h"
#include "automation/error.h"
#include "project/reader.h"

namespace hx::studio {

/// Reads a project beside the window, on a thread of its own with a connection of its own, so that nobody waits. The
/// thread shares nothing with the window's: it is given copies, and what it has read is handed over as a whole.
class ProjectReading : public QObject {
  public:
    /// What is done with the result, on the window's thread.
    using Result = std::function<void()>;
    /// Reads on the other thread, and may use nothing of the window's.
    using Task = std::function<Result(project::Reader& reader)>;
    /// Is told, on the window's thread, why nothing could be read.
    using Failed = std::function<void(const automation::Error& error)>;

    ~ProjectReading() override { stop(); }

    /// Gives up what was begun before.
    void start(const QString& file, const sqlite::OpenOptions& options, Task task, Failed failed);
    /// Gives up what was begun. Nothing of the project is open when it returns.
    void stop() noexcept;
    /// Until the result has been handed over.
    [[nodiscard]] bool isRunning() const noexcept { return running_; }

  private:
    using Flag = std::shared_ptr<std::atomic<bool>>;
    void handOver(const Flag& givenUp, Result result);

    std::thread thread_;
    Flag givenUp_;
    bool running_ = false;
};

}  // namespace hx::studio
