#pragma once

#include "platform/fakes/memory_canvas.h"
#include "platform/headless/toolkit.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace halvenmoor::fakes {

/// A view without a window whose pictures can be looked at.
class WatchedView : public headless::HeadlessView {
public:
    using HeadlessView::HeadlessView;

    int TopIndex(const forms::ListBox&) const override { return TopRow; }
    forms::Canvas& CanvasOf(forms::PictureBox& box) override {
        return canvases_.try_emplace(&box, box.AtDesign().bounds).first->second;
    }

    /// The first row that its lists show: the user scrolled.
    int TopRow = 0;

private:
    std::map<const forms::PictureBox*, MemoryCanvas> canvases_;
};

/// A window system without windows whose yields something can happen at.
class WatchedToolkit : public headless::HeadlessToolkit {
public:
    using HeadlessToolkit::HeadlessToolkit;

    /// Something that happens at every yield to the interface.
    std::function<void()> OnYield;
    /// A modal window is open and the script is at its end: nothing would ever close it. Unless set, the
    /// process is aborted with a message.
    std::function<void(const forms::Form&)> OnStuck;

    /// No yield is due, otherwise one always is.
    bool SkipsYields = false;

    /// What was copied last.
    std::string Clipboard;
    std::vector<std::string> Announced;

    int Yields() const { return yields_; }
    /// The topmost modal window, none while the main window has the user.
    forms::Form* OpenDialog() const { return dialogs_.empty() ? nullptr : dialogs_.back(); }

    std::unique_ptr<forms::View> CreateView(forms::Form& form) override {
        return std::make_unique<WatchedView>(form);
    }
    void RunModal(forms::Form& form, const std::function<void()>& first) override;
    void HandleEvents(double waitSeconds) override;
    void Copy(const std::string& text) override { Clipboard = text; }
    void Announce(const std::string& text) override { Announced.push_back(text); }
    bool YieldIsDue() const override { return !SkipsYields; }

protected:
    void EndStuck(forms::Form& form) override;

private:
    std::vector<forms::Form*> dialogs_;
    int yields_ = 0;
};

}  // namespace halvenmoor::fakes
