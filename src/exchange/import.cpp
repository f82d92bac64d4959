// SPDX-License-Identifier: MIT
#include "exchange/import.h"

#include <memory>

#include "adapters/sqlite/session.h"
#include "exchange/content_file.h"
#include "exchange/importer.h"
#include "project/reader.h"

namespace hx::exchange {

namespace {

// Names are compared with those of the project before anything is written.
std::shared_ptr<sqlite::Session> openProject(const std::string& path) {
    return std::make_shared<sqlite::Session>(path, false, sqlite::OpenOptions{.comparesNames = false});
}

}  // namespace

ImportCounts importContent(const std::string& project, const std::string& file, ImportMode mode,
                           const Progress& progress) {
    const Content content = parseContent(file, progress);
    const auto session = openProject(project);
    project::Reader reader(session, project);
    reader.tell(progress);
    session->beginTransaction();
    const Content before = readContent(reader);
    const ImportCounts counts = Importer(session->database(), before, content, file, mode, progress).run();
    session->commit();
    return counts;
}

std::vector<Difference> previewImport(const std::string& project, const std::string& file, ImportMode mode,
                                      const Progress& progress) {
    const Content content = parseContent(file, progress);
    const auto session = openProject(project);
    project::Reader reader(session, project);
    reader.tell(progress);
    session->database().execute("PRAGMA cache_spill=OFF");  // nothing of it reaches the file
    session->beginTransaction();
    const Content before = readContent(reader);
    Importer(session->database(), before, content, file, mode, progress).run();
    auto differences = compare(before, readContent(reader), {});
    session->rollback();
    return differences;
}

}  // namespace hx::exchange
