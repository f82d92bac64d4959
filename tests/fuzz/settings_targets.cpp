// SPDX-License-Identifier: MIT
#include <sstream>

#include "automation/member_rows.h"
#include "fuzz/targets.h"
#include "hosting/ini_document.h"
#include "hosting/ini_text_file.h"
#include "hosting/registry_file.h"
#include "recipe/node_key.h"
#include "settings/cinit.h"
#include "settings/object_path.h"
#include "settings/value_text.h"

/// What the editor's window and the studio keep in text files.
namespace hx::fuzz {

namespace {

constexpr const char* window = "frmtabGridRCP";

/// A window with a list of columns, as paths name them.
class Column : public automation::Dispatch {
  public:
    [[nodiscard]] std::int16_t width() const { return width_; }
    void setWidth(std::int16_t width) { width_ = width; }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&Column::width, &Column::setWidth>("Width", "A number")};
        static constexpr automation::MemberTable table{"Column", rows};
        return table;
    }

  private:
    std::int16_t width_ = 0;
};

class Window : public automation::Dispatch {
  public:
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& text) { caption_ = text; }
    [[nodiscard]] automation::ObjectRef columns(const std::string& name) const {
        if (name != "VarRecipe" && name != "0") automation::throwBadIndex("Columns", automation::Variant(name));
        return column_;
    }
    [[nodiscard]] automation::ObjectRef grid() const { return column_; }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::Member rows[] = {
            automation::property<&Window::caption, &Window::setCaption>("Caption", "A text"),
            automation::property<&Window::grid>("tdbRM", "An object"),
            automation::indexed<&Window::columns>("Columns", "An object a name"),
        };
        static constexpr automation::MemberTable table{"Window", rows};
        return table;
    }

  private:
    std::string caption_;
    std::shared_ptr<Column> column_ = std::make_shared<Column>();
};

}  // namespace

// What is written is read back, and the rest of the file stays.
void settingsFile(std::string_view bytes) {
    hosting::IniDocument document{bytes};
    require(document.isUtf16() || document.bytes() == bytes, "a file that is not changed stays as it is");
    (void)accepted([&] {
        document.setText(window, "Me.Width", "6000");
        require(hosting::IniDocument(document.bytes()).text(window, "Me.Width") == "6000", "a text is read back");
    });
    const std::string path = fileOf(bytes);
    hosting::IniTextFile file;
    settings::CInit settings(file, {});
    (void)accepted([&] {
        settings.LoadDefaultInit(window);
        settings.LoadInits(path);
        settings.WriteAValueToCInits("tdbRMColOrders", std::string(",1,0"));
        settings.SaveInits(path);
        require(file.read(window, "tdbRMColOrders", "", path) == ",1,0", "a setting is stored");
    });
}

void settingsPath(std::string_view bytes) {
    const auto end = std::min(bytes.find('\n'), bytes.size());
    const std::string path(bytes.substr(0, end));
    const std::string text(bytes.substr(std::min(end + 1, bytes.size())));
    Window target;
    (void)accepted([&] { settings::SetValueByPath(target, path, settings::TextToValue(text)); });
    (void)accepted([&] { (void)settings::GetValueByPath(target, path); });
    hosting::IniTextFile file;
    settings::CInit settings(file, {});
    settings.Motherobject = &target;
    const bool stored = accepted([&] { settings.WriteAValueToCInits(path, text); });
    (void)accepted([&] {
        const bool exists = settings.ParamExist(path);
        const bool named = ("." + path + ".").find("..") == std::string::npos;
        if (stored && exists && named) {
            require(settings.ReadAValueFromCInits(path, {}) == automation::Variant(text), "an entry keeps its value");
        }
        settings.SetInitToMotherObject();
        settings.DeleteAValueInCInits(path);
    });
}

void registryFile(std::string_view bytes) {
    hosting::RegistryFile registry(fileOf(bytes));
    constexpr std::string_view key = "SOFTWARE\\Tarnwell\\Helvix\\4.0";
    (void)accepted([&] {
        (void)registry.readString(key, "Path");
        (void)registry.readNumber(key, "LCID", 0);
        registry.writeNumber(key, "LCID", 1033);
        registry.writeString(key, "Path", "/plant");
        require(registry.readNumber(key, "LCID", 0) == 1033, "a number is read back");
        require(registry.readString(key, "Path") == "/plant", "a text is read back");
    });
}

void nodeKey(std::string_view bytes) {
    const std::int32_t id = recipe::KeyId(bytes);
    const std::string_view prefix = recipe::KeyPrefix(bytes);
    (void)recipe::KeyImage(bytes);
    (void)recipe::KeyHelpContext(bytes);
    require(bytes.starts_with(prefix), "a prefix is the beginning");
    if (prefix.size() != recipe::prefixRoot.size() || id < 0) return;
    const std::string key = recipe::makeKey(prefix, id);
    require(recipe::KeyId(key) == id && recipe::KeyPrefix(key) == prefix, "a key keeps its parts");
}

}  // namespace hx::fuzz
