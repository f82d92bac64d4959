// SPDX-License-Identifier: MIT
#include "exchange/import.h"

#include "exchange/content_file.h"
#include "exchange/importer.h"
#include "project/reader.h"

namespace hx::exchange {

ImportCounts importContent(const std::shared_ptr<ado::Session>& session, const std::string& project,
                           const std::string& file, ImportMode mode, const Progress& progress) {
    const Content content = parseContent(file, progress);
    project::Reader reader(session, project);
    reader.tell(progress);
    session->beginTransaction();
    const Content before = readContent(reader);
    const ImportCounts counts = Importer(*session, before, content, file, mode, progress).run();
    session->commit();
    return counts;
}

std::vector<Difference> previewImport(const std::shared_ptr<ado::Session>& session, const std::string& project,
                                      const std::string& file, ImportMode mode, const Progress& progress) {
    const Content content = parseContent(file, progress);
    project::Reader reader(session, project);
    reader.tell(progress);
    session->beginTransaction();
    const Content before = readContent(reader);
    Importer(*session, before, content, file, mode, progress).run();
    auto differences = compare(before, readContent(reader), {});
    session->rollback();
    return differences;
}

}  // namespace hx::exchange
