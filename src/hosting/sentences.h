// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that files tell their user.
namespace hx::hosting::sentence {

using automation::Sentence;

// --- what has happened to the file, %1
inline constexpr Sentence notRead{"The file '%1' cannot be read", "Die Datei '%1' kann nicht gelesen werden"};
inline constexpr Sentence notWritten{"The file '%1' cannot be written", "Die Datei '%1' kann nicht geschrieben werden"};
inline constexpr Sentence notConfirmed{"The file '%1' is written, but the disk does not confirm it",
                                       "Die Datei '%1' ist geschrieben, aber der Datenträger bestätigt es nicht"};

// --- why
inline constexpr Sentence notSaid{"", ""};
inline constexpr Sentence noFile{"it is no file", "sie ist keine Datei"};
inline constexpr Sentence readOnly{"it is set to read-only", "sie ist schreibgeschützt"};
inline constexpr Sentence heldByAnother{"another program does not let go of it",
                                        "ein anderes Programm gibt sie nicht frei"};
inline constexpr Sentence unreadBefore{"it could not be read before, so what it holds stays",
                                       "sie konnte zuvor nicht gelesen werden, ihr Inhalt bleibt deshalb stehen"};
inline constexpr Sentence full{"the disk is full", "der Datenträger ist voll"};

// --- the texts in an INI file; %1 is the section, the key or the reason
inline constexpr Sentence otherEncoding{
    "A new text cannot stand in an INI file: the file is UTF-16, not UTF-8 or a Windows code page",
    "Ein neuer Text kann nicht in dieser INI-Datei stehen: Die Datei ist UTF-16, nicht UTF-8 oder eine "
    "Windows-Zeichentabelle"};
inline constexpr Sentence badSection{
    "A section with a line break or a NUL cannot stand in an INI file: %1",
    "Ein Abschnitt mit einem Zeilenumbruch oder einem Nullzeichen kann nicht in einer INI-Datei stehen: %1"};
inline constexpr Sentence badKey{"This key cannot stand in an INI file: %1",
                                 "Dieser Schlüssel kann nicht in einer INI-Datei stehen: %1"};
inline constexpr Sentence badText{
    "A text with a line break or a NUL cannot stand in an INI file: %1",
    "Ein Text mit einem Zeilenumbruch oder einem Nullzeichen kann nicht in einer INI-Datei stehen: %1"};

}  // namespace hx::hosting::sentence
