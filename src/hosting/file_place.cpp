// SPDX-License-Identifier: MIT
#include "hosting/file_place.h"

#include <array>
#include <string>

#include "automation/error.h"

namespace hx::hosting {

namespace fs = std::filesystem;
using automation::Language;
using automation::Sentence;

namespace {

/// What the operating system says that a user meets; the rest is told in its words.
struct Reason {
    std::errc code;
    Sentence sentence;
};
constexpr auto reasons = std::to_array<Reason>({
    {std::errc::no_space_on_device, sentence::full},
    {std::errc::no_such_file_or_directory, {"No such file or directory", "Datei oder Ordner nicht gefunden"}},
    {std::errc::not_a_directory, {"Not a directory", "Kein Ordner"}},
    {std::errc::is_a_directory, {"Is a directory", "Das ist ein Ordner"}},
    {std::errc::permission_denied, {"Permission denied", "Keine Berechtigung"}},
    {std::errc::operation_not_permitted, {"Operation not permitted", "Keine Berechtigung"}},
    {std::errc::read_only_file_system, {"Read-only file system", "Der Datenträger ist schreibgeschützt"}},
    {std::errc::io_error, {"Input/output error", "Ein-/Ausgabefehler"}},
    {std::errc::file_too_large, {"File too large", "Die Datei wird zu groß"}},
    {std::errc::filename_too_long, {"File name too long", "Der Dateiname ist zu lang"}},
    {std::errc::too_many_files_open, {"Too many open files", "Zu viele Dateien sind offen"}},
    {std::errc::too_many_symbolic_link_levels,
     {"Too many levels of symbolic links", "Zu viele Verknüpfungen führen ineinander"}},
    {std::errc::not_enough_memory, {"Cannot allocate memory", "Der Speicher reicht nicht aus"}},
});

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

}  // namespace

fs::path folderOf(const fs::path& file) { return file.has_parent_path() ? file.parent_path() : fs::path("."); }

void failWith(const Sentence& what, const fs::path& file, const Sentence& why) {
    const auto told = [&](Language language) {
        const std::string text = say(language, what, {textOf(file)});
        const std::string reason = say(language, why);
        return (reason.empty() ? text : text + ": " + reason) + ".";
    };
    throw automation::Error(automation::errFail, told(Language::english), told(Language::german));
}

void failWith(const Sentence& what, const fs::path& file, const std::error_code& why) {
    for (const Reason& reason : reasons) {
        if (why == reason.code) failWith(what, file, reason.sentence);
    }
    const std::string message = why.message();
    failWith(what, file, Sentence{message, message});
}

}  // namespace hx::hosting
