// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "hosting/file_replacement.h"

namespace hx::sqlite {

/// Whether it is a file that begins as a Jet database does, of whatever version.
[[nodiscard]] bool beginsLikeJet(const std::string& path);
/// Whether it is a file that begins as a project does.
[[nodiscard]] bool beginsLikeProject(const std::string& path);

/// What a project is kept in.
enum class ProjectFormat { sqlite, jet };

/// Makes an empty project. Throws dbErrUnspecified when the path is taken (the file there stays as it is) or cannot be
/// written. The project appears whole or not at all.
void createProject(const std::string& path, ProjectFormat format = ProjectFormat::sqlite);

/// A project that is built in a temporary file beside its place and appears there when it is finished.
class ProjectDraft {
  public:
    /// Throws dbErrUnspecified when the path is taken or the folder cannot be written.
    explicit ProjectDraft(std::string path);
    /// Removes what has not been published.
    ~ProjectDraft();
    ProjectDraft(const ProjectDraft&) = delete;
    ProjectDraft& operator=(const ProjectDraft&) = delete;

    /// The temporary file. Connections to it must be closed before publish().
    [[nodiscard]] const std::string& temporaryPath() const noexcept { return temporary_; }
    /// Makes the tables, with the indexes or, for filling them faster, without.
    void createTables(bool withIndexes = true);
    void createIndexes();
    /// Gives the file its name. Throws dbErrUnspecified when the path has been taken meanwhile.
    void publish();

  private:
    std::string path_;
    std::optional<hosting::FileReplacement> file_;
    std::string temporary_;
    std::filesystem::path journal_, users_;  // made early: where memory is short, taking it away asks for none
};

}  // namespace hx::sqlite
