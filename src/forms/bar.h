#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/picture.h"

namespace hx::forms {

class Band;
class Bar;

enum class ToolKind : std::int16_t { command = 0, menu = 1, separator = 2, title = 3 };

/// An entry of a band. Tools are shared: a copy in another band is a tool of its own.
class Tool : public automation::Dispatch {
  public:
    Tool(std::string name, ToolKind kind) : name_(std::move(name)), kind_(kind) {}
    [[nodiscard]] std::shared_ptr<Tool> copy() const;

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] ToolKind kind() const noexcept { return kind_; }
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption);
    /// The number of the caption's resource text; 0 for none.
    [[nodiscard]] std::int32_t resourceId() const noexcept { return resourceId_; }
    void setResourceId(std::int32_t id);
    [[nodiscard]] const std::string& category() const noexcept { return category_; }
    void setCategory(const std::string& category);
    [[nodiscard]] bool enabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool visible() const noexcept { return visible_; }
    void setVisible(bool visible);
    /// A key as "F9" or "Control+Delete"; empty for none. Bar::shortcutText gives it in the user's words.
    [[nodiscard]] const std::string& shortcut() const noexcept { return shortcut_; }
    void setShortcut(const std::string& shortcut);
    /// The band that a menu tool opens.
    [[nodiscard]] const std::string& subBand() const noexcept { return subBand_; }
    void setSubBand(const std::string& band);
    [[nodiscard]] const Picture& picture() const noexcept { return picture_; }
    void setPicture(Picture picture);

    Event<> changed;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    template <class T>
    void assign(T& field, const T& value);
    std::string name_;
    ToolKind kind_;
    std::string caption_, category_, shortcut_, subBand_;
    Picture picture_;
    std::int32_t resourceId_ = 0;
    bool enabled_ = true, visible_ = true;
};

/// An ordered set of tools: a menu bar, or a menu. By name or by number from 0.
class Band : public automation::Dispatch {
  public:
    Band(Bar& bar, std::string name) : bar_(bar), name_(std::move(name)) {}
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const std::vector<std::shared_ptr<Tool>>& tools() const noexcept { return tools_; }
    /// By name: a tool of this band, else of the bands that its menu tools open. Null when there is none.
    [[nodiscard]] Tool* find(std::string_view name) const;
    [[nodiscard]] Tool& tool(const automation::Variant& nameOrNumber) const;  ///< errBadIndex
    Tool& add(std::string name, ToolKind kind);
    /// Puts a tool in at `position` (0 to the count); errBadIndex.
    void insert(std::size_t position, std::shared_ptr<Tool> tool);
    void remove(std::string_view name);  ///< a tool of this band itself; errBadIndex
    /// Height in twips as the view shows it; 0 while it is not shown.
    [[nodiscard]] double height() const noexcept { return height_; }
    void heightReported(double twips) noexcept { height_ = twips; }

    Event<> toolsChanged;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    friend class Bar;
    using Path = std::vector<const Band*>;
    [[nodiscard]] Tool* find(std::string_view name, Path& visited) const;
    [[nodiscard]] Tool* own(std::string_view name) const;
    Bar& bar_;
    std::string name_;
    std::vector<std::shared_ptr<Tool>> tools_;
    double height_ = 0;
};

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
