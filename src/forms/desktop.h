#pragma once

#include "base/failure.h"
#include "forms/form.h"
#include "forms/sorted_items.h"
#include "forms/toolkit.h"

#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

namespace halvenmoor::forms {

/// The open forms and the rules they share on every toolkit: the dispatch of events, modal windows,
/// activation, and the moments at which views are brought up to date.
class Desktop {
public:
    Desktop(Toolkit& toolkit, SortKey sortKey);

    /// Opens the main window: load, shown, activate.
    void Show(Form& form);
    /// Opens a form above all others and returns when it has closed.
    void ShowModal(Form& form);
    /// False when the form refused. Closing the main window ends the program.
    bool Close(Form& form, CloseReason reason);
    /// The system shuts down: asks the open forms from the top. False when one refused.
    bool CloseAll();
    /// The forced end: every form closes without being asked.
    void End();
    bool Ended() const { return ended_; }

    /// The language of the windows' own words, named as in the program's list of languages.
    void SetLanguage(std::string_view name) { toolkit_.SetLanguage(name); }

    /// Lets the interface redraw and handle its waiting events, then waits for more for up to the given time.
    void Yield(double waitSeconds = 0);
    /// The same, but only when a yield is due: for loops that offer one at each of a million steps.
    void YieldIfDue();
    bool YieldIsDue() const { return toolkit_.YieldIsDue(); }
    /// Does work that may wait long for a device, such as a disk, while the windows stay painted. The work
    /// touches no form. Throws what it throws.
    void Wait(const std::function<void()>& work);
    /// Puts a text on the clipboard; UTF-8. An empty one leaves what is there.
    void Copy(const std::string& text);
    /// Has screen readers say a text that no control with the focus tells, as the end of a job; UTF-8.
    void Announce(const std::string& text) { toolkit_.Announce(text); }

    /// Runs an event of a form, then brings the views up to date. A failure that the event does not catch
    /// ends it silently. False, and nothing runs, when the form is not the topmost one.
    template <class Event>
    static bool Deliver(Form& form, const Event& event);
    /// The same for a control, which must also be enabled and visible.
    template <class Event>
    static bool Deliver(Control& control, const Event& event);
    /// Runs a handler; one that is not set does nothing. A failure that it does not catch ends it silently.
    /// False if there was one.
    template <class Handler>
    static bool Raise(const Handler& handler) noexcept;
    /// Whether the user can act on the form.
    bool Accepts(const Form& form) const;

    const SortKey& ListOrder() const { return sortKey_; }

private:
    friend class Form;

    void Open(Form& form);
    void Forget(Form& form);
    void Refresh();

    Toolkit& toolkit_;
    SortKey sortKey_;
    std::vector<Form*> open_;
    bool ended_ = false;
};

// Templates take a handler of any type as it is: to wrap it in a std::function may allocate, and so fail
// before the handler runs.

template <class Event>
bool Desktop::Deliver(Form& form, const Event& event) {
    Desktop& desktop = form.Owner();
    if (!desktop.Accepts(form)) return false;
    Raise(event);
    Raise([&desktop] { desktop.Refresh(); });
    return true;
}

template <class Event>
bool Desktop::Deliver(Control& control, const Event& event) {
    return control.Enabled() && control.Visible() && Deliver(control.Owner(), event);
}

template <class Handler>
bool Desktop::Raise(const Handler& handler) noexcept {
    try {
        if constexpr (std::is_same_v<Handler, std::function<void()>>) {
            if (!handler) return true;
        }
        handler();
        return true;
    } catch (...) {
        TraceFailure("handle an event");
        return false;
    }
}

}  // namespace halvenmoor::forms
