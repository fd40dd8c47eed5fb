#pragma once

#include "forms/controls.h"
#include "forms/geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvenmoor::forms {

class Desktop;
class View;

/// Who asks a window to close: its close control, the program, or the system that shuts down.
enum class CloseReason { User, Program, System };

/// A window as its table gives it. All windows are fixed in size.
struct FormDesign {
    std::string name;
    std::string title;
    Twips width = 0;
    Twips height = 0;
    bool closeBox = true;
    bool toolWindow = false;
    /// The window receives key presses before its controls do.
    bool keyPreview = false;
};

/// What a key does in a window.
struct Shortcut {
    /// By its English name, with what is held down: "F5", "Delete", "Ctrl+C", "Alt+3". "Enter" is each of the
    /// keys of that name.
    std::string key;
    /// The control that must have the focus; none: any.
    Control* control = nullptr;
    std::function<void()> action;
};

/// A window made of controls. A window's own class derives from it and overrides the events it needs.
class Form {
public:
    Form(Desktop& desktop, FormDesign design);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const FormDesign& AtDesign() const { return design_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { caption_ = std::move(caption); }
    /// Whether the mouse pointer over the window shows that a job is running.
    bool Busy() const { return busy_; }
    void SetBusy(bool busy) { busy_ = busy; }
    /// Where the window's corner really is, also after the user has moved it.
    Point Position() const;
    void MoveTo(Point position);
    /// What surrounds the windows of this window system; nothing before this one is built.
    FrameMetrics WindowFrame() const;
    /// Where the program moved the window since the last call.
    std::optional<Point> TakeMove();
    /// From its loading until it closes.
    bool IsOpen() const { return open_; }

    /// In the order of the window's table.
    const std::vector<Control*>& Controls() const { return controls_; }
    std::vector<Control*> InTabOrder() const;
    /// The control that has the focus; none before the window opens or when no control can take it.
    Control* ActiveControl() const { return active_; }
    /// The button that the Escape key presses.
    CommandButton* CancelButton() const { return cancelButton_; }
    void SetCancelButton(CommandButton* button) { cancelButton_ = button; }

    const std::vector<Shortcut>& Shortcuts() const { return shortcuts_; }
    /// Before the window opens.
    void AddShortcut(Shortcut shortcut) { shortcuts_.push_back(std::move(shortcut)); }

    Desktop& Owner() const { return desktop_; }
    /// None before the window is built and after it is gone.
    View* GetView() const { return view_.get(); }
    /// The program closes the window; QueryClose may refuse.
    void Unload();

    bool UserClose();
    bool UserEscape();
    /// A character that the user typed; true when the window consumed it.
    bool UserKeyPress(char32_t key);
    /// The user pressed a key down; one that repeats itself counts once. False where it has no meaning.
    bool UserShortcut(std::string_view key);
    /// The window is being painted.
    void Painted();

    /// The controls changed since the last call, each once.
    std::vector<Control*> TakeChanges() { return std::exchange(changed_, {}); }
    bool HasChanges() const { return !changed_.empty(); }

protected:
    /// Before the window is shown.
    virtual void Load() {}
    /// Once for a dialog, inside its modal loop. For the main window at its first showing and each time one
    /// of the program's modal windows has closed.
    virtual void Activate() {}
    virtual void Paint() {}
    /// A true result consumes the key. Only with FormDesign::keyPreview.
    virtual bool KeyPress(char32_t) { return false; }
    /// A false result keeps the window open.
    virtual bool QueryClose(CloseReason) { return true; }

private:
    friend class Control;
    friend class Desktop;

    void Add(Control& control) { controls_.push_back(&control); }
    void Mark(Control& control);
    void FocusOn(Control* control);
    /// Moves the focus to the next control in the tab order that can take it.
    void PassFocusOn();

    Desktop& desktop_;
    const FormDesign design_;
    std::string caption_;
    Point position_;
    bool moved_ = false;
    bool busy_ = false;
    bool open_ = false;
    std::vector<Control*> controls_;
    std::vector<Control*> changed_;
    Control* active_ = nullptr;
    CommandButton* cancelButton_ = nullptr;
    std::vector<Shortcut> shortcuts_;
    std::unique_ptr<forms::View> view_;
};

}  // namespace halvenmoor::forms
