#include <algorithm>
#include <limits>

#include "automation/convert.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/msurfing_grid.h"

namespace hx::editor {

using automation::Error;
using automation::Variant;

namespace {

constexpr std::string_view settingsName = "frmtabGridRCP", fileName = "HXEditors.ini", saveOnExit = "SaveOnExit";
constexpr std::string_view windowEntry = "Me";

// Properties are assigned as 16-bit numbers: a wider one could be stored, but never be applied again.
void keepInReach(settings::CInitItem& item) {
    using Limits = std::numeric_limits<std::int16_t>;
    settings::visitLeaves(item.Name, item, [](const std::string&, settings::CInitItem& leaf) {
        if (!leaf.val.isNumber()) return;
        leaf.val = std::clamp<double>(automation::toDouble(leaf.val), Limits::min(), Limits::max());
    });
}

}  // namespace

settings::CInit& frmtabgrid::inits() {
    if (inits_ == nullptr) {
        const host::Services& services = addIn_.services();
        inits_ = std::make_shared<settings::CInit>(services.iniFile, services.numberFormat);
        inits_->Motherobject = this;
    }
    return *inits_;
}

std::string frmtabgrid::settingsFile() const {
    return std::string(host::PathStyle::folderOf(path_)) + std::string(fileName);
}

void frmtabgrid::loadSettings() {
    inits().LoadDefaultInit(std::string(settingsName));
    inits().LoadInits(settingsFile());
    applySettings(sb->name());
    applySettings(std::string(windowEntry));
}

void frmtabgrid::applySettings(const std::string& name) {
    settings::CInitItem* const item = inits().root().Item(std::string_view(name));
    if (item == nullptr) return;
    std::string refused;
    std::int32_t number = 0;
    settings::visitLeaves(name, *item, [&](const std::string& entry, const settings::CInitItem& leaf) {
        try {
            inits().SetInitToControl(entry);
        } catch (const Error& error) {
            number = error.number();
            refused += "\r\n" + entry + "=" + automation::toText(leaf.val) + " (" +
                       error.description(screen().language()) + ")";
        }
    });
    if (refused.empty()) return;
    guard(addIn_, "frmtabgrid: Load", [&] { throw Error(number, settingsFile() + refused); });
}

void frmtabgrid::saveSettings() {
    if (inits().ReadAValueFromCInits(std::string(saveOnExit), Variant(true)) != Variant(true)) {
        return inits().WriteToIni(std::string(saveOnExit), "False");
    }
    const auto capture = [this](const std::string& name) {
        inits().GetInitFromControl(name);
        keepInReach(*inits().root().Item(std::string_view(name)));
    };
    if (memberGrid_->arranged()) {
        capture(tdbRM->name());
        memberGrid_->saveColumnOrder();
    }
    capture(std::string(windowEntry));
    inits().SaveInits(settingsFile());
}

}  // namespace hx::editor
