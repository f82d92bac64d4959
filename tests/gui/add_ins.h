// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <string>
#include <utility>

#include "adapters/qt/text.h"
#include "gui/desktop.h"
#include "studio/studio_host.h"

namespace hx::gui {

class AddInsTest : public Desktop {
  protected:
    QTemporaryDir folder;

    void write(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// The error of creating a component from files in a folder.
    [[nodiscard]] std::pair<std::int32_t, std::string> errorOf(const char* programId, const QString& modules) {
        studio::StudioHost host(folder.path(), {modules});
        try {
            (void)host.components().create(programId);
        } catch (const automation::Error& error) {
            return {error.number(), error.description()};
        }
        return {0, "none"};
    }
    [[nodiscard]] std::pair<std::int32_t, std::string> errorOf(const char* programId) {
        return errorOf(programId, folder.path());
    }
};

}  // namespace hx::gui
