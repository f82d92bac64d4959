// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/dispatch.h"
#include "host/services.h"
#include "report/viewer.h"

namespace hx::report {

inline constexpr std::string_view connectProgramId = "HXProjectReport.Connect";

/// The report add-in: the class that other add-ins of the studio create by its program identifier.
class Connect : public automation::Dispatch {
  public:
    /// The subject that there is a report on.
    static constexpr std::string_view recipeSubject = "HXRecipe";

    /// The services are lent.
    Connect(const host::Services& services, std::unique_ptr<Viewer> viewer);

    /// Makes the report on a subject of the project file `path` and shows it over the window until the user closes it.
    /// What stands against it (unknown subject, project that cannot be read, no recipes) is shown to the user; nothing
    /// is thrown.
    void Show(const std::string& subject, const std::string& path, forms::WindowHandle window);

    /// The same on recipes alone and those that they include; `ids` are theirs, separated by commas.
    void ShowRecipes(const std::string& ids, const std::string& path, forms::WindowHandle window);

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void show(const std::string& subject, const std::vector<std::int64_t>* recipes, const std::string& path,
              forms::WindowHandle window);
    [[nodiscard]] Texts readTexts();
    void say(const Texts& texts, const std::string& text, std::int32_t style);

    const host::Services& services_;
    std::unique_ptr<Viewer> viewer_;
};

}  // namespace hx::report
