#pragma once

#include "forms/color.h"
#include "forms/event.h"
#include "forms/font.h"
#include "forms/geometry.h"
#include "forms/sorted_items.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvenmoor::forms {

class Canvas;
class Control;
class Form;

enum class ControlKind {
    Label,
    Frame,
    CommandButton,
    CheckBox,
    OptionButton,
    ListBox,
    ComboBox,
    PictureBox,
    TextBox
};

/// A sign on a button that carries no words.
enum class Glyph { None, TriangleLeft, TriangleRight, Tick, Cross };

/// A control as its window's table gives it.
struct Design {
    std::string name;
    Bounds bounds;
    /// Position in the tab order of the window; only the order of the numbers counts.
    int tab = 0;
    std::string text = {};
    /// The frame that the control lies in; none: directly on the window.
    const Control* frame = nullptr;
    /// The label that says what the control is for; none: it says so itself.
    const Control* label = nullptr;
    bool enabled = true;
    bool visible = true;
    /// Check boxes and option buttons: on at the start.
    bool on = false;
    bool centred = false;
    bool bordered = false;
    Glyph glyph = Glyph::None;
    /// Command buttons: the digit that presses the button together with Alt; 0 for none.
    char altDigit = 0;
    /// Picture boxes: the picture by its name, without a folder or an extension.
    std::string picture = {};
};

/// What every control of a window shares. Members named Set… change it from the program, members named
/// User… are called by the realisation when the user acts, and do nothing where the user cannot act: on a
/// control that is disabled or hidden, or on a window behind a modal one.
class Control {
public:
    Control(Form& form, ControlKind kind, Design design);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Design& AtDesign() const { return design_; }
    const std::string& Name() const { return design_.name; }
    ControlKind Kind() const { return kind_; }
    Form& Owner() const { return form_; }

    /// UTF-8; shown as plain text.
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    bool Enabled() const { return enabled_; }
    /// Disabling the control that has the focus passes the focus on.
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    /// The text colour; none: the toolkit's own.
    std::optional<Color> ForeColor() const { return foreColor_; }
    void SetForeColor(Color color);
    /// What a screen reader calls the control: its caption, unless the program has given it other words.
    const std::string& AccessibleName() const { return accessibleName_.empty() ? caption_ : accessibleName_; }
    void SetAccessibleName(std::string name);
    /// What the control says of itself beside its caption, to the mouse and to screen readers. UTF-8; shown
    /// as plain text.
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string toolTip);

    bool CanTakeFocus() const;
    bool HasFocus() const;
    /// Gives the control the focus, if it can take it.
    void SetFocus();

    std::function<void()> OnClick;
    std::function<void()> OnGotFocus;
    std::function<void()> OnLostFocus;

    bool UserFocused();

protected:
    /// Marks the control: its view is brought up to date at the end of the running event.
    void Changed();
    void RaiseClick();
    /// Runs an event of the user; false when the user cannot act on the control.
    bool Deliver(Event event);
    /// The same for an action that begins with moving the focus to the control.
    bool DeliverWithFocus(Event event);

private:
    Form& form_;
    const ControlKind kind_;
    const Design design_;
    std::string caption_;
    bool enabled_;
    bool visible_;
    std::optional<Color> foreColor_;
    std::string accessibleName_;
    std::string toolTip_;
};

class Label : public Control {
public:
    Label(Form& form, Design design) : Control(form, ControlKind::Label, std::move(design)) {}
};

class Frame : public Control {
public:
    Frame(Form& form, Design design) : Control(form, ControlKind::Frame, std::move(design)) {}
};

class CommandButton : public Control {
public:
    CommandButton(Form& form, Design design) : Control(form, ControlKind::CommandButton, std::move(design)) {}

    bool UserPress();
};

class CheckBox : public Control {
public:
    CheckBox(Form& form, Design design);

    bool Value() const { return value_; }
    /// Raises the click when the value changes.
    void SetValue(bool value);

    bool UserPress();

private:
    bool value_;
};

/// One of a group: the option buttons of a window that lie in the same frame, or directly on it.
class OptionButton : public Control {
public:
    OptionButton(Form& form, Design design);

    bool Value() const { return value_; }
    /// Turning one on turns the others of its group off. Raises the click when it turns this one on.
    void SetValue(bool value);

    bool UserPress();

private:
    void TurnOn();

    bool value_;
};

/// A list with sorted items, extended multiple selection, and items that can be dragged.
class ListBox : public Control {
public:
    enum class DropMode { None, Manual };

    ListBox(Form& form, Design design);

