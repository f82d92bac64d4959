#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/picture.h"

namespace hx::forms {

/// A control with a caption; "&" marks the mnemonic, "&&" is one "&".
class Captioned : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption) { assign(caption_, caption, "Caption"); }
    [[nodiscard]] static const automation::MemberTable& captionedMembers();

  private:
    std::string caption_;
};

class Label : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] const automation::MemberTable& members() const override;
};

class Frame : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] const automation::MemberTable& members() const override;
};

/// A push button. `Default` is pressed by Enter, `Cancel` by Esc. click() does nothing while disabled.
class CommandButton : public Captioned {
  public:
    using Captioned::Captioned;
    void click();
    [[nodiscard]] bool isDefault() const noexcept { return default_; }
    void setDefault(bool value) { assign(default_, value, "Default"); }
    [[nodiscard]] bool isCancel() const noexcept { return cancel_; }
    void setCancel(bool value) { assign(cancel_, value, "Cancel"); }
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    bool default_ = false;
    bool cancel_ = false;
};

enum class CheckState : std::int16_t { unchecked = 0, checked = 1, greyed = 2 };

/// Value 0, 1 or 2; another number throws errOverflow. click() is the user's: it toggles and raises clickEvent, as
/// does every assignment of a new value.
class CheckBox : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] CheckState value() const noexcept { return value_; }
    void setValue(CheckState value);
    void click();
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    CheckState value_ = CheckState::unchecked;
};

/// One of a group (the option buttons of the same container). Becoming true clears the others and raises clickEvent;
/// the same value again does nothing.
class OptionButton : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] bool value() const noexcept { return value_; }
    void setValue(bool value);
    void click() {
        if (enabled()) setValue(true);
    }
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    bool value_ = false;
};

/// Background colours a field can ask for: the system's own.
enum class SystemColor : std::int32_t { window = 5, buttonFace = 15 };

/// A field of text. Positions count characters. setText raises changeEvent, also when typed by the user.
class TextBox : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(const std::string& text);
    [[nodiscard]] std::int32_t selStart() const noexcept { return selStart_; }
    void setSelStart(std::int32_t position);
    [[nodiscard]] std::int32_t selLength() const noexcept { return selLength_; }
    void setSelLength(std::int32_t length);
    [[nodiscard]] bool locked() const noexcept { return locked_; }
    void setLocked(bool locked) { assign(locked_, locked, "Locked"); }
    [[nodiscard]] bool multiLine() const noexcept { return multiLine_; }
    void setMultiLine(bool multiLine) { assign(multiLine_, multiLine, "MultiLine"); }
    [[nodiscard]] SystemColor backColor() const noexcept { return backColor_; }
    void setBackColor(SystemColor color);  ///< another number throws errOverflow
    /// The caret as the view has it; raises nothing. Reported before the text that it belongs to.
    void caretReported(std::int32_t start, std::int32_t length) noexcept;
    Event<> changeEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    std::string text_;
    std::int32_t selStart_ = 0, selLength_ = 0;
    bool locked_ = false, multiLine_ = false;
    SystemColor backColor_ = SystemColor::window;
};

/// A list with item data, shown as a drop-down list, or editable (`style` dropDownCombo). ListIndex -1 is none.
class ComboBox : public Control {
  public:
    enum class Style : std::int16_t { dropDownCombo = 0, dropDownList = 2 };
    explicit ComboBox(std::string name, Style style = Style::dropDownCombo) : Control(std::move(name)), style_(style) {}
    [[nodiscard]] Style style() const noexcept { return style_; }

    void clear();
    void addItem(const std::string& text);  ///< becomes the last entry; newIndex() is its number
    [[nodiscard]] std::int32_t newIndex() const noexcept { return newIndex_; }
    [[nodiscard]] std::int32_t listCount() const noexcept { return static_cast<std::int32_t>(items_.size()); }
    [[nodiscard]] const std::string& list(std::int32_t index) const;  ///< errBadIndex
    [[nodiscard]] std::int32_t itemData(std::int32_t index) const;    ///< errBadIndex
    void setItemData(std::int32_t index, std::int32_t data);          ///< errBadIndex
    [[nodiscard]] std::int32_t listIndex() const noexcept { return listIndex_; }
    /// Takes over the text and raises clickEvent; the same number again does nothing. errBadIndex outside.
    void setListIndex(std::int32_t index);
    /// The selected or typed text. Assigning to a drop-down list selects the entry of that text (errBadIndex without
    /// one).
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(const std::string& text);
    Event<> clickEvent, changeEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void requireIndex(std::int32_t index) const;
    void take(std::int32_t index, const std::string& text);
    [[nodiscard]] std::int32_t find(std::string_view text) const;
    struct Item {
        std::string text;
        std::int32_t data = 0;
    };
    Style style_;
    std::vector<Item> items_;
    std::string text_;
    std::int32_t listIndex_ = -1, newIndex_ = -1;
};

/// Tabs of a dialog. Controls name their page by setContainer(&page(i)); a page that is not current lies out of sight
/// (its Left is moved by -75000 twips).
class TabStrip : public Control {
  public:
    TabStrip(std::string name, std::size_t tabs);
    ~TabStrip() override;
    [[nodiscard]] std::int16_t tabs() const noexcept { return static_cast<std::int16_t>(pages_.size()); }
    [[nodiscard]] const std::string& tabCaption(std::int16_t tab) const;  ///< errBadIndex
    void setTabCaption(std::int16_t tab, const std::string& caption);
    [[nodiscard]] std::int16_t tab() const noexcept { return current_; }
    void setTab(std::int16_t tab);  ///< raises clickEvent after a change; errBadIndex
    [[nodiscard]] Frame& page(std::int16_t tab) const;
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    [[nodiscard]] Frame& requirePage(std::int16_t tab) const;
    std::vector<std::shared_ptr<Frame>> pages_;
    std::int16_t current_ = 0;
};

/// A plain area that reports the mouse.
class PictureBox : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const automation::MemberTable& members() const override;
};

}  // namespace hx::forms
