// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "automation/convert.h"
#include "automation/dispatch.h"
#include "host/system_services.h"
#include "settings/init_items.h"

namespace hx::settings {

/// Where default texts come from: the bytes (Windows-1252) of a resource of type "INITS", name ignoring case.
/// Throws automation::Error when there is none.
using DefaultTexts = std::string_view (*)(std::string_view name);

/// The default texts of this component: "FRMTABGRIDRCP".
[[nodiscard]] std::string_view defaultText(std::string_view name);

/// The settings of a window: a tree of named values, from a default text, overlaid by an INI file, applied to the
/// window's properties and read back by name.
class CInit : public automation::Dispatch {
  public:
    CInit(host::IniFile& iniFile, automation::NumberFormat format, DefaultTexts texts = &defaultText);

    /// The window that entries are applied to and read from; lent. Must be set before the operations that use it.
    automation::Dispatch* Motherobject = nullptr;

    void LoadDefaultInit(const std::string& name);
    void LoadInits(const std::string& path);
    void SaveInits(const std::string& path);
    void GetInitFromControl(const std::string& name);
    void SetInitToMotherObject();
    void SetInitToControl(const std::string& name);
    void WriteAValueToCInits(const std::string& entry, const automation::Variant& value);
    [[nodiscard]] automation::Variant ReadAValueFromCInits(const std::string& entry,
                                                           const automation::Variant& fallback) const;
    void DeleteAValueInCInits(const std::string& entry);
    [[nodiscard]] bool ParamExist(const std::string& entry) const;
    void WriteToIni(const std::string& entry, const std::string& value);

    [[nodiscard]] CInitItems& root() noexcept { return *root_; }
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void takeDefaultLine(std::string_view line);
    /// `onError` is called in the handler of what an entry could not be applied for.
    void applyTo(const std::string& name, const std::function<void()>& onError);
    void ReadFromIni(const std::string& entry);
    [[nodiscard]] CInitItem* FindItem(std::string_view path) const;
    [[nodiscard]] automation::Dispatch& window() const;

    host::IniFile& iniFile_;
    automation::NumberFormat format_;
    DefaultTexts texts_;
    std::shared_ptr<CInitItems> root_;
    std::string section_, path_;
};

}  // namespace hx::settings
