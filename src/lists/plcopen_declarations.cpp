// SPDX-License-Identifier: MIT
#include "lists/plcopen_declarations.h"

#include <algorithm>
#include <array>

#include "automation/text.h"
#include "hosting/visible.h"
#include "lists/sentences.h"

namespace hx::lists {

using automation::equalIgnoreCase;
using automation::foldCase;

namespace {

bool isOneOf(const pugi::xml_node& node, std::initializer_list<std::string_view> names) {
    return std::ranges::any_of(names, [&](std::string_view name) { return isNamed(node, name); });
}

bool isType(const pugi::xml_node& node) {
    return isOneOf(node, {"dataType", "DataTypeDecl", "UserDefinedTypeDecl"}) && node.attribute("name");
}

std::string_view pouType(const pugi::xml_node& node) { return node.attribute("pouType").value(); }

bool isProgram(const pugi::xml_node& node) {
    return (isNamed(node, "pou") && pouType(node) == "program") || isNamed(node, "Program");
}

// What is below has variables of its own, or none.
bool isClosed(const pugi::xml_node& node) {
    return isOneOf(node, {"pou", "Program", "FunctionBlock", "Function", "Class", "Interface", "body", "MainBody"});
}

pugi::xml_node nextSiblingOrAbove(pugi::xml_node node, const pugi::xml_node& top) {
    while (node && node != top && !node.next_sibling()) node = node.parent();
    return node == top ? pugi::xml_node() : node.next_sibling();
}

std::string withDots(std::string_view name) { return automation::replaceAll(name, "\\", "."); }

std::string qualifiedName(const pugi::xml_node& declaration) {
    std::string name = declaration.attribute("name").value();
    for (pugi::xml_node node = declaration.parent(); node; node = node.parent()) {
        if (isNamed(node, "NamespaceDecl")) name.insert(0, std::string(node.attribute("name").value()) + ".");
    }
    return name;
}

}  // namespace

bool isFunctionBlock(const pugi::xml_node& declaration) {
    return isNamed(declaration, "FunctionBlock") || pouType(declaration) == "functionBlock";
}

PlcopenDeclarations::PlcopenDeclarations(const XmlDocument& document) : document_(document) {
    const pugi::xml_node root = document.root();
    if (!isNamed(root, "project")) {
        document.fail(root, sentence::noPlcopen, {root.name()});
    }
    for (pugi::xml_node node = root; node;) {
        collect(node);
        const bool below = !isClosed(node) && !isType(node) && !isNamed(node, "globalVars") && node.first_child();
        node = below ? node.first_child() : nextSiblingOrAbove(node, root);
    }
}

void PlcopenDeclarations::collect(const pugi::xml_node& node) {
    if (node.type() != pugi::node_element) return;
    if (isNamed(node, "globalVars")) globals_.push_back(node);
    else if (isProgram(node)) programs_.push_back(node);
    else if (isType(node) || isFunctionBlock(node)) addType(node);
}

void PlcopenDeclarations::addType(const pugi::xml_node& node) {
    const std::string simple = foldCase(node.attribute("name").value());
    const std::string qualified = foldCase(withDots(qualifiedName(node)));
    types_.emplace(simple, node);
    if (qualified != simple) types_.emplace(qualified, node);
}

pugi::xml_node PlcopenDeclarations::type(const std::string& name, const pugi::xml_node& user) const {
    const std::string wanted = foldCase(withDots(name));
    auto [first, last] = types_.equal_range(wanted);
    if (first == last) std::tie(first, last) = types_.equal_range(wanted.substr(wanted.rfind('.') + 1));
    if (first == last) return {};
    if (std::next(first) != last) {
        document_.fail(user, sentence::declaredTwice,
                       {hosting::inQuotes(name), std::to_string(document_.line(first->second)),
                        std::to_string(document_.line(std::next(first)->second))});
    }
    return first->second;
}

}  // namespace hx::lists
