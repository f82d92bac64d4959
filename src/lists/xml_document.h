// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "automation/sentence.h"

namespace hx::lists {

/// An XML file that knows the lines of its elements. Entities of a document type are not read.
class XmlDocument {
  public:
    /// Throws automation::Error with the line of what is wrong.
    explicit XmlDocument(const std::string& path);
    XmlDocument(const XmlDocument&) = delete;
    XmlDocument& operator=(const XmlDocument&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] pugi::xml_node root() const { return document_.document_element(); }
    [[nodiscard]] int line(const pugi::xml_node& node) const { return lineAt(node.offset_debug()); }
    /// Throws automation::Error with the line of the node.
    [[noreturn]] void fail(const pugi::xml_node& node, const automation::Sentence& problem,
                           std::initializer_list<std::string_view> names = {}) const;

  private:
    [[nodiscard]] int lineAt(std::ptrdiff_t offset) const;

    std::string path_;
    std::string text_;                 // the parser works in it
    std::vector<std::uint32_t> ends_;  // of lines
    pugi::xml_document document_;
};

/// The name of an element or attribute without the prefix of its namespace.
[[nodiscard]] std::string_view localName(std::string_view name);
/// Ignoring case and namespace.
[[nodiscard]] bool isNamed(const pugi::xml_node& node, std::string_view name);
/// The first child of that name, ignoring case and namespace; an empty node when there is none.
[[nodiscard]] pugi::xml_node childOf(const pugi::xml_node& node, std::string_view name);
/// The first child that is an element.
[[nodiscard]] pugi::xml_node firstElement(const pugi::xml_node& node);
/// The text in an element and all below it, each run of blanks as one.
[[nodiscard]] std::string textOf(const pugi::xml_node& node);

}  // namespace hx::lists
