// SPDX-License-Identifier: MIT
#include "settings/object_path.h"

#include <optional>
#include <string>
#include <vector>

#include "automation/convert.h"
#include "automation/text.h"
#include "settings/value_text.h"

namespace hx::settings {

using automation::Dispatch;
using automation::ObjectRef;
using automation::Variant;
using automation::VarType;

namespace {

// The text behind "(" without the last character, which closes it: a number, or a key between quotes.
Variant argumentOf(std::string_view text) {
    text = text.substr(0, text.size() - 1);  // of nothing, nothing
    const Variant value = TextToValue(text);
    if (value.isNumber()) return Variant(automation::toInt16(value));
    const std::string quoted = automation::toText(value);
    return Variant(quoted.size() < 2 ? std::string() : quoted.substr(1, quoted.size() - 2));
}

/// Follows a path from an object down to the owner of its last name.
class PathWalk {
  public:
    PathWalk(Dispatch& start, std::string_view path) : object_(start.share()), names_(automation::split(path, '.')) {
        if (automation::equalIgnoreCase(names_.front(), "me")) names_.erase(names_.begin());
        if (names_.empty()) names_.emplace_back();  // "Me" alone names no property; no object has one without a name
    }

    /// Runs `use(owner, property)`; after a member with an argument its errors end it without a result.
    template <class Use>
    Variant run(Use use) {
        try {
            for (std::size_t i = 0; i + 1 < names_.size(); ++i) descend(names_[i]);
            return use(*object_, std::string_view(names_.back()));
        } catch (const automation::Error&) {
            if (!tolerant_) throw;
            return {};
        }
    }

  private:
    void descend(const std::string& component) {
        const auto parenthesis = component.find('(');
        const std::string name = component.substr(0, parenthesis);
        Variant member;
        if (parenthesis == std::string::npos) {
            member = object_->get(name);
        } else {
            tolerant_ = true;
            const Variant argument = argumentOf(std::string_view(component).substr(parenthesis + 1));
            member = object_->get(name, automation::Args(&argument, 1));
        }
        ObjectRef next = member.asObject();
        if (next == nullptr) throw automation::Error(automation::errTypeMismatch, name + " is no object now");
        object_ = std::move(next);
    }

    ObjectRef object_;
    std::vector<std::string> names_;
    bool tolerant_ = false;
};

bool takesNumber(const Dispatch& owner, std::string_view property) {
    const automation::Member* const member = owner.members().find(property);
    if (member == nullptr) return false;
    const automation::VarType type = member->type;
    return type == VarType::int16 || type == VarType::int32 || type == VarType::real8;
}

// A number below 0 is text here, with the decimal separator of the locale that it was written in.
Variant assignable(const Dispatch& owner, std::string_view property, const Variant& value) {
    if (!value.isString()) return Variant(automation::toInt16(value));
    return takesNumber(owner, property) ? Variant(automation::replaceAll(value.asString(), ",", ".")) : value;
}

}  // namespace

void SetValueByPath(Dispatch& object, std::string_view path, const Variant& value) {
    PathWalk(object, path).run([&](Dispatch& owner, std::string_view property) {
        owner.set(property, assignable(owner, property, value));
        return Variant();
    });
}

Variant GetValueByPath(Dispatch& object, std::string_view path) {
    return PathWalk(object, path).run([](Dispatch& owner, std::string_view property) { return owner.get(property); });
}

}  // namespace hx::settings
