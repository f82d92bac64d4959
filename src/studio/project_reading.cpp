// SPDX-License-Identifier: MIT
#include "studio/project_reading.h"

#include <utility>

#include "adapters/qt/text.h"
#include "automation/cancelled.h"

namespace hx::studio {

void ProjectReading::start(const QString& file, const sqlite::OpenOptions& options, Task task, Failed failed) {
    stop();
    const Flag givenUp = std::make_shared<std::atomic<bool>>(false);
    const auto read = [path = qt::fromQt(file), options, task = std::move(task), givenUp] {
        sqlite::Provider provider([&options] { return options; });
        project::Reader reader(provider, path, project::Reader::Damage::read);
        reader.tell([&givenUp](std::int64_t, std::int64_t) {
            if (*givenUp) throw automation::Cancelled();
        });
        return task(reader);
    };
    const auto run = [this, read, failed = std::move(failed), givenUp]() noexcept {
        try {
            Result result;
            try {
                result = read();
            } catch (const automation::Cancelled&) {
                return;
            } catch (const std::exception&) {
                result = [failed, error = automation::caughtError()] { failed(error); };
            }
            handOver(givenUp, std::move(result));
        } catch (const std::exception&) {
            // There is no memory to tell of it with: the next change has it read again.
        }
    };
    try {
        thread_ = std::thread(run);
    } catch (const std::exception&) {
        return failed(automation::caughtError());
    }
    givenUp_ = givenUp;
    running_ = true;
}

void ProjectReading::handOver(const Flag& givenUp, Result result) {
    const auto take = [this, givenUp, result = std::move(result)] {
        if (*givenUp) return;
        stop();
        result();
    };
    QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

void ProjectReading::stop() noexcept {
    running_ = false;
    if (givenUp_) *givenUp_ = true;
    if (thread_.joinable()) thread_.join();
}

}  // namespace hx::studio