    int ListCount() const { return items_.Count(); }
    const std::string& List(int index) const { return items_.At(index).text; }
    bool Selected(int index) const { return items_.At(index).selected; }
    int SelCount() const { return selCount_; }
    /// The current row, -1 when there is none.
    int ListIndex() const { return listIndex_; }
    /// The first row that shows; 0 while the window is not open.
    int TopIndex() const;
    /// 0 while the window is not open.
    Twips RowHeight() const;

    /// Raises the click when the selection changes. Selecting a row makes it the current one and scrolls to
    /// it.
    void SetSelected(int index, bool selected);
    /// Whether the current row has to scroll into view since the last call.
    bool TakeScroll() { return std::exchange(mustScroll_, false); }
    /// Returns the row that the item gets. Fails as AddItems does.
    int AddItem(std::string text);
    /// Items beyond the limit of SortedItems are an error; those before it stay. Any other failure adds none.
    void AddItems(std::vector<std::string> texts);
    void RemoveItem(int index);
    void Clear();
    /// Moves in one pass all items that are wanted to another list, where they are not selected. All or
    /// nothing: a failure leaves both lists as they were. False when none was wanted.
    bool MoveItemsTo(ListBox& target, const std::function<bool(int)>& wanted);

    DropMode OLEDropMode() const { return dropMode_; }
    void SetOLEDropMode(DropMode mode) { dropMode_ = mode; }

    std::function<void()> OnStartDrag;
    std::function<void()> OnDragDrop;
    std::function<void()> OnCompleteDrag;

    /// The user made this the selection, with the given current row.
    bool UserSelect(const std::vector<int>& rows, int current);
    bool UserStartDrag();
    /// A drag of this program was dropped here.
    bool UserDrop();
    bool UserCompleteDrag();

    /// Grows with every change of the items; the selection does not count.
    std::uint64_t ItemsVersion() const { return itemsVersion_; }

private:
    class KeptRow;

    void ItemsGone(const std::vector<int>& positions, int selectedCount);
    void ItemsChanged();

    SortedItems items_;
    int selCount_ = 0;
    int listIndex_ = -1;
    bool mustScroll_ = false;
    DropMode dropMode_ = DropMode::None;
    std::uint64_t itemsVersion_ = 0;
};

/// A sorted choice with a text field.
class ComboBox : public Control {
public:
    ComboBox(Form& form, Design design);

    int ListCount() const { return items_.Count(); }
    const std::string& List(int index) const { return items_.At(index).text; }
    /// The chosen item, -1 when there is none.
    int ListIndex() const { return listIndex_; }
    const std::string& Text() const { return text_; }

    /// Shows the item in the text field. Raises the click when the index changes.
    void SetListIndex(int index);
    void AddItem(std::string text);
    void Clear();

    std::function<void()> OnChange;

    bool UserChoose(int index);
    /// The user edited the text field: no item is chosen any more.
    bool UserTyped(std::string text);

    /// Grows with every change of the items; the choice does not count.
    std::uint64_t ItemsVersion() const { return itemsVersion_; }

private:
    SortedItems items_;
    int listIndex_ = -1;
    std::string text_;
    std::uint64_t itemsVersion_ = 0;
};

/// A picture or a drawing surface.
class PictureBox : public Control {
public:
    PictureBox(Form& form, Design design);

    const Font& GetFont() const { return font_; }
    bool Bordered() const { return bordered_; }
    void SetBordered(bool bordered);
    /// The persistent image; none while the window is not open.
    Canvas* GetCanvas();

private:
    forms::Font font_;
    bool bordered_;
};

class TextBox : public Control {
public:
    TextBox(Form& form, Design design) : Control(form, ControlKind::TextBox, std::move(design)) {}

    const std::string& Text() const { return Caption(); }
    void SetText(std::string text) { SetCaption(std::move(text)); }
    /// Selects the whole text, so that typing replaces it.
    void SelectAll();
    /// Whether the text has to be selected since the last call.
    bool TakeSelectAll() { return std::exchange(mustSelect_, false); }

    bool UserTyped(std::string text);

private:
    bool mustSelect_ = false;
};

/// Controls of one kind with an index, as TypeList(1) to TypeList(5).
template <class ControlClass, int First, int Last>
class ControlArray {
public:
    template <class DesignOf>
    ControlArray(Form& form, DesignOf designOf) {
        for (int i = First; i <= Last; ++i) {
            Design design = designOf(i);
            design.name += "(" + std::to_string(i) + ")";
            controls_.emplace_back(form, std::move(design));
        }
    }

    ControlClass& operator[](int index) { return controls_.at(static_cast<std::size_t>(index - First)); }
    const ControlClass& operator[](int index) const {
        return controls_.at(static_cast<std::size_t>(index - First));
    }
    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }

private:
    std::deque<ControlClass> controls_;
};

}  // namespace halvenmoor::forms
