// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/record.h"
#include "forms/script.h"
#include "host/extensibility.h"
#include "host/system_services.h"
#include "hosting/components.h"
#include "hosting/node_tree.h"
#include "hosting/project_registry.h"

namespace hx::macros {

/// A node of the explorer as a macro sees it; no parent at the top.
struct Node {
    std::string key, parent, caption, image, tag;
};
/// The nodes below one of a tree, in tree order; those right below it have no parent.
[[nodiscard]] std::vector<Node> nodesBelow(const hosting::NodeTree& tree, std::string_view top);

/// What a macro has found, for a list that leads there.
struct Found {
    std::string text;
    std::int64_t recipe = 0, member = 0;  ///< IDs of the place; 0 for none
    bool ofSubRecipe = false;             ///< the member is one
};

/// The studio that a macro works on: a real one or one without a screen. All failures are automation::Error. What a
/// macro still holds of a closed project must stay safe to use while the macro runs.
class Studio {
  public:
    virtual ~Studio() = default;

    /// A path as an absolute one.
    [[nodiscard]] virtual std::string pathOf(const std::string& path) const = 0;
    /// The file of a project: the one that is named, when it ends in ".hxs", or that of the project which the registry
    /// knows by this name.
    [[nodiscard]] std::string fileOf(const std::string& pathOrName);
    /// Makes an empty project and opens it; ".hxs" is added when it is missing. The path must not be taken.
    virtual void newProject(const std::string& path) = 0;
    /// Closes the one that is open.
    virtual void openProject(const std::string& file) = 0;
    virtual void closeProject() = 0;
    /// The open project's file; empty for none.
    [[nodiscard]] virtual std::string file() const = 0;
    /// Null while no project is open.
    [[nodiscard]] virtual std::shared_ptr<host::CHX4Extensibility> addIn() const = 0;
    /// The editor's window; empty while there is none.
    [[nodiscard]] virtual automation::ObjectRef editorWindow() = 0;

    /// The add-in's nodes in tree order.
    [[nodiscard]] virtual std::vector<Node> nodes() = 0;
    /// What an event of the node carries; errBadIndex when unknown.
    [[nodiscard]] virtual host::NodeEvent eventOf(const std::string& key) = 0;
    [[nodiscard]] virtual std::string selected() const = 0;  ///< empty for none
    /// An empty key selects nothing; errBadIndex when unknown.
    virtual void select(const std::string& key) = 0;
    /// Shows the nodes below a node, without an event.
    virtual void showExpanded(const std::string& key) = 0;

    [[nodiscard]] virtual hosting::ProjectRegistry& registry() = 0;
    /// Whether what a macro sets in it would stay when it has ended, and it is not trusted to do that.
    [[nodiscard]] virtual bool keepsRegistry() const = 0;
    /// The answers, what happened, and the components that the macro puts in.
    [[nodiscard]] virtual forms::Script& script() = 0;
    [[nodiscard]] virtual forms::Record& record() = 0;
    [[nodiscard]] virtual hosting::Components& components() = 0;

    [[nodiscard]] std::vector<Found>& found() noexcept { return found_; }

    /// Both throw errFail while no project is open.
    [[nodiscard]] std::string requireFile() const;
    [[nodiscard]] std::shared_ptr<host::CHX4Extensibility> requireAddIn() const;

  private:
    std::vector<Found> found_;
};

}  // namespace hx::macros
