#pragma once

#include "forms/geometry.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace halvenmoor::forms {

class Canvas;
class Form;
class ListBox;
class PictureBox;

/// A form on the screen. It copies state out of the form, forwards what the user does to the User… members
/// of form and controls, and decides nothing.
class View {
public:
    virtual ~View() = default;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    /// Copies out the form's caption, its move, the changed controls and the focus, in this order. Nothing
    /// that it sets may come back as an action of the user.
    virtual void Update() = 0;
    virtual Point Position() const = 0;
    virtual FrameMetrics WindowFrame() const = 0;
    virtual int TopIndex(const ListBox& list) const = 0;
    virtual Twips RowHeight(const ListBox& list) const = 0;
    /// The canvas lives as long as the view.
    virtual Canvas& CanvasOf(PictureBox& box) = 0;
};

/// What a window system does for the forms layer.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    /// Builds the form's window from its design, hidden.
    virtual std::unique_ptr<View> CreateView(Form& form) = 0;
    /// Calls first as the first event, then runs events until the form is closed.
    virtual void RunModal(Form& form, const std::function<void()>& first) = 0;
    /// Handles the events that are waiting; then waits for more, but not longer than the given seconds (0:
    /// not at all).
    virtual void HandleEvents(double waitSeconds) = 0;
    /// Whether so much time has passed since HandleEvents that the user would notice another call.
    virtual bool YieldIsDue() const { return true; }
    /// Puts a text on the clipboard; UTF-8.
    virtual void Copy(const std::string& text) = 0;
    /// Has screen readers say a text, in the window that is the topmost by then; UTF-8.
    virtual void Announce(const std::string& text) = 0;
    /// Takes words of the toolkit's own, such as those of context menus, from this language, named as in the
    /// program's list of languages; from English where it has none of it.
    virtual void SetLanguage(std::string_view /*name*/) {}
    /// Returns when the work is done, and handles events meanwhile if it can: for work that waits for a
    /// device and touches no form. Throws what the work throws.
    virtual void Wait(const std::function<void()>& work) { work(); }
};

}  // namespace halvenmoor::forms
