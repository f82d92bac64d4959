// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "lists/xml_document.h"

namespace hx::lists {

/// What a PLCopen project declares: in the form of TC6 (version 2.01) and of IEC 61131-10 alike, wherever in the file
/// it stands. Names are compared ignoring case.
class PlcopenDeclarations {
  public:
    /// Throws automation::Error when the file is no project.
    explicit PlcopenDeclarations(const XmlDocument& document);

    [[nodiscard]] const std::vector<pugi::xml_node>& globals() const { return globals_; }    ///< lists of variables
    [[nodiscard]] const std::vector<pugi::xml_node>& programs() const { return programs_; }  ///< in the file's order
    /// The data type or function block, named with or without its namespaces; an empty node when there is none.
    /// Throws automation::Error when several are meant; `user` is where the name stands.
    [[nodiscard]] pugi::xml_node type(const std::string& name, const pugi::xml_node& user) const;

  private:
    void collect(const pugi::xml_node& node);
    void addType(const pugi::xml_node& node);

    const XmlDocument& document_;
    std::vector<pugi::xml_node> globals_, programs_;
    std::unordered_multimap<std::string, pugi::xml_node> types_;  // by qualified and by simple name
};

/// Whether it is a function block, not a data type.
[[nodiscard]] bool isFunctionBlock(const pugi::xml_node& declaration);

}  // namespace hx::lists
