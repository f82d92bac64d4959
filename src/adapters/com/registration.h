// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <windows.h>

namespace hx::com {

/// For whom a server is registered: all users, which takes an administrator, or the one who asks.
enum class Users { all, one };

/// What the registry knows of a class whose objects live in the thread that makes them.
struct ClassEntry {
    CLSID id;
    std::string programId;    ///< "Library.Class"
    std::string description;  ///< what a person reads
    std::string file;         ///< of the library
};

/// Writes all keys of the class, or those that are not there yet. Throws automation::Error.
void registerClass(const ClassEntry& entry, Users users);
/// Removes them with all that is below; what is not there is no error.
void unregisterClass(const ClassEntry& entry, Users users);

/// The same for the first type library in a file, with the interfaces that it describes.
void registerTypes(const std::wstring& file, Users users);
void unregisterTypes(const std::wstring& file, Users users);

}  // namespace hx::com
