// SPDX-License-Identifier: MIT
#include "resources/mdialogs.h"

#include <array>
#include <cmath>

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::resources {

using automation::Dispatch;
using automation::ObjectRef;
using automation::Variant;

namespace {

constexpr double fixedPoint = 10000;  // four decimals
constexpr std::int32_t nothing = -1;

template <class Action>
void ignoringErrors(const Action& action) {
    try {
        action();
    } catch (...) {
        // A control that lacks a property, or refuses a value, must not keep the others from theirs.
    }
}

// "C701": the caption is text 701.
void applyToken(Dispatch& object, std::string_view token, const ResourceTable& texts) {
    if (token.empty() || (token.front() != 'C' && token.front() != 'c')) return;
    const std::int32_t id = automation::roundToInt32(automation::leadingNumber(token.substr(1)));
    object.set("Caption", Variant(texts.GetResource(id)));
}

void copyNumber16(Dispatch& source, Dispatch& target, std::string_view name) {
    target.set(name, Variant(automation::toInt16(source.get(name))));
}

void fill(Dispatch& list, const std::vector<std::string>& texts, const std::vector<std::int32_t>& numbers) {
    list.get("Clear");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        list.get("AddItem", std::array{Variant(texts[i])});
        if (i >= numbers.size()) automation::throwBadIndex("numbers", Variant(static_cast<std::int32_t>(i)));
        list.set("ItemData", Variant(numbers[i]), std::array{list.get("NewIndex")});
    }
}

std::int32_t entryOf(Dispatch& list, double data) {
    const std::int32_t count = automation::toInt32(list.get("ListCount"));
    for (std::int32_t i = 0; i < count; ++i) {
        if (automation::toDouble(list.get("ItemData", std::array{Variant(i)})) == data) return i;
    }
    return nothing;
}

// A dialog with tabs moves the pages that it does not show to the left or above.
bool outOfSight(Dispatch& object) {
    const auto number = [&](std::string_view name) { return automation::toDouble(object.get(name)); };
    return number("Left") < -number("Width") || number("Top") < -number("Height");
}

bool seen(const ObjectRef& control, std::string_view stopName, std::string_view windowName) {
    for (ObjectRef object = control; object != nullptr; object = object->get("Container").asObject()) {
        const bool isContainer = object != control;
        const std::string name = automation::toText(object->get("Name"));
        const bool last = automation::equalIgnoreCase(name, stopName) || automation::equalIgnoreCase(name, windowName);
        if (isContainer && last) return true;
        if (outOfSight(*object)) return false;
    }
    return true;
}

}  // namespace

void LocaliseDialog(forms::Form& window, const ResourceTable& texts) {
    LocaliseControl(window, texts);
    const auto controls = window.controls();
    for (const auto& control : controls) LocaliseControl(*control, texts);
}

void LocaliseControl(Dispatch& object, const ResourceTable& texts) {
    ignoringErrors([&] {
        for (const std::string& token : automation::split(automation::toText(object.get("Tag")), ',')) {
            ignoringErrors([&] { applyToken(object, token, texts); });
        }
    });
}

void CopyFont(Dispatch& source, Dispatch& target) {
    target.set("Name", source.get("Name"));
    target.set("Size", Variant(std::nearbyint(automation::toDouble(source.get("Size")) * fixedPoint) / fixedPoint));
    copyNumber16(source, target, "Charset");
    target.set("Italic", source.get("Italic"));
    target.set("Strikethrough", source.get("Strikethrough"));
    target.set("Underline", source.get("Underline"));
    copyNumber16(source, target, "Weight");
}

void FillListWithData(Dispatch& list, const Variant& value, const std::optional<std::vector<std::string>>& texts,
                      const std::vector<std::int32_t>& numbers) {
    if (texts) fill(list, *texts, numbers);
    list.set("ListIndex", Variant(value.isNull() ? nothing : entryOf(list, automation::toDouble(value))));
}

void FixTabStops(forms::Form& window, std::string_view stopName) {
    const auto controls = window.controls();
    for (const auto& control : controls) {
        ignoringErrors([&] { control->set("TabStop", Variant(seen(control, stopName, window.name()))); });
    }
}

}  // namespace hx::resources
