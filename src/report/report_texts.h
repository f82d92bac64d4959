// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "resources/resource_table.h"

namespace hx::report {

/// The report's own texts. What the editor's dialogs name already has its caption from there.
enum class Text {
    title,
    project,
    projectFile,
    created,
    content,
    contentSummary,
    selection,
    selectionSummary,
    contents,
    findings,
    findingCycle,
    findingMissing,
    findingOrphans,
    moreFindings,
    notActive,
    noName,
    variables,
    noVariables,
    noSubRecipes,
    subRecipesCut,
    branchCycle,
    missingName,
    branchMissing,
    branchRepeated,
    branchDeeper,
    usedIn,
    usedThrough,
    usesCut,
    notUsed,
    notUsedHere,
    yes,
    no,
    unknownSubject,
    cannotMake,
    noRecipes
};

/// A moment on the wall clock.
struct Moment {
    int year = 0, month = 1, day = 1, hour = 0, minute = 0;
    [[nodiscard]] static Moment now();
};

/// The texts of the report in the language of the registry, and the captions of the editor's dialogs.
class Texts {
  public:
    /// German until init().
    Texts() = default;
    /// Reads the language (value "LCID"); throws what the registry throws, the texts are there then all the same.
    void init(const host::Registry& registry) { captions_.InitResources(registry); }

    [[nodiscard]] bool isEnglish() const noexcept;
    [[nodiscard]] automation::Language wording() const noexcept { return captions_.wording(); }
    /// "de" or "en".
    [[nodiscard]] std::string_view languageTag() const noexcept { return isEnglish() ? "en" : "de"; }
    [[nodiscard]] std::string text(Text text) const;
    /// With the values in place of "%1", "%2".
    [[nodiscard]] std::string text(Text text, std::initializer_list<std::string_view> values) const;
    /// A caption of the editor's dialogs without its mnemonic.
    [[nodiscard]] std::string caption(std::int32_t resource) const;
    /// With the language's separator of thousands.
    [[nodiscard]] std::string number(std::size_t value) const;
    /// Date and time as the language writes them.
    [[nodiscard]] std::string date(const Moment& moment) const;

  private:
    resources::ResourceTable captions_;
};

/// `pattern` with the values in place of "%1", "%2".
[[nodiscard]] std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values);

}  // namespace hx::report
