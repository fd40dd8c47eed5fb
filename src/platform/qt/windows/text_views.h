#pragma once

#include "platform/qt/windows/control_view.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace halvenmoor::qt {

/// Plain text that breaks into lines within its place.
class LabelView : public ViewOf<forms::Label, QLabel> {
public:
    LabelView(forms::Label& label, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

/// A group box whose title interrupts its border, whatever the style, so that what stands in the frame fits.
class TitledFrame : public QGroupBox {
public:
    explicit TitledFrame(QWidget* parent) : QGroupBox(parent) {}

    /// Where the title may stand.
    QRect TitleRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr int kIndent = 8;
    static constexpr int kGap = 3;
};

class FrameView : public ViewOf<forms::Frame, TitledFrame> {
public:
    using ViewOf::ViewOf;

private:
    void ShowState() override;
};

class TextBoxView : public ViewOf<forms::TextBox, QLineEdit> {
public:
    TextBoxView(forms::TextBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
