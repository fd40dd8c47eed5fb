#pragma once

#include "forms/event.h"
#include "forms/form.h"
#include "forms/sorted_items.h"
#include "forms/toolkit.h"

#include <functional>
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

    /// Lets the interface redraw and handle its waiting events, then waits for more for up to the given time.
    void Yield(double waitSeconds = 0);
    /// The same, but only when a yield is due: for loops that offer one at each of a million steps.
    void YieldIfDue();
    bool YieldIsDue() const { return toolkit_.YieldIsDue(); }

    /// Runs an event of a form: only the topmost form takes events. What the event's handlers do not catch
    /// ends here, silently. Afterwards the views are brought up to date.
    bool Deliver(Form& form, Event event);
    /// Runs an event; a failure that it does not catch ends it silently. False if there was one.
    static bool Raise(Event event) noexcept;
    /// The same for a handler that may be missing.
    static void RaiseIfSet(const std::function<void()>& handler) noexcept;
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

}  // namespace halvenmoor::forms
