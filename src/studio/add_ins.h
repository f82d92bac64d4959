// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>

#include "host/services.h"

namespace hx::studio {

/// Creates the add-ins that lie in the studio's folders (qt::addInFile). On Windows they are COM servers, which need
/// not be registered for it, elsewhere modules. A file that was loaded stays so.
class AddIns : public host::Components {
  public:
    explicit AddIns(const QStringList& folders);
    ~AddIns() override;
    AddIns(const AddIns&) = delete;
    AddIns& operator=(const AddIns&) = delete;

    /// What the created objects are lent; must be set before create() and outlive the objects.
    void setServices(const host::Services& services) noexcept;
    /// Throws automation::Error when there is no such file, or it is no add-in; the description names the file.
    [[nodiscard]] automation::ObjectRef create(std::string_view programId) override;

  private:
    class Loader;
    std::unique_ptr<Loader> loader_;
};

}  // namespace hx::studio
