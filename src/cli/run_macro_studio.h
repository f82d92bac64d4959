#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "adapters/sqlite/provider.h"
#include "addin/connect.h"
#include "host/ini_text_file.h"
#include "host/registry_file.h"

namespace hx::cli {

struct MacroStudioOptions {
    std::string config;                ///< folder of the registry; empty: one in memory
    std::optional<std::int32_t> lcid;  ///< goes into the registry
    std::string decimalPoint = ".";
};

/// A studio without a screen that opens projects as the desktop does. What a macro still holds of a project that is
/// closed stays safe to use: add-ins and windows live as long as the studio.
class MacroStudio {
  public:
    explicit MacroStudio(const MacroStudioOptions& options);
    ~MacroStudio();
    MacroStudio(const MacroStudio&) = delete;
    MacroStudio& operator=(const MacroStudio&) = delete;

    /// Makes an empty project and opens it; ".hxs" is added when it is missing. The path must not be taken.
    void newProject(const std::string& path);
    /// A file that ends in ".hxs", or the name of a project that the registry knows. Closes the one that is open.
    void openProject(const std::string& pathOrName);
    void closeProject();

    [[nodiscard]] headless::Host& host() noexcept { return *host_; }
    /// The open project's file; empty for none. requireFile throws errFail then.
    [[nodiscard]] const std::string& file() const noexcept { return file_; }
    [[nodiscard]] const std::string& requireFile() const;
    /// Null while no project is open.
    [[nodiscard]] const std::shared_ptr<addin::Connect>& addIn() const noexcept { return addIn_; }
    [[nodiscard]] addin::Connect& requireAddIn() const;  ///< errFail
    /// The editor's window; null while there is none.
    [[nodiscard]] std::shared_ptr<editor::frmtabgrid> editorWindow();

  private:
    [[nodiscard]] std::string fileOfName(const std::string& name) const;
    void startAddIn(const std::string& name);

    sqlite::Provider provider_;
    host::IniTextFile iniFile_;
    std::unique_ptr<host::RegistryFile> registry_;
    std::unique_ptr<headless::Host> host_;
    std::string file_;
    std::shared_ptr<addin::Connect> addIn_;
    std::vector<std::shared_ptr<addin::Connect>> formerAddIns_;
    std::vector<std::shared_ptr<editor::frmtabgrid>> windows_;
};

}  // namespace hx::cli
