// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/band.h"
#include "forms/control.h"

namespace hx::forms {

/// A menu and tool bar control: the main band as a menu bar, the others as menus and pop-up menus.
class Bar : public Control {
  public:
    using Control::Control;
    Band& addBand(std::string name);
    [[nodiscard]] Band& band(const automation::Variant& nameOrNumber) const;  ///< errBadIndex
    [[nodiscard]] Band* findBand(std::string_view name) const;                ///< null when there is none
    [[nodiscard]] const std::vector<std::shared_ptr<Band>>& bands() const noexcept { return bands_; }
    /// The band shown as menu bar.
    void setMainBand(const std::string& name) { mainBand_ = name; }
    [[nodiscard]] Band& mainBand() const { return band(automation::Variant(mainBand_)); }

    /// The tools of the menu bar: those of the main band that open a band and are visible.
    [[nodiscard]] std::vector<Tool*> menuTools() const;
    /// The visible tools of a band shown as a pop-up menu, closed by the commands and separators that stand in the main
    /// band itself and not in the band; separators at the ends and doubled ones left out.
    [[nodiscard]] std::vector<Tool*> popUpTools(const Band& band) const;
    /// The visible tools of a band that a menu opens, separators as above.
    [[nodiscard]] static std::vector<Tool*> subMenuTools(const Band& band);
    /// Raises bandOpenEvent; false when a handler cancels. A view asks before it shows a band.
    bool openBand(Band& band);
    /// A view reports that the tool of a menu is about to open its band.
    void menuOpening(Tool& tool) { menuOpeningEvent.raise(tool); }
    /// The user's click on a tool, also of a disabled one; and a click by name (errBadIndex without such a tool).
    void click(Tool& tool) { toolClickEvent.raise(tool); }
    void click(const std::string& toolName);

    /// Names inside the bar's own texts: 42 Alt, 43 Control, 44 Shift (with their "+"). Other entries are empty.
    [[nodiscard]] std::string localisation(std::int32_t entry) const;
    void setLocalisation(std::int32_t entry, const std::string& text);
    /// "Control+Delete" as "Strg+Entf"-like text from the localisation entries: "Strg+Delete"; other keys unchanged.
    [[nodiscard]] std::string shortcutText(const Tool& tool) const;

    /// The area that the bar's bands leave free, in twips; a view reports it.
    [[nodiscard]] double clientAreaWidth() const noexcept { return clientAreaWidth_; }
    [[nodiscard]] double clientAreaHeight() const noexcept { return clientAreaHeight_; }
    void clientAreaReported(double width, double height);  ///< raises resizeEvent

    Event<Tool&> toolClickEvent, menuOpeningEvent;
    Event<Band&, bool&> bandOpenEvent;
    Event<> resizeEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::vector<std::shared_ptr<Band>> bands_;
    std::vector<std::pair<std::int32_t, std::string>> localisation_;
    std::string mainBand_;
    double clientAreaWidth_ = 0, clientAreaHeight_ = 0;
};

}  // namespace hx::forms
