// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "adapters/com/class_factory.h"
#include "adapters/com/registration.h"

namespace hx::com {

/// The module that an address lies in.
[[nodiscard]] HMODULE moduleOf(const void* address) noexcept;
/// The file that a module was loaded from. Throws automation::Error.
[[nodiscard]] std::wstring fileOf(HMODULE module);

/// From now on the library that an address lies in stays loaded.
void keepLoaded(const void* address) noexcept;

/// Whether a library describes its interfaces: its first type library is registered with its classes.
enum class Types { none, own };

/// What a library that is a COM server answers to the functions that it exports; each does what the function of its
/// name says, and throws nothing. The library owns one server and never ends it.
class Server {
  public:
    struct Class {
        CLSID id;
        std::string programId;
        std::string description;
        ClassFactory::Make make;
        ClassFactory::MakeLent makeLent = {};
    };

    /// `library` is the module that the classes live in.
    Server(HMODULE library, std::vector<Class> classes, Types types = Types::none)
        : library_(library), classes_(std::move(classes)), types_(types) {}

    [[nodiscard]] Border& border() noexcept { return border_; }

    HRESULT getClassObject(REFCLSID id, REFIID iid, void** object) noexcept;
    [[nodiscard]] HRESULT canUnloadNow() const noexcept { return border_.lifetime().isOver() ? S_OK : S_FALSE; }
    /// For all users; for the one who asks where only an administrator could write.
    HRESULT registerServer() noexcept;
    HRESULT unregisterServer() noexcept;
    /// "user" is for the one who asks, as regsvr32 /i:user gives it; everything else for all.
    HRESULT install(bool install, const wchar_t* command) noexcept;

  private:
    [[nodiscard]] std::vector<ClassEntry> entries() const;
    HRESULT registerFor(Users users) noexcept;
    HRESULT unregisterFor(Users users) noexcept;

    HMODULE library_;
    std::vector<Class> classes_;
    Types types_;
    Border border_;
};

}  // namespace hx::com
