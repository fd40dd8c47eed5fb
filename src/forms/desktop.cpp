#include "forms/desktop.h"

#include <algorithm>
#include <utility>

namespace halvenmoor::forms {

Desktop::Desktop(Toolkit& toolkit, SortKey sortKey) : toolkit_(toolkit), sortKey_(std::move(sortKey)) {
}

void Desktop::Show(Form& form) {
    Open(form);
    Deliver(form, [&form] { form.Activate(); });
}

void Desktop::ShowModal(Form& form) {
    if (ended_) return;
    Open(form);
    toolkit_.RunModal(form, [&form] { Deliver(form, [&form] { form.Activate(); }); });
    form.view_.reset();
    if (open_.size() == 1) Deliver(*open_.front(), [this] { open_.front()->Activate(); });
}

void Desktop::Open(Form& form) {
    form.view_ = toolkit_.CreateView(form);
    open_.push_back(&form);
    form.open_ = true;
    if (!Raise([&form] { form.Load(); })) Close(form, CloseReason::Program);
    if (!Accepts(form)) return;
    if (form.active_ == nullptr) form.PassFocusOn();
    form.view_->Update();
    form.view_->Show();
}

bool Desktop::Close(Form& form, CloseReason reason) {
    if (!form.IsOpen()) return true;
    bool allowed = true;
    Raise([&] { allowed = form.QueryClose(reason); });
    if (!allowed) return false;
    if (!form.IsOpen()) return true;
    const bool isMain = open_.front() == &form;
    Forget(form);
    form.view_->Hide();
    if (isMain) End();
    return true;
}

bool Desktop::CloseAll() {
    const std::vector<Form*> forms(open_.rbegin(), open_.rend());
    return std::all_of(forms.begin(), forms.end(),
                       [this](Form* form) { return Close(*form, CloseReason::System); });
}

void Desktop::End() {
    ended_ = true;
    for (Form* form : std::exchange(open_, {})) {
        form->open_ = false;
        form->view_->Hide();
    }
}

void Desktop::Yield(double waitSeconds) {
    Refresh();
    toolkit_.HandleEvents(waitSeconds);
}

void Desktop::YieldIfDue() {
    if (YieldIsDue()) Yield();
}

void Desktop::Wait(const std::function<void()>& work) {
    Refresh();
    toolkit_.Wait(work);
}

void Desktop::Copy(const std::string& text) {
    if (!text.empty()) toolkit_.Copy(text);
}

bool Desktop::Accepts(const Form& form) const {
    return !open_.empty() && open_.back() == &form;
}

void Desktop::Forget(Form& form) {
    form.open_ = false;
    open_.erase(std::remove(open_.begin(), open_.end(), &form), open_.end());
}

void Desktop::Refresh() {
    for (Form* form : open_) form->view_->Update();
}

}  // namespace halvenmoor::forms
