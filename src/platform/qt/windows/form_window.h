#pragma once

#include "base/text/codepage.h"
#include "forms/form.h"
#include "forms/toolkit.h"

#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>

namespace halvenmoor::qt {

class ControlView;

/// The window of a form. With a window below it, it is modal and belongs to that one.
class FormWindow : public QWidget, public forms::View {
public:
    /// The code page and the window below outlive the window.
    FormWindow(forms::Form& form, const text::CodePage& page, QWidget* below);
    ~FormWindow() override;

    void Show() override;
    void Hide() override;
    void Update() override;
    forms::Point Position() const override;
    /// Tool windows are taken to have the caption of all others: each window manager draws its own.
    forms::FrameMetrics WindowFrame() const override;
    int TopIndex(const forms::ListBox& list) const override;
    forms::Twips RowHeight(const forms::ListBox& list) const override;
    forms::Canvas& CanvasOf(forms::PictureBox& box) override;

    /// Called when the form has closed.
    void SetOnHidden(std::function<void()> onHidden) { onHidden_ = std::move(onHidden); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Place();
    void MoveTo(forms::Point position);
    void BuildControls();
    void LowerFrames();
    void ChainTabs();
    void ListenToKeys();
    void ShowFocus();
    void UserFocused(const QWidget* widget);

    forms::Form& form_;
    const text::CodePage& page_;
    std::unordered_map<const forms::Control*, std::unique_ptr<ControlView>> views_;
    std::function<void()> onHidden_;
    /// What moves now was moved by the program.
    bool updating_ = false;
};

/// The program's topmost window; none before the first one shows.
QWidget* TopWindow();

/// Brings the program's windows to the front, restored if they were minimised.
void RaiseWindows();

}  // namespace halvenmoor::qt
