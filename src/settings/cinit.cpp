// SPDX-License-Identifier: MIT
#include "settings/cinit.h"

#include <utility>
#include <vector>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/form.h"
#include "settings/object_path.h"
#include "settings/value_text.h"

namespace hx::settings {

using automation::Error;
using automation::Variant;

namespace {

constexpr std::int32_t errNoObject = 91;
constexpr std::string_view lineEnd = "\r\n";

template <class Use>
void visitAll(const CInitItems& items, const Use& use) {
    const std::vector top(items.begin(), items.end());
    for (const auto& item : top) visitLeaves(item->Name, *item, use);
}

enum class EmptyNames { leftOut, kept };

/// What a path leads to: an entry (none at the root), and the collection below it. Nothing when a name is missing.
struct Place {
    CInitItem* item = nullptr;
    CInitItems* items = nullptr;
};

Place follow(CInitItems& root, std::string_view path, EmptyNames empty) {
    Place place{nullptr, &root};
    for (const std::string& name : automation::split(path, '.')) {
        if (name.empty() && empty == EmptyNames::leftOut) continue;
        place.item = place.items->Item(std::string_view(name));
        if (place.item == nullptr) return {};
        place.items = place.item->itms.get();
    }
    return place;
}

// The path of a control's entries: "chkA", or "optA(1)" in a control array.
std::string pathOf(const forms::Control& control) {
    const auto index = control.index();
    return index ? control.name() + "(" + std::to_string(*index) + ")" : control.name();
}

automation::ObjectRef motherOf(CInit& inits) {
    return inits.Motherobject != nullptr ? inits.Motherobject->share() : nullptr;
}
automation::ObjectRef rootOf(CInit& inits) { return inits.root().share(); }

}  // namespace

CInit::CInit(host::IniFile& iniFile, automation::NumberFormat format, DefaultTexts texts)
    : iniFile_(iniFile), format_(std::move(format)), texts_(texts), root_(std::make_shared<CInitItems>()) {}

void CInit::LoadDefaultInit(const std::string& name) {
    section_ = name;
    const std::string text = automation::fromWindows1252(texts_(name));
    for (std::string_view rest = text; !rest.empty();) {
        const auto end = rest.find(lineEnd);
        takeDefaultLine(rest.substr(0, end));
        rest.remove_prefix(end == rest.npos ? rest.size() : end + lineEnd.size());
    }
}

void CInit::takeDefaultLine(std::string_view line) {
    const std::vector<std::string> parts = automation::split(line, '=');
    if (parts.size() == 2 && !parts[0].empty()) WriteAValueToCInits(parts[0], TextToValue(parts[1]));
}

void CInit::LoadInits(const std::string& path) {
    path_ = path;
    visitAll(*root_, [&](const std::string& entry, CInitItem&) { ReadFromIni(entry); });
}

void CInit::ReadFromIni(const std::string& entry) {
    const std::string current = ValueToText(ReadAValueFromCInits(entry, Variant(std::int16_t{0})), format_);
    const std::string text = iniFile_.read(section_, entry, current, path_);
    try {
        WriteAValueToCInits(entry, TextToValue(text));
    } catch (const Error&) {
        // A number that no value can hold: the default stands.
    }
}

void CInit::SaveInits(const std::string& path) {
    if (!path.empty()) path_ = path;
    std::vector<host::IniText> texts;
    visitAll(*root_, [&](const std::string& entry, const CInitItem& item) {
        texts.push_back({entry, ValueToText(item.val, format_)});
    });
    iniFile_.writeAll(section_, texts, path_);
}

void CInit::GetInitFromControl(const std::string& name) {
    CInitItem* const item = FindItem(name);
    if (item == nullptr) automation::throwBadIndex("CInit", Variant(name));
    const auto read = [&](const std::string& entry, CInitItem& leaf) {
        const Variant value = GetValueByPath(window(), entry);
        // Nothing could be read of a column that the grid has not now: its entry stays as it was.
        if (!value.isEmpty()) leaf.val = plain(value);
    };
    visitLeaves(name, *item, read);
}

void CInit::SetInitToMotherObject() {
    const auto* form = dynamic_cast<forms::Form*>(Motherobject);
    if (form == nullptr) return;
    const auto controls = form->controls();
    for (const auto& control : controls) {
        applyTo(pathOf(*control), [] {
            // What a control cannot take must not keep the other entries from theirs.
        });
    }
}

void CInit::SetInitToControl(const std::string& name) {
    applyTo(name, [] { throw; });
}

void CInit::applyTo(const std::string& name, const std::function<void()>& onError) {
    CInitItem* const item = FindItem(name);
    if (item == nullptr) return;
    const auto apply = [&](const std::string& entry, const CInitItem& leaf) {
        try {
            SetValueByPath(window(), entry, leaf.val);
        } catch (...) {
            onError();
        }
    };
    visitLeaves(name, *item, apply);
}

void CInit::WriteAValueToCInits(const std::string& entry, const Variant& value) {
    const Variant& kept = plain(value);
    CInitItems* items = root_.get();
    CInitItem* item = nullptr;
    for (const std::string& name : automation::split(entry, '.')) {
        item = &items->Add(name, Variant(""), 0);
        items = item->itms.get();
    }
    item->val = kept;
}

Variant CInit::ReadAValueFromCInits(const std::string& entry, const Variant& fallback) const {
    const CInitItem* const item = follow(*root_, entry, EmptyNames::leftOut).item;
    return item != nullptr ? item->val : fallback;
}

void CInit::DeleteAValueInCInits(const std::string& entry) {
    const auto last = entry.rfind('.') + 1;  // the whole entry, where there is none
    CInitItems* const items = follow(*root_, std::string_view(entry).substr(0, last), EmptyNames::leftOut).items;
    if (items != nullptr) items->Delete(Variant(entry.substr(last)));
}

bool CInit::ParamExist(const std::string& entry) const {
    return follow(*root_, entry, EmptyNames::leftOut).items != nullptr;
}

void CInit::WriteToIni(const std::string& entry, const std::string& value) {
    iniFile_.write(section_, entry, value, path_);
}

CInitItem* CInit::FindItem(std::string_view path) const { return follow(*root_, path, EmptyNames::kept).item; }

automation::Dispatch& CInit::window() const {
    if (Motherobject == nullptr) throw Error(errNoObject, "Motherobject is not set");
    return *Motherobject;
}

const automation::MemberTable& CInit::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        property<&motherOf>("Motherobject", "The window that entries are applied to and read from"),
        property<&rootOf>("itms", "The entries at the top level"),
        method<&CInit::LoadDefaultInit>("LoadDefaultInit", "Fills the tree from the default text of a name"),
        method<&CInit::LoadInits>("LoadInits", "Overlays the entries with those of an INI file"),
        method<&CInit::SaveInits>("SaveInits", "Writes all entries to an INI file; an empty path is the last one"),
        method<&CInit::GetInitFromControl>("GetInitFromControl", "Reads the entries below a path from the window"),
        method<&CInit::SetInitToMotherObject>("SetInitToMotherObject", "Applies the entries of all controls"),
        method<&CInit::SetInitToControl>("SetInitToControl", "Applies the entries below a path to the window"),
        method<&CInit::WriteAValueToCInits>("WriteAValueToCInits", "Sets the value of an entry, added as needed"),
        method<&CInit::ReadAValueFromCInits>("ReadAValueFromCInits", "The value of an entry, or the given one"),
        method<&CInit::DeleteAValueInCInits>("DeleteAValueInCInits", "Removes an entry"),
        method<&CInit::ParamExist>("ParamExist", "Whether there is an entry"),
        method<&CInit::WriteToIni>("WriteToIni", "Writes one text to the INI file, past the entries"),
    };
    static constexpr MemberTable table{"CInit", rows};
    return table;
}

}  // namespace hx::settings
