#include "host/ini_text_file.h"

#include "automation/error.h"
#include "host/file_bytes.h"

namespace hx::host {

std::string IniTextFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                              const std::string& path) const {
    std::optional<std::string> bytes;
    try {
        bytes = readFile(fileSystemPath(path));
    } catch (const automation::Error&) {
        return std::string(fallback);  // a file that cannot be read counts as missing
    }
    if (!bytes) return std::string(fallback);
    // Comparing the bytes, not a time stamp, notices every change that another program made.
    if (!known_ || known_->path != path || known_->bytes != *bytes) {
        IniDocument document(*bytes);
        known_ = Known{path, std::move(*bytes), std::move(document)};
    }
    return known_->document.text(section, key).value_or(std::string(fallback));
}

void IniTextFile::write(std::string_view section, std::string_view key, std::string_view text,
                        const std::string& path) {
    const auto file = fileSystemPath(path);
    IniDocument document(readFile(file).value_or(""));
    document.setText(section, key, text);
    replaceFile(file, document.bytes());
}

}  // namespace hx::host
