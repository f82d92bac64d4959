// SPDX-License-Identifier: MIT
#include "lists/xml_document.h"

#include <algorithm>
#include <limits>

#include "automation/text.h"
#include "hosting/text_file.h"
#include "lists/sentences.h"
#include "lists/text_decoder.h"

namespace hx::lists {

namespace {

std::string decoded(const std::string& path) {
    TextDecoder decoder(path, declaredEncoding(path));
    std::string text;
    for (std::string piece; decoder.read(piece);) text += piece;
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw automation::Error(automation::errFail, sentence::tooLarge, {path});
    }
    return text;
}

// In document order; recursion would go as deep as the file says.
pugi::xml_node nextNode(pugi::xml_node node, const pugi::xml_node& top) {
    if (node.first_child()) return node.first_child();
    while (node && node != top && !node.next_sibling()) node = node.parent();
    return node == top ? pugi::xml_node() : node.next_sibling();
}

}  // namespace

XmlDocument::XmlDocument(const std::string& path) : path_(path), text_(decoded(path)) {
    for (auto at = text_.find('\n'); at != std::string::npos; at = text_.find('\n', at + 1)) {
        ends_.push_back(static_cast<std::uint32_t>(at));
    }
    const pugi::xml_parse_result result =
        document_.load_buffer_inplace(text_.data(), text_.size(), pugi::parse_default, pugi::encoding_utf8);
    if (result) return;
    const int line = result.status == pugi::status_no_document_element ? 1 : lineAt(result.offset);
    hosting::Line{path_, line, {}}.fail(sentence::noXml, {result.description()});
}

void XmlDocument::fail(const pugi::xml_node& node, const automation::Sentence& problem,
                       std::initializer_list<std::string_view> names) const {
    hosting::Line{path_, line(node), {}}.fail(problem, names);
}

int XmlDocument::lineAt(std::ptrdiff_t offset) const {
    const auto before =
        std::ranges::lower_bound(ends_, static_cast<std::uint32_t>(std::max<std::ptrdiff_t>(offset, 0)));
    return static_cast<int>(before - ends_.begin()) + 1;
}

std::string_view localName(std::string_view name) {
    const auto colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

bool isNamed(const pugi::xml_node& node, std::string_view name) {
    return automation::equalIgnoreCase(localName(node.name()), name);
}

pugi::xml_node childOf(const pugi::xml_node& node, std::string_view name) {
    return node.find_child([name](const pugi::xml_node& child) { return isNamed(child, name); });
}

pugi::xml_node firstElement(const pugi::xml_node& node) {
    return node.find_child([](const pugi::xml_node& child) { return child.type() == pugi::node_element; });
}

std::string textOf(const pugi::xml_node& top) {
    std::string text;
    for (pugi::xml_node node = top; node; node = nextNode(node, top)) {
        const std::string_view part = node.value();
        bool blank = true;  // what stands in different elements is not one word
        for (const char c : part) {
            const bool isBlank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
            if (!isBlank && blank && !text.empty()) text += ' ';
            if (!isBlank) text += c;
            blank = isBlank;
        }
    }
    return text;
}

}  // namespace hx::lists
