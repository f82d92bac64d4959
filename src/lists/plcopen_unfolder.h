// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/restore.h"
#include "lists/listed_variable.h"
#include "lists/plcopen_declarations.h"

namespace hx::lists {

/// How much is unfolded at most.
struct UnfoldLimits {
    std::int64_t arrayElements = 10'000;  ///< of one array; a larger one is left out
    std::int64_t parts = 2'000'000;       ///< variables, and all that they are made of; beyond them it fails
};

/// Unfolds declared variables to those of elementary types.
class PlcopenUnfolder {
  public:
    PlcopenUnfolder(const XmlDocument& document, const VariableLimits& limits, VariableReceiver& receiver,
                    const UnfoldLimits& most = {});

    /// Throws automation::Error with the line of what is wrong.
    void run();

  private:
    static constexpr int deepest = 200;

    /// From the first index to the last one.
    struct Dimension {
        std::int64_t lower, upper;
    };
    /// What is being unfolded: a variable or a part of one.
    struct Place {
        std::string name;
        std::string comment;
        int line;  // of the variable
    };
    using Names = std::initializer_list<std::string_view>;
    std::string requireName(const pugi::xml_node& node, const automation::Sentence& none) const;
    void declareLists(const std::string& prefix, const pugi::xml_node& unit, Names lists);
    void declareAll(const Place& owner, const pugi::xml_node& list);
    void declare(const Place& owner, const pugi::xml_node& variable);

    /// Counts what is unfolded, and how deep while what it gives lives.
    automation::Restore<int> step(const pugi::xml_node& node);
    void unfold(const Place& place, const pugi::xml_node& holder);
    void unfoldDefined(const Place& place, const pugi::xml_node& type);
    void unfoldType(const Place& place, const pugi::xml_node& type, const std::string& kind);
    static std::string stringType(const pugi::xml_node& type, const std::string& kind);
    void unfoldNamed(const Place& place, const std::string& name, const pugi::xml_node& user);
    void requireNew(const pugi::xml_node& declaration) const;
    void unfoldInstance(const Place& place, const pugi::xml_node& block);
    void unfoldArray(const Place& place, const pugi::xml_node& array);
    static bool goOn(std::vector<std::int64_t>& index, const std::vector<Dimension>& dimensions);
    std::vector<Dimension> dimensionsOf(const Place& place, const pugi::xml_node& array);
    std::optional<std::int64_t> bound(const Place& place, const pugi::xml_node& range, const char* name);
    void give(const Place& place, const std::string& type);
    void leaveOut(const Place& place, const automation::Sentence& reason, const std::string& detail);
    void tellNotes();
    void tellCut(const automation::Sentence& what, int count, std::size_t limit);

    const XmlDocument& document_;
    PlcopenDeclarations declarations_;
    const VariableLimits& limits_;
    VariableReceiver& receiver_;
    UnfoldLimits most_;
    std::vector<pugi::xml_node> unfolding_;  // the declared types around
    std::map<std::string, int> undeclared_;
    int cutTypes_ = 0, cutComments_ = 0;
    int depth_ = 0;
    std::int64_t parts_ = 0;
    ListedVariable variable_;  // used again
};

}  // namespace hx::lists
