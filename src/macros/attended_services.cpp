// SPDX-License-Identifier: MIT
#include "macros/attended_services.h"

#include <utility>

#include "hosting/file_bytes.h"

namespace hx::macros {

namespace {

/// A component whose calls are recorded while a macro runs.
class RecordedComponent : public automation::Dispatch {
  public:
    RecordedComponent(std::string programId, automation::ObjectRef object, Attendance& attendance)
        : programId_(std::move(programId)), object_(std::move(object)), attendance_(attendance) {}

    [[nodiscard]] const automation::MemberTable& members() const override { return object_->members(); }
    automation::Variant get(std::string_view name, automation::Args args) override {
        if (attendance_.answers()) {
            attendance_.record.componentCalls.push_back({programId_, std::string(name), {args.begin(), args.end()}});
        }
        return object_->get(name, args);
    }
    void set(std::string_view name, const automation::Variant& value, automation::Args index) override {
        object_->set(name, value, index);
    }

  private:
    std::string programId_;
    automation::ObjectRef object_;
    Attendance& attendance_;
};

/// A component of the macro's, whose functions the add-in waits for.
class MacroComponent : public automation::Dispatch {
  public:
    MacroComponent(automation::ObjectRef object, Attendance& attendance)
        : object_(std::move(object)), attendance_(attendance) {}

    [[nodiscard]] const automation::MemberTable& members() const override { return object_->members(); }
    automation::Variant get(std::string_view name, automation::Args args) override {
        const auto asking = attendance_.ask();
        return object_->get(name, args);
    }

  private:
    automation::ObjectRef object_;
    Attendance& attendance_;
};

}  // namespace

std::string AttendedItems::choose(forms::WindowHandle owner, const std::string& current) {
    if (!attendance_.answers()) return user_.choose(owner, current);
    if (attendance_.cancels()) return {};
    const auto ask = attendance_.script.onItem;
    if (!ask) return user_.choose(owner, current);
    const auto asking = attendance_.ask();
    return ask(current);
}

std::string AttendedFolders::choose(forms::WindowHandle owner, const std::string& current) {
    if (!attendance_.answers()) return user_.choose(owner, current);
    if (attendance_.cancels()) return current;
    const auto ask = attendance_.script.onFolder;
    if (!ask) return user_.choose(owner, current);
    const auto asking = attendance_.ask();
    return ask(current);
}

std::string AttendedIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                  const std::string& path) const {
    if (attendance_.answers()) return FolderIniFile(user_, attendance_.files()).read(section, key, fallback, path);
    requireUsers(path);
    return user_.read(section, key, fallback, path);
}

void AttendedIniFile::writeAll(std::string_view section, std::span<const host::IniText> texts,
                               const std::string& path) {
    if (attendance_.answers()) return FolderIniFile(user_, attendance_.files()).writeAll(section, texts, path);
    requireUsers(path);
    user_.writeAll(section, texts, path);
}

void AttendedIniFile::requireUsers(const std::string& path) const {
    const std::filesystem::path folder = hosting::fileSystemPath(path).parent_path();
    std::error_code differs;
    if (std::filesystem::equivalent(folder, folder_(), differs) && !lua::isProject(path)) return;
    throw automation::Error(automation::errFail, "The file '" + path + "' does not lie beside the project");
}

void AttendedHelp::showContext(forms::WindowHandle owner, const std::string& file, std::int32_t context) {
    if (attendance_.answers()) attendance_.record.help.push_back({owner, file, context});
    if (!attendance_.cancels()) user_.showContext(owner, file, context);
}

automation::ObjectRef AttendedComponents::create(std::string_view programId) {
    if (!attendance_.answers()) return user_.create(programId);
    if (attendance_.components.provides(programId)) {
        return std::make_shared<MacroComponent>(attendance_.components.create(programId), attendance_);
    }
    attendance_.record.components.emplace_back(programId);
    return std::make_shared<RecordedComponent>(std::string(programId), user_.create(programId), attendance_);
}

}  // namespace hx::macros
