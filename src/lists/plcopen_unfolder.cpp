// SPDX-License-Identifier: MIT
#include "lists/plcopen_unfolder.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "automation/text.h"
#include "hosting/visible.h"
#include "lists/sentences.h"

namespace hx::lists {

using automation::equalIgnoreCase;
using pugi::xml_node;

namespace {

constexpr auto elementaryTypes = std::to_array<std::string_view>(
    {"BOOL",  "BYTE",  "WORD",           "DWORD",       "LWORD",   "SINT", "INT",          "DINT",
     "LINT",  "USINT", "UINT",           "UDINT",       "ULINT",   "REAL", "LREAL",        "TIME",
     "LTIME", "DATE",  "LDATE",          "TIME_OF_DAY", "TOD",     "LTOD", "LTIME_OF_DAY", "DATE_AND_TIME",
     "DT",    "LDT",   "LDATE_AND_TIME", "STRING",      "WSTRING", "CHAR", "WCHAR"});

bool isElementary(std::string_view type) {
    const std::string_view word = automation::trim(type.substr(0, type.find('[')));
    return std::ranges::any_of(elementaryTypes, [&](std::string_view t) { return equalIgnoreCase(t, word); });
}

std::string upperCase(std::string_view text) {
    std::string upper(text);
    std::ranges::transform(upper, upper.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return upper;
}

}  // namespace

PlcopenUnfolder::PlcopenUnfolder(const XmlDocument& document, const VariableLimits& limits, VariableReceiver& receiver,
                                 const UnfoldLimits& most)
    : document_(document), declarations_(document), limits_(limits), receiver_(receiver), most_(most) {}

void PlcopenUnfolder::run() {
    const std::int64_t total =
        static_cast<std::int64_t>(declarations_.globals().size() + declarations_.programs().size());
    std::int64_t done = 0;
    for (const xml_node& list : declarations_.globals()) {
        declareAll({}, list);
        receiver_.reach(++done, total);
    }
    for (const xml_node& program : declarations_.programs()) {
        declareLists(requireName(program, sentence::programNoName), program,
                     {"localVars", "Vars", "inputVars", "outputVars", "inOutVars", "globalVars"});
        receiver_.reach(++done, total);
    }
    tellNotes();
}

std::string PlcopenUnfolder::requireName(const xml_node& node, const automation::Sentence& none) const {
    std::string name(automation::trim(node.attribute("name").value()));
    if (name.empty()) document_.fail(node, none);
    return name;
}

// TC6 keeps the lists in an interface, IEC 61131-10 those of parameters beside the others.
void PlcopenUnfolder::declareLists(const std::string& prefix, const xml_node& unit, Names lists) {
    for (const xml_node& holder : {unit, childOf(unit, "interface"), childOf(unit, "Parameters")}) {
        for (const xml_node& list : holder.children()) {
            if (std::ranges::any_of(lists, [&](std::string_view name) { return isNamed(list, name); })) {
                declareAll({prefix, {}, 0}, list);
            }
        }
    }
}

void PlcopenUnfolder::declareAll(const Place& owner, const xml_node& list) {
    for (const xml_node& child : list.children()) {
        if (isNamed(child, "variable") || isNamed(child, "Member")) declare(owner, child);
    }
}

void PlcopenUnfolder::declare(const Place& owner, const xml_node& variable) {
    const std::string name = requireName(variable, sentence::variableNoName);
    const xml_node type = childOf(variable, "type");
    if (!type) document_.fail(variable, sentence::variableNoType, {hosting::inQuotes(name)});
    const std::string comment = textOf(childOf(variable, "documentation"));
    unfold({owner.name.empty() ? name : owner.name + "." + name, comment.empty() ? owner.comment : comment,
            owner.line == 0 ? document_.line(variable) : owner.line},
           type);
}

automation::Restore<int> PlcopenUnfolder::step(const xml_node& node) {
    if (++parts_ > most_.parts) {
        document_.fail(node, sentence::tooManyParts, {std::to_string(most_.parts)});
    }
    if (depth_ == deepest) document_.fail(node, sentence::tooDeep);
    return {depth_, depth_ + 1};
}

// `holder` has a type: in one element, or named in a text.
void PlcopenUnfolder::unfold(const Place& place, const xml_node& holder) {
    const auto deeper = step(holder);
    if (const xml_node named = childOf(holder, "TypeName")) return unfoldNamed(place, textOf(named), named);
    if (const xml_node defined = childOf(holder, "InstantlyDefinedType")) return unfoldDefined(place, defined);
    const xml_node type = firstElement(holder);
    if (!type) document_.fail(holder, sentence::noType, {hosting::inQuotes(place.name)});
    unfoldType(place, type, std::string(localName(type.name())));
}

// The kind of type stands in an attribute.
void PlcopenUnfolder::unfoldDefined(const Place& place, const xml_node& type) {
    constexpr std::string_view ending = "TypeSpec";
    std::string_view kind;
    for (const pugi::xml_attribute& attribute : type.attributes()) {
        if (localName(attribute.name()) == "type") kind = localName(attribute.value());
    }
    if (kind.ends_with(ending)) kind.remove_suffix(ending.size());
    unfoldType(place, type, std::string(kind));
}

void PlcopenUnfolder::unfoldType(const Place& place, const xml_node& type, const std::string& kind) {
    const auto is = [&](std::string_view other) { return equalIgnoreCase(kind, other); };
    const xml_node base = childOf(type, "baseType");
    if (is("derived")) return unfoldNamed(place, type.attribute("name").value(), type);
    if (is("array")) return unfoldArray(place, type);
    if (is("struct")) return declareAll(place, type);
    if (is("pointer")) return give(place, "POINTER");
    if (is("reference")) return give(place, "REF_TO");
    if (is("string") || is("wstring")) return give(place, stringType(type, upperCase(kind)));
    if (base) return unfold(place, base);  // of a subrange, or what else is built upon one
    if (is("enum") || is("EnumTypeWithNamedValue")) return give(place, "INT");
    if (isElementary(kind)) return give(place, upperCase(kind));
    leaveOut(place, sentence::typeUnknown, hosting::inQuotes(kind));
}

std::string PlcopenUnfolder::stringType(const xml_node& type, const std::string& kind) {
    const std::string_view length = type.attribute("length").value();
    return length.empty() ? kind : kind + "[" + std::string(length) + "]";
}

void PlcopenUnfolder::unfoldNamed(const Place& place, const std::string& name, const xml_node& user) {
    if (name.empty()) document_.fail(user, sentence::typeNoName, {hosting::inQuotes(place.name)});
    if (isElementary(name)) return give(place, upperCase(name));
    const xml_node declaration = declarations_.type(name, user);
    if (!declaration) {
        ++undeclared_[name];
        return give(place, name);
    }
    requireNew(declaration);
    unfolding_.push_back(declaration);
    if (isFunctionBlock(declaration)) unfoldInstance(place, declaration);
    else if (const xml_node base = childOf(declaration, "baseType")) unfold(place, base);
    else if (const xml_node spec = childOf(declaration, "UserDefinedTypeSpec")) unfoldDefined(place, spec);
    else document_.fail(declaration, sentence::emptyType, {hosting::inQuotes(name)});
    unfolding_.pop_back();
}

void PlcopenUnfolder::requireNew(const xml_node& declaration) const {
    const auto first = std::ranges::find(unfolding_, declaration);
    if (first == unfolding_.end()) return;
    std::string chain;
    for (auto at = first; at != unfolding_.end(); ++at)
        chain += hosting::inQuotes(at->attribute("name").value()) + " -> ";
    const std::string name = hosting::inQuotes(declaration.attribute("name").value());
    document_.fail(declaration, sentence::containsItself, {name, chain + name});
}

// Inputs and outputs are what can be reached from outside.
void PlcopenUnfolder::unfoldInstance(const Place& place, const xml_node& block) {
    for (const xml_node& base : block.children()) {
        if (isNamed(base, "Extends")) unfold(place, base);
    }
    for (const xml_node& holder : {block, childOf(block, "interface"), childOf(block, "Parameters")}) {
        for (const xml_node& list : holder.children()) {
            if (isNamed(list, "inputVars") || isNamed(list, "outputVars")) declareAll(place, list);
        }
    }
}

void PlcopenUnfolder::unfoldArray(const Place& place, const xml_node& array) {
    const xml_node base = childOf(array, "baseType");
    if (!base) document_.fail(array, sentence::arrayNoType, {hosting::inQuotes(place.name)});
    const auto dimensions = dimensionsOf(place, array);
    if (dimensions.empty()) return;
    std::vector<std::int64_t> index;
    for (const Dimension& dimension : dimensions) index.push_back(dimension.lower);
    do {
        std::string element = place.name;
        for (std::size_t i = 0; i < index.size(); ++i) element += (i == 0 ? "[" : ",") + std::to_string(index[i]);
        unfold({element + "]", place.comment, place.line}, base);
    } while (goOn(index, dimensions));
}

// The last index runs fastest; false behind the last element.
bool PlcopenUnfolder::goOn(std::vector<std::int64_t>& index, const std::vector<Dimension>& dimensions) {
    for (std::size_t i = index.size(); i-- > 0;) {
        if (index[i]++ < dimensions[i].upper) return true;
        index[i] = dimensions[i].lower;
    }
    return false;
}

// None when the array is left out.
std::vector<PlcopenUnfolder::Dimension> PlcopenUnfolder::dimensionsOf(const Place& place, const xml_node& array) {
    std::vector<Dimension> dimensions;
    std::int64_t count = 1;
    for (const xml_node& child : array.children()) {
        const bool nested = isNamed(child, "DimensionSpec");
        if (!nested && !isNamed(child, "dimension")) continue;
        const xml_node range = nested ? childOf(child, "IndexRange") : child;
        const auto lower = bound(place, range, "lower");
        const auto upper = bound(place, range, "upper");
        if (!lower || !upper) return {};
        if (*upper < *lower) document_.fail(child, sentence::arrayEnds, {hosting::inQuotes(place.name)});
        count *= std::min(*upper - *lower + 1, most_.arrayElements + 1);
        if (count > most_.arrayElements) {
            leaveOut(place, sentence::arrayTooLarge, std::to_string(most_.arrayElements));
            return {};
        }
        dimensions.push_back({*lower, *upper});
    }
    if (dimensions.empty()) document_.fail(array, sentence::arrayNoDimension, {hosting::inQuotes(place.name)});
    return dimensions;
}

std::optional<std::int64_t> PlcopenUnfolder::bound(const Place& place, const xml_node& range, const char* name) {
    const std::string_view text = automation::trim(range.attribute(name).value());
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size()) return number;
    leaveOut(place, sentence::boundNoNumber, hosting::inQuotes(text));
    return std::nullopt;
}

void PlcopenUnfolder::give(const Place& place, const std::string& type) {
    variable_.name = place.name;
    variable_.line = place.line;
    variable_.type = automation::leftCharacters(type, limits_.type);
    if (variable_.type->size() < type.size()) ++cutTypes_;
    variable_.comment.reset();
    if (!place.comment.empty()) {
        variable_.comment = automation::leftCharacters(place.comment, limits_.comment);
        if (variable_.comment->size() < place.comment.size()) ++cutComments_;
    }
    receiver_.take(variable_);
}

void PlcopenUnfolder::leaveOut(const Place& place, const automation::Sentence& reason, const std::string& detail) {
    receiver_.note(reason, {std::to_string(place.line), hosting::inQuotes(place.name), detail});
}

void PlcopenUnfolder::tellNotes() {
    for (const auto& [name, count] : undeclared_) {
        receiver_.note(sentence::undeclared, {hosting::inQuotes(name), std::to_string(count)});
    }
    tellCut(sentence::cutTypes, cutTypes_, limits_.type);
    tellCut(sentence::cutComments, cutComments_, limits_.comment);
}

void PlcopenUnfolder::tellCut(const automation::Sentence& what, int count, std::size_t limit) {
    if (count == 0) return;
    receiver_.note(what, {std::to_string(count), std::to_string(limit)});
}

}  // namespace hx::lists
